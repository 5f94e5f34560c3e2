#include "page/colour_text.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

namespace host {
namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";
constexpr std::size_t kOpaqueLength = 7;
constexpr std::size_t kLength = 9;

struct Named {
    const char* name;
    Gdiplus::ARGB colour;
};

constexpr Named kNamed[] = {
    {"black", 0xFF000000},   {"white", 0xFFFFFFFF},  {"gray", 0xFF808080},
    {"grey", 0xFF808080},    {"silver", 0xFFC0C0C0}, {"red", 0xFFFF0000},
    {"maroon", 0xFF800000},  {"yellow", 0xFFFFFF00}, {"olive", 0xFF808000},
    {"lime", 0xFF00FF00},    {"green", 0xFF008000},  {"aqua", 0xFF00FFFF},
    {"teal", 0xFF008080},    {"blue", 0xFF0000FF},   {"navy", 0xFF000080},
    {"fuchsia", 0xFFFF00FF}, {"purple", 0xFF800080}, {"orange", 0xFFFFA500},
};

}  // namespace

std::string ColourText(Gdiplus::ARGB colour) {
    const Gdiplus::ARGB alphaLast = colour << 8 | colour >> 24;
    std::string text = "#";
    for (int shift = 28; shift >= 0; shift -= 4) {
        text += kHexDigits[alphaLast >> shift & 0xF];
    }
    const bool isOpaque = colour >> 24 == 0xFF;
    return isOpaque ? text.substr(0, kOpaqueLength) : text;
}

std::optional<Gdiplus::ARGB> ColourFromText(std::string_view text) {
    if ((text.size() != kOpaqueLength && text.size() != kLength) || text.front() != '#') {
        return std::nullopt;
    }
    std::uint32_t value = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result =
        std::from_chars(text.data() + 1, end, value, 16);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return text.size() == kOpaqueLength ? 0xFF000000 | value : value << 24 | value >> 8;
}

std::optional<Gdiplus::ARGB> NamedColour(std::string_view name) {
    for (const Named& named : kNamed) {
        if (named.name == name) {
            return named.colour;
        }
    }
    return std::nullopt;
}

std::vector<std::string> ColourNames() {
    std::vector<std::string> names;
    for (const Named& named : kNamed) {
        names.emplace_back(named.name);
    }
    return names;
}

}  // namespace host
