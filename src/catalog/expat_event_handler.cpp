#include <fl/i18n/expat_loader.hpp>

namespace fl::i18n {

ExpatEventHandler::ExpatEventHandler(std::string const& encoding) : encoding_(encoding) {}

ExpatEventHandler::~ExpatEventHandler() = default;

bool ExpatEventHandler::elementStart(char const* name, char const** attributes) {
    return continue_ && (continue_ = doElementStart(name, attributes));
}

bool ExpatEventHandler::elementData(char const* data, int length) {
    return continue_ && (continue_ = doElementData(data, length));
}

bool ExpatEventHandler::elementEnd(char const* name) {
    return continue_ && (continue_ = doElementEnd(name));
}

} // namespace fl::i18n
