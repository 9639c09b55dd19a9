// What start-up is measured against: a program that asks for the user's locale, and nothing else.
#include <clocale>

int main() {
    std::setlocale(LC_ALL, "");
    return 0;
}
