#include "platform/macos_preferences.hpp"

#include <CoreFoundation/CoreFoundation.h>
#include <algorithm>
#include <memory>
#include <type_traits>

namespace fl::platform {
namespace {

struct release_object {
    void operator()(CFTypeRef object) const noexcept { CFRelease(object); }
};

/// Owns what a function with "Copy" or "Create" in its name has given.
template <class Reference>
using owned = std::unique_ptr<std::remove_pointer_t<Reference>, release_object>;

constexpr CFIndex smallest_buffer = 128; // bytes, with the NUL

bool has_type(CFTypeRef object, CFTypeID type) noexcept {
    return object && CFGetTypeID(object) == type;
}

/// The text of a string object; empty for null, for an object that is no string, and for a text that the
/// encoding can't hold.
std::string text_of(CFTypeRef object, CFStringEncoding encoding) {
    if (!has_type(object, CFStringGetTypeID()))
        return {};
    auto const string = static_cast<CFStringRef>(object);
    CFIndex const longest = CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), encoding);
    CFIndex const size = std::max(longest + 1, smallest_buffer);
    std::string buffer(static_cast<std::size_t>(size), '\0');
    if (!CFStringGetCString(string, buffer.data(), size, encoding))
        return {};
    return buffer.c_str();
}

/// The first element's text of an array object; empty if there is none.
std::string first_text_of(CFTypeRef object) {
    if (!has_type(object, CFArrayGetTypeID()))
        return {};
    auto const array = static_cast<CFArrayRef>(object);
    if (CFArrayGetCount(array) < 1)
        return {};
    return text_of(CFArrayGetValueAtIndex(array, 0), kCFStringEncodingASCII);
}

owned<CFPropertyListRef> application_value(CFStringRef key) {
    return owned<CFPropertyListRef>(CFPreferencesCopyAppValue(key, kCFPreferencesCurrentApplication));
}

/// False, with nothing appended, if the name is not ASCII.
bool append(CFMutableArrayRef array, std::string const& name) {
    owned<CFStringRef> const string(
        CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<UInt8 const*>(name.data()),
                                static_cast<CFIndex>(name.size()), kCFStringEncodingASCII, false));
    if (!string)
        return false;
    CFArrayInsertValueAtIndex(array, CFArrayGetCount(array), string.get());
    return true;
}

} // namespace

std::string preferred_locale() {
    auto const value = application_value(CFSTR("AppleLocale"));
    if (!has_type(value.get(), CFStringGetTypeID()))
        return {};
    owned<CFStringRef> const canonical(CFLocaleCreateCanonicalLocaleIdentifierFromString(
        kCFAllocatorDefault, static_cast<CFStringRef>(value.get())));
    return text_of(canonical.get(), kCFStringEncodingISOLatin1);
}

std::string preferred_language() {
    owned<CFPropertyListRef> const value(
        CFPreferencesCopyValue(CFSTR("AppleLanguages"), kCFPreferencesAnyApplication,
                               kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
    return first_text_of(value.get());
}

std::string preferred_application_language() {
    return first_text_of(application_value(CFSTR("AppleLanguages")).get());
}

void store_preferred_application_languages(std::vector<std::string> const& languages) {
    owned<CFMutableArrayRef> const array(
        CFArrayCreateMutable(kCFAllocatorDefault, 0, &kCFTypeArrayCallBacks));
    if (!array)
        return;
    for (std::string const& language : languages)
        if (!append(array.get(), language))
            return;
    CFPreferencesSetAppValue(CFSTR("AppleLanguages"), array.get(), kCFPreferencesCurrentApplication);
    CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication);
}

} // namespace fl::platform
