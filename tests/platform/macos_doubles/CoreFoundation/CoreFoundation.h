/// The few calls of CoreFoundation that the library makes, on objects that count their owners. Declared from
/// what the calls are documented to do; strings are UTF-16, as there.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

struct fake_object {
    unsigned long type; // 1: a string, 2: an array
    std::u16string text{};
    std::vector<fake_object const*> elements{};
    mutable int owners = 0;
};

using Boolean = unsigned char;
using UInt8 = std::uint8_t;
using CFIndex = signed long;
using CFTypeID = unsigned long;
using CFStringEncoding = std::uint32_t;
using CFAllocatorRef = void const*;
using CFTypeRef = void const*;
using CFPropertyListRef = CFTypeRef;
using CFStringRef = fake_object const*;
using CFArrayRef = fake_object const*;
using CFMutableArrayRef = fake_object*;
struct CFArrayCallBacks {};

inline constexpr CFAllocatorRef kCFAllocatorDefault = nullptr;
inline constexpr CFStringEncoding kCFStringEncodingISOLatin1 = 0x0201, kCFStringEncodingASCII = 0x0600;
inline constexpr CFArrayCallBacks kCFTypeArrayCallBacks;

/// What the calls answer from, and what they have been told.
struct core_foundation {
    std::deque<fake_object> objects;
    std::map<std::string, fake_object const*> preferences; // by key, application, user and host
    std::string failing;                                   // name of a call
    std::vector<std::string> stored;                       // by CFPreferencesSetAppValue

    fake_object* string(std::u16string text) { return &objects.emplace_back(fake_object{1, text}); }
    fake_object* array(std::vector<fake_object const*> elements) {
        return &objects.emplace_back(fake_object{2, u"", elements});
    }
    /// What a call with "Copy" or "Create" in its name gives.
    fake_object const* give(char const* call, fake_object const* object) const {
        return failing == call || object == nullptr ? nullptr : (++object->owners, object);
    }
};
inline core_foundation fake_cf;

inline fake_object const* fake_check(CFTypeRef object, unsigned long type = 0) {
    auto const* const known = static_cast<fake_object const*>(object);
    if (known == nullptr || (type != 0 && known->type != type))
        throw std::logic_error("a call on null or on an object of another type");
    return known;
}
inline std::string fake_text(CFTypeRef string) {
    auto const& text = fake_check(string, 1)->text;
    return {text.begin(), text.end()};
}
// clang-format off
#define CFSTR(text) fake_cf.string(u##text)

inline void CFRelease(CFTypeRef object) {
    if (--fake_check(object)->owners < 0)
        throw std::logic_error("released too often");
}
inline CFTypeID CFGetTypeID(CFTypeRef object) { return fake_check(object)->type; }
inline CFTypeID CFStringGetTypeID() { return 1; }
inline CFTypeID CFArrayGetTypeID() { return 2; }

inline CFIndex CFStringGetLength(CFStringRef string) { return CFIndex(fake_check(string, 1)->text.size()); }
inline CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) { return length; }
inline Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size, CFStringEncoding encoding) {
    std::u16string const& text = fake_check(string, 1)->text;
    char16_t const last = encoding == kCFStringEncodingASCII ? 0x7F : 0xFF;
    if (fake_cf.failing == "CFStringGetCString" || CFIndex(text.size()) >= size ||
        std::any_of(text.begin(), text.end(), [&](char16_t unit) { return unit > last; }))
        return false;
    std::strcpy(buffer, fake_text(string).c_str());
    return true;
}
inline CFStringRef CFStringCreateWithBytes(CFAllocatorRef, UInt8 const* bytes, CFIndex count,
                                           CFStringEncoding, Boolean) {
    bool const ascii = std::all_of(bytes, bytes + count, [](UInt8 byte) { return byte < 0x80; });
    return ascii ? fake_cf.give("CFStringCreateWithBytes", fake_cf.string({bytes, bytes + count})) : nullptr;
}
inline CFStringRef CFLocaleCreateCanonicalLocaleIdentifierFromString(CFAllocatorRef, CFStringRef name) {
    std::u16string text = fake_check(name, 1)->text;
    std::replace(text.begin(), text.end(), u'-', u'_'); // enough to see that the call is made
    return fake_cf.give("CFLocaleCreateCanonicalLocaleIdentifierFromString", fake_cf.string(text));
}

inline CFIndex CFArrayGetCount(CFArrayRef array) { return CFIndex(fake_check(array, 2)->elements.size()); }
inline CFTypeRef CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    return fake_check(array, 2)->elements.at(std::size_t(index));
}
inline CFMutableArrayRef CFArrayCreateMutable(CFAllocatorRef, CFIndex, CFArrayCallBacks const*) {
    auto* const array = fake_cf.array({});
    return fake_cf.give("CFArrayCreateMutable", array) ? array : nullptr;
}
inline void CFArrayInsertValueAtIndex(CFMutableArrayRef array, CFIndex index, CFTypeRef value) {
    if (fake_check(value)->owners == 0)
        throw std::logic_error("inserted after its end");
    array->elements.insert(array->elements.begin() + index, fake_check(value));
}

inline fake_object const kCFPreferencesCurrentApplication[] = {{1, u"current application"}};
inline fake_object const kCFPreferencesAnyApplication[] = {{1, u"any application"}};
inline fake_object const kCFPreferencesCurrentUser[] = {{1, u"current user"}};
inline fake_object const kCFPreferencesAnyHost[] = {{1, u"any host"}};

inline CFPropertyListRef fake_preference(std::vector<CFStringRef> const& key_and_owners) {
    std::string name;
    for (CFStringRef const part : key_and_owners)
        name += (name.empty() ? "" : ", ") + fake_text(part);
    return fake_cf.give("preferences", fake_cf.preferences[name]);
}
inline CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
    return fake_preference({key, application});
}
inline CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef application, CFStringRef user,
                                                CFStringRef host) {
    return fake_preference({key, application, user, host});
}
inline void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef application) {
    fake_cf.stored.push_back(fake_text(key) + ", " + fake_text(application));
    for (fake_object const* const element : fake_check(value, 2)->elements)
        fake_cf.stored.push_back(fake_text(element));
}
inline Boolean CFPreferencesAppSynchronize(CFStringRef application) {
    fake_cf.stored.push_back("synchronized, " + fake_text(application));
    return true;
}
