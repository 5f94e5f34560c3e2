#pragma once

#include <optional>
#include <string>
#include <vector>

#include "page/layout/page_design.h"

namespace host {

/// A title that may be set in several lines. It is divided at spaces and between
/// ideographs; the lines of the caller's stay.
class TitleLines {
public:
    explicit TitleLines(const TitleDesign& design);

    /// The title in as few lines as its width asks for, these as even as can be, divided
    /// by U+000A. Nothing where one piece alone is wider.
    /// @param width in em
    std::optional<std::wstring> Within(double width) const;

private:
    struct Piece {
        std::wstring text;
        double width;  // em
        double space;  // em, of the space that follows it in a line
        bool isLast;   // of its line as the caller has it
    };

    std::size_t Divide(double width, std::wstring* lines) const;

    std::wstring m_text;
    std::vector<Piece> m_pieces;
};

/// How many lines a text has.
int LinesOf(const std::wstring& text);

}  // namespace host
