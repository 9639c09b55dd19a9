/// `getattrlist` for the capabilities of a volume, with the numbers of macOS.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

struct attrlist {
    std::uint16_t bitmapcount;
    std::uint32_t volattr;
};
struct vol_capabilities_attr_t {
    std::uint32_t capabilities[4], valid[4];
};
inline constexpr std::uint16_t ATTR_BIT_MAP_COUNT = 5;
inline constexpr std::uint32_t ATTR_VOL_INFO = 0x80000000, ATTR_VOL_CAPABILITIES = 0x00020000;
inline constexpr std::uint32_t VOL_CAPABILITIES_FORMAT = 0, VOL_CAP_FMT_CASE_SENSITIVE = 0x100;

/// The format word of the volume "/Volumes/x"; a negative one stands for a failing call.
inline std::int32_t fake_volume_format = -1;

inline int getattrlist(char const* path, attrlist* wanted, void* answer, std::size_t size, unsigned options) {
    if (fake_volume_format < 0 || std::string_view(path) != "/Volumes/x" || wanted->bitmapcount != 5 ||
        wanted->volattr != (ATTR_VOL_INFO | ATTR_VOL_CAPABILITIES) || size != 36 || options != 0)
        return -1;
    std::int32_t const words[] = {36, fake_volume_format}; // the length, and without a gap the capabilities
    std::memcpy(answer, words, sizeof words);
    return 0;
}
