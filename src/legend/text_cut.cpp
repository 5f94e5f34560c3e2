#include <cstddef>

#include "legend/lettering.h"

namespace map_surround {

std::wstring Cut(const std::wstring& text, float width, Ruler& ruler,
                 const Lettering& lettering) {
    const auto fits = [&](const std::wstring& cut) {
        return static_cast<float>(ruler.Measure(cut, lettering).Width) <= width;
    };
    const auto ended = [&text](std::size_t length) {
        constexpr wchar_t kEllipsis = L'\u2026';
        constexpr unsigned kFirstOfTwo = 0xD800;  // never leave half a character
        std::wstring cut = text.substr(0, length);
        if (!cut.empty() &&
            (static_cast<unsigned>(cut.back()) & ~0x3FFU) == kFirstOfTwo) {
            cut.pop_back();
        }
        return cut + kEllipsis;
    };
    if (fits(text)) {
        return text;
    }
    std::size_t shortest = 0;
    std::size_t longest = text.size();
    while (shortest < longest) {
        const std::size_t middle = longest - (longest - shortest) / 2;
        if (fits(ended(middle))) {
            shortest = middle;
        } else {
            longest = middle - 1;
        }
    }
    return ended(shortest);
}

}  // namespace map_surround
