#include <algorithm>

#include "page/layout/arrangement.h"

namespace host {
namespace {

constexpr double kMostOfRoom = 0.55;  // a panel is no wider
constexpr int kFlat = 4;              // columns in which a bar stands beside the arrow

/// North arrow, picture and, where it is wide enough, the scale bar, side by side.
class FurnitureRow {
public:
    FurnitureRow(const Sheet& sheet, int columns, double columnWidth)
        : m_furniture(sheet.furniture),
          m_measures(sheet.measures),
          m_columns(columns),
          m_width(columnWidth),
          m_squares((m_furniture.arrow ? 1 : 0) + (m_furniture.picture ? 1 : 0)) {}

    bool HasBar() const {
        return m_columns >= kFlat && m_squares > 0 && BarHeight() > 0.0;
    }

    /// The height of the bar and the scale in figures above it.
    double BarHeight() const { return m_furniture.Bar(m_measures.gap); }

    double Height() const {
        const double squares = m_squares > 0 ? m_width : 0.0;
        return HasBar() ? std::max(squares, BarHeight()) : squares;
    }

    /// Places its cells from the left, upwards from a bottom line.
    void Put(Cells& cells, double left, double bottom) const {
        const int forBar = HasBar() ? m_columns - m_squares : 0;
        const int forSquares = m_columns - forBar;
        int from = forBar;
        if (m_furniture.arrow) {
            const int wide = m_furniture.picture ? 1 : forSquares;
            cells.arrow = Span(left, from, wide, bottom);
            from += wide;
        }
        if (m_furniture.picture) {
            cells.picture = Span(left, from, m_columns - from, bottom);
        }
        if (HasBar()) {
            PutBar(cells, Span(left, 0, forBar, bottom));
        }
    }

    /// The bar at the bottom of a cell, the scale above it.
    void PutBar(Cells& cells, const Box& cell) const {
        Box rest = cell;
        if (m_furniture.scale > 0.0) {
            cells.scale = rest;
            cells.scale.bottom = rest.top - m_furniture.scale;
            rest.top = cells.scale.bottom - m_measures.gap;
        }
        if (m_furniture.bar > 0.0) {
            cells.bar = rest;
        }
    }

private:
    Box Span(double left, int from, int count, double bottom) const {
        const double step = m_width + m_measures.gap;
        const double begin = left + from * step;
        return {begin, bottom, begin + count * step - m_measures.gap, bottom + Height()};
    }

    const Furniture& m_furniture;
    const Measures& m_measures;
    int m_columns;
    double m_width;
    int m_squares;
};

/// What is stacked in the panel, and its total height.
struct Stack {
    std::optional<TitleBlock> title;
    double legend = 0.0;
    double bar = 0.0;
    double row = 0.0;

    double Height(double gap) const {
        double height = 0.0;
        for (const double part : {title ? title->height : 0.0, legend, bar, row}) {
            height += part > 0.0 ? part + gap : 0.0;
        }
        return std::max(0.0, height - gap);
    }
};

void Fill(Cells& cells, const Stack& stack, const FurnitureRow& row, const Box& panel,
          double gap) {
    Box rest = panel;
    if (stack.title) {
        cells.title = rest;
        cells.title.bottom = rest.top - stack.title->height;
        cells.words = stack.title;
        rest.top = cells.title.bottom - gap;
    }
    if (stack.legend > 0.0) {
        cells.legend = rest;
        cells.legend.bottom = rest.top - stack.legend;
    }
    if (stack.row > 0.0) {
        row.Put(cells, rest.left, rest.bottom);
        rest.bottom += stack.row + gap;
    }
    if (stack.bar > 0.0) {
        row.PutBar(cells, {rest.left, rest.bottom, rest.right, rest.bottom + stack.bar});
    }
}

}  // namespace

std::optional<Cells> Beside(const Sheet& sheet, const Box& room, int columns,
                            const LegendSetting& setting, bool titleWithin, Names names) {
    const Measures& measures = sheet.measures;
    const double gap = measures.gap;
    const double columnWidth = std::min(measures.column, room.Height() / 2.0);
    const double width = columns * (columnWidth + gap) - gap;
    if (width > kMostOfRoom * room.Width() || (columns > 2 && width > room.Height())) {
        return std::nullopt;
    }
    const FurnitureRow row(sheet, columns, columnWidth);
    Stack stack;
    stack.row = row.Height();
    stack.bar = row.HasBar() ? 0.0 : row.BarHeight();
    if (titleWithin) {
        stack.title = SetTitle(sheet.design, sheet.measures, sheet.title, width,
                               kMostOfTitle * room.Height());
    }
    if (sheet.furniture.legend) {
        const double forInk = width - 2.0 * measures.space;
        const std::optional<InkBox> ink =
            sheet.LegendIn(setting, {forInk, room.Height()}, names);
        if (!ink) {
            return std::nullopt;
        }
        stack.legend = ink->Height() + 2.0 * measures.space;
    }
    const double needed = stack.Height(gap);
    if (needed > room.Height()) {
        return std::nullopt;
    }
    Box forMap = room;
    forMap.right -= gap + width;
    Cells cells;
    cells.setting = setting;
    cells.names = names;
    cells.map = FitMap(forMap, sheet.shape);
    // Both are centred, from the top of the room; the map in the middle of a panel that
    // is higher.
    const double height = std::max(cells.map.Height(), needed);
    const double left = room.MiddleX() - (cells.map.Width() + gap + width) / 2.0;
    const double top = room.top - (height - cells.map.Height()) / 2.0;
    cells.map = {left, top - cells.map.Height(), left + cells.map.Width(), top};
    const Box panel = {cells.map.right + gap, room.top - height,
                       cells.map.right + gap + width, room.top};
    Fill(cells, stack, row, panel, gap);
    return cells;
}

}  // namespace host
