#pragma once

#include <optional>
#include <string>
#include <vector>

#include "page/layout/page_design.h"

namespace host {

/// A title that may be set in several lines. It is broken at spaces and between
/// ideographs; the caller's line breaks stay.
class TitleLines {
public:
    explicit TitleLines(const TitleDesign& design);

    /// The title in as few lines as its width requires, as even as possible, separated by
    /// U+000A. Nothing where a single piece is wider.
    /// @param width in em
    std::optional<std::wstring> Within(double width) const;

private:
    struct Piece {
        std::wstring text;
        double width;  // in em
        double space;  // in em, of the space that follows it in a line
        bool isLast;   // in the caller's line
    };

    std::size_t Divide(double width, std::wstring* lines) const;

    std::wstring m_text;
    std::vector<Piece> m_pieces;
};

/// How many lines a text has.
int LinesOf(const std::wstring& text);

}  // namespace host
