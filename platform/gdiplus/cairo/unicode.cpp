#include "cairo/unicode.h"

namespace engine {

std::u32string CodePoints(const FlatChar* units, std::size_t count) {
    std::u32string points;
    points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const char32_t unit = units[i];
        const bool high = unit >= 0xD800 && unit <= 0xDBFF;
        if (high && i + 1 < count && units[i + 1] >= 0xDC00 && units[i + 1] <= 0xDFFF) {
            points += static_cast<char32_t>(0x10000 + ((unit - 0xD800) << 10) +
                                            (units[++i] - 0xDC00U));
        } else {
            points += unit >= 0xD800 && unit <= 0xDFFF ? 0xFFFD : unit;
        }
    }
    return points;
}

std::string Utf8(const std::u32string& text) {
    std::string utf8;
    for (const char32_t c : text) {
        const auto tail = [&](int shift) {
            utf8 += static_cast<char>(0x80 | (c >> shift & 0x3F));
        };
        if (c < 0x80) {
            utf8 += static_cast<char>(c);
        } else if (c < 0x800) {
            utf8 += static_cast<char>(0xC0 | c >> 6);
            tail(0);
        } else if (c < 0x10000) {
            utf8 += static_cast<char>(0xE0 | c >> 12);
            tail(6);
            tail(0);
        } else {
            utf8 += static_cast<char>(0xF0 | c >> 18);
            tail(12);
            tail(6);
            tail(0);
        }
    }
    return utf8;
}

std::string Utf8(const FlatChar* text) {
    return Utf8(CodePoints(text, std::char_traits<FlatChar>::length(text)));
}

std::u16string Utf16(const char* utf8) {
    std::u16string text;
    for (const auto* at = reinterpret_cast<const unsigned char*>(utf8); *at != 0;) {
        const unsigned char lead = *at++;
        int more = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t c = more == 0 ? lead : lead & (0x3F >> more);
        for (; more > 0 && (*at & 0xC0) == 0x80; --more) {
            c = c << 6 | (*at++ & 0x3F);
        }
        if (c >= 0x10000) {
            text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            c = 0xDC00 + (c & 0x3FF);
        }
        text += static_cast<char16_t>(c);
    }
    return text;
}

}  // namespace engine
