#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "legend/lettering.h"

namespace map_surround {
namespace {

// East Asian text breaks between any two characters, except before these, closing marks
// and small kana, and after these, opening marks.
constexpr std::wstring_view kNeverFirst =
    L"!%),.:;?]}\u2019\u201D\u2026\u3001\u3002\u3005\u3009\u300B\u300D\u300F\u3011\u3015"
    L"\u3041\u3043\u3045\u3047\u3049\u3063\u3083\u3085\u3087\u30A1\u30A3\u30A5\u30A7"
    L"\u30A9\u30C3\u30E3\u30E5\u30E7\u30FB\u30FC\uFF01\uFF05\uFF09\uFF0C\uFF0E\uFF1A"
    L"\uFF1B\uFF1F\uFF3D\uFF5D";
constexpr std::wstring_view kNeverLast =
    L"([{\u2018\u201C\u3008\u300A\u300C\u300E\u3010\u3014\uFF08\uFF3B\uFF5B";

struct Range {
    std::uint32_t first;
    std::uint32_t last;
};
constexpr Range kEastAsian[] = {{0x2E80, 0x9FFF},
                                {0xAC00, 0xD7AF},
                                {0xF900, 0xFAFF},
                                {0xFF00, 0xFFEF},
                                {0x20000, 0x3FFFF}};
/// Combining marks, and characters that select a variant.
constexpr Range kMarks[] = {{0x0300, 0x036F},
                            {0x200D, 0x200D},
                            {0x3099, 0x309A},
                            {0xFE00, 0xFE0F},
                            {0xE0100, 0xE01EF}};
constexpr Range kFirstHalves[] = {{0xD800, 0xDBFF}};
constexpr Range kSecondHalves[] = {{0xDC00, 0xDFFF}};
constexpr Range kDigits[] = {{'0', '9'}};

template <std::size_t Count>
bool IsIn(const Range (&ranges)[Count], std::uint32_t character) {
    return std::any_of(std::begin(ranges), std::end(ranges), [&](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}
bool IsOneOf(std::wstring_view characters, std::uint32_t character) {
    return std::any_of(characters.begin(), characters.end(), [character](wchar_t c) {
        return static_cast<std::uint32_t>(c) == character;
    });
}
bool IsSpace(std::uint32_t c) { return IsOneOf(L" \t\r\n\u3000", c); }

/// The character at an index before the end, two code units where it is a surrogate pair.
std::uint32_t CharacterAt(const std::wstring& text, std::size_t at, std::size_t& length) {
    const auto unit = [&text](std::size_t i) {
        return static_cast<std::uint32_t>(text[i]);
    };
    length = 1;
    if (IsIn(kFirstHalves, unit(at)) && IsIn(kSecondHalves, unit(at + 1))) {
        length = 2;
        return 0x10000 + ((unit(at) - 0xD800) << 10) + (unit(at + 1) - 0xDC00);
    }
    return unit(at);
}

/// Whether a line may end after a character, given its neighbours; the one before is 0
/// where the word begins.
bool MayEndAfter(std::uint32_t before, std::uint32_t character, std::uint32_t next) {
    if (IsIn(kMarks, next) || IsSpace(next)) {
        return false;
    }
    switch (character) {
        case '_':
        case '/':
            return next != character;
        case '-':  // in -3 it is a sign
            return next != character && before != 0;
        case '.':
            return next != character && !(IsIn(kDigits, before) && IsIn(kDigits, next));
        default:
            break;
    }
    return IsSpace(character) ||
           ((IsIn(kEastAsian, character) || IsIn(kEastAsian, next)) &&
            !IsOneOf(kNeverLast, character) && !IsOneOf(kNeverFirst, next));
}

/// The next place where a line may begin, or the end of the text.
std::size_t NextBreak(const std::wstring& text, std::size_t from) {
    std::uint32_t before = 0;
    std::size_t length = 0;
    for (std::size_t at = from; at < text.size();) {
        const std::uint32_t character = CharacterAt(text, at, length);
        at += length;
        if (at < text.size() &&
            MayEndAfter(before, character, CharacterAt(text, at, length))) {
            return at;
        }
        before = character;
    }
    return text.size();
}

std::wstring WithoutSpaceAfter(std::wstring line) {
    while (!line.empty() && IsSpace(static_cast<std::uint32_t>(line.back()))) {
        line.pop_back();
    }
    return line;
}

}  // namespace

BrokenText BreakLines(const std::wstring& text, float width, int most, Ruler& ruler,
                      const Lettering& lettering) {
    BrokenText broken;
    const auto add = [&](const std::wstring& line) {
        broken.lines.push_back(Cut(line, width, ruler, lettering));
        broken.isCut = broken.isCut || broken.lines.back() != line;
    };
    std::size_t start = 0;
    while (static_cast<int>(broken.lines.size()) + 1 < most && start < text.size()) {
        const auto lineTo = [&](std::size_t end) {
            return WithoutSpaceAfter(text.substr(start, end - start));
        };
        const auto fits = [&](std::size_t end) {
            return static_cast<float>(ruler.Measure(lineTo(end), lettering).Width) <=
                   width;
        };
        // Doubles the number of words each time, so that a long text takes time in
        // proportion to its length, then searches between the last that fit and the first
        // that did not.
        std::vector<std::size_t> ends = {NextBreak(text, start)};
        std::size_t fitting = 0;
        while (fits(ends.back())) {
            fitting = ends.size();
            for (std::size_t i = 0; i < fitting && ends.back() < text.size(); ++i) {
                ends.push_back(NextBreak(text, ends.back()));
            }
            if (ends.size() == fitting) {
                break;
            }
        }
        std::size_t tooMany = ends.size();
        while (fitting + 1 < tooMany) {
            const std::size_t middle = fitting + (tooMany - fitting) / 2;
            if (fits(ends[middle - 1])) {
                fitting = middle;
            } else {
                tooMany = middle;
            }
        }
        const std::size_t end = ends[std::max<std::size_t>(fitting, 1) - 1];
        add(lineTo(end));
        start = end;
    }
    if (start < text.size() || broken.lines.empty()) {
        add(text.substr(start));
    }
    return broken;
}

}  // namespace map_surround
