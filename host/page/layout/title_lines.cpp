#include "page/layout/title_lines.h"

#include <algorithm>
#include <cstddef>

namespace host {
namespace {

// Longer texts are not titles, and are not broken.
constexpr std::size_t kMostCharacters = 4000;

constexpr double kMeasuredEm = 100.0;  // page units: large, for whole units
constexpr double kSpace = 0.28;        // in em

bool IsSpace(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\u3000'; }

/// Characters between which a line may end.
bool IsIdeograph(wchar_t c) {
    return (c >= 0x2E80 && c <= 0x9FFF) || (c >= 0xAC00 && c <= 0xD7AF) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFF00 && c <= 0xFFEF);
}

/// Characters that never begin a line.
bool Closes(wchar_t c) {
    constexpr const wchar_t* kClosing =
        L"\u3001\u3002\u3005\u3009\u300B\u300D\u300F\u3011\u3015\u30FC\uFF01\uFF09\uFF0C"
        L"\uFF0E\uFF1A\uFF1B\uFF1F";
    return std::wstring(kClosing).find(c) != std::wstring::npos;
}

/// Characters that never end a line.
bool Opens(wchar_t c) {
    constexpr const wchar_t* kOpening = L"\u3008\u300A\u300C\u300E\u3010\u3014\uFF08";
    return std::wstring(kOpening).find(c) != std::wstring::npos;
}

bool MayEndBetween(wchar_t before, wchar_t after) {
    return (IsIdeograph(before) || IsIdeograph(after)) && !Opens(before) &&
           !Closes(after);
}

double WidthOf(const std::wstring& text, const TitleDesign& design) {
    CMapTitle title;
    title.SetFontValue(text);
    title.SetFontStyle(design.family);
    title.SetFontProcess(design.style);
    title.SetFontSize(kMeasuredEm);
    title.ResetAspectRatio();
    const double height = title.GetSize();
    return height > 0.0 ? height * double{title.GetAspectRatio()} / kMeasuredEm : 0.0;
}

}  // namespace

TitleLines::TitleLines(const TitleDesign& design) : m_text(design.text) {
    const std::wstring& text = m_text;
    if (text.size() > kMostCharacters) {
        m_pieces.push_back({text, WidthOf(text, design), 0.0, true});
        return;
    }
    std::wstring piece;
    const auto end = [&](double space, bool isLast) {
        if (!piece.empty() || isLast) {
            m_pieces.push_back({piece, WidthOf(piece, design), space, isLast});
        }
        piece.clear();
    };
    for (const wchar_t c : text) {
        if (c == L'\n') {
            end(0.0, true);
        } else if (IsSpace(c)) {
            end(kSpace, false);
        } else {
            if (!piece.empty() && MayEndBetween(piece.back(), c)) {
                end(0.0, false);
            }
            piece += c;
        }
    }
    end(0.0, true);
}

std::size_t TitleLines::Divide(double width, std::wstring* lines) const {
    std::size_t count = 0;
    double used = 0.0;
    double space = 0.0;
    bool begins = true;
    for (const Piece& piece : m_pieces) {
        if (!begins && used + space + piece.width > width) {
            begins = true;
            if (lines != nullptr) {
                *lines += L'\n';
            }
        }
        if (begins) {
            ++count;
            used = 0.0;
        } else {
            used += space;
            if (lines != nullptr && space > 0.0) {
                *lines += L' ';
            }
        }
        used += piece.width;
        space = piece.space;
        begins = piece.isLast;
        if (lines != nullptr) {
            *lines += piece.text;
            if (piece.isLast && &piece != &m_pieces.back()) {
                *lines += L'\n';
            }
        }
    }
    return count;
}

std::optional<std::wstring> TitleLines::Within(double width) const {
    double widest = 0.0;
    for (const Piece& piece : m_pieces) {
        widest = std::max(widest, piece.width);
    }
    if (widest > width) {
        return std::nullopt;
    }
    // The narrowest width that needs no more lines makes them even.
    constexpr int kHalvings = 12;
    const std::size_t fewest = Divide(width, nullptr);
    if (fewest == static_cast<std::size_t>(LinesOf(m_text))) {
        return m_text;
    }
    double narrow = widest;
    double wide = width;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (narrow + wide) / 2.0;
        (Divide(middle, nullptr) > fewest ? narrow : wide) = middle;
    }
    std::wstring lines;
    Divide(wide, &lines);
    return lines;
}

int LinesOf(const std::wstring& text) {
    return 1 + static_cast<int>(std::count(text.begin(), text.end(), L'\n'));
}

}  // namespace host
