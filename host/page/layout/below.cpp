#include <algorithm>
#include <cmath>

#include "page/layout/arrangement.h"

namespace host {
namespace {

constexpr double kMostOfLegend = 0.7;  // of the room's height
constexpr double kLean = 1.5;          // height over width
constexpr int kLongestBar = 3;         // columns

/// The columns of a room's width.
struct Grid {
    Grid(const Measures& measures, const Box& room, int least)
        : left(room.left),
          gap(measures.gap),
          count(std::max(least, static_cast<int>(std::lround((room.Width() + gap) /
                                                             (measures.column + gap))))),
          width((room.Width() + gap) / count - gap) {}

    double Width(int columns) const { return columns * (width + gap) - gap; }

    Box Span(int from, int columns, double bottom, double top) const {
        const double begin = left + from * (width + gap);
        return {begin, bottom, begin + Width(columns), top};
    }

    /// The number of columns that a width takes.
    int ColumnsFor(double wide) const {
        return std::max(1, static_cast<int>(std::ceil((wide + gap) / (width + gap))));
    }

    double left;
    double gap;
    int count;
    double width;
};

/// The columns of each part from left to right: legend, bar, north arrow, picture; the
/// last two under the bar when stacked.
struct Shares {
    int legend = 0;
    int bar = 0;
    int arrow = 0;
    int picture = 0;
    bool isStacked = false;

    int Block() const {
        return isStacked ? std::max(bar, arrow + picture) : bar + arrow + picture;
    }
};

Shares LeastShares(const Furniture& furniture, bool isStacked) {
    Shares shares;
    shares.isStacked = isStacked;
    shares.bar = furniture.bar > 0.0 || furniture.scale > 0.0 ? 2 : 0;
    shares.arrow = furniture.arrow ? 1 : 0;
    shares.picture = furniture.picture ? 1 : 0;
    return shares;
}

/// Gives what is left to the bar, up to the longest useful bar, and then to the legend.
void ShareOut(Shares& shares, int count, int forLegend) {
    int spare = count - shares.Block() - forLegend;
    shares.legend = forLegend;
    if (shares.bar > 0) {
        const int more = std::clamp(kLongestBar - shares.bar, 0, spare);
        shares.bar += more;
        spare -= more;
    }
    if (shares.legend > 0) {
        shares.legend += spare;
    } else if (shares.bar > 0) {
        shares.bar += spare;
    } else {
        (shares.picture > 0 ? shares.picture : shares.arrow) += spare;
    }
    if (shares.isStacked) {  // all the columns of the block
        int& last = shares.picture > 0 ? shares.picture : shares.arrow;
        last += shares.Block() - shares.arrow - shares.picture;
    }
}

double BlockHeight(const Sheet& sheet, const Shares& shares, double column) {
    const double gap = sheet.measures.gap;
    const double bar = sheet.furniture.Bar(gap);
    const double squares = shares.arrow + shares.picture > 0 ? column : 0.0;
    return shares.isStacked ? bar + gap + squares : std::max(bar, squares);
}

void Fill(Cells& cells, const Sheet& sheet, const Grid& grid, const Shares& shares,
          double bottom, double top) {
    const Furniture& furniture = sheet.furniture;
    const double gap = sheet.measures.gap;
    int from = 0;
    if (shares.legend > 0) {
        cells.legend = grid.Span(0, shares.legend, bottom, top);
        from = shares.legend;
    }
    Box bar = grid.Span(from, std::max(1, shares.bar), bottom, top);
    double squaresTop = top;
    if (shares.isStacked) {
        squaresTop = bottom + grid.width;
        bar.right = bar.left + grid.Width(shares.Block());
        bar.bottom = squaresTop + gap;
    } else {
        from += shares.bar;
    }
    if (furniture.scale > 0.0) {
        cells.scale = bar;
        if (furniture.bar > 0.0) {
            cells.scale.bottom = bar.top - furniture.scale;
            bar.top = cells.scale.bottom - gap;
        }
    }
    if (furniture.bar > 0.0) {
        cells.bar = bar;
    }
    if (shares.arrow > 0) {
        cells.arrow = grid.Span(from, shares.arrow, bottom, squaresTop);
    }
    if (shares.picture > 0) {
        cells.picture =
            grid.Span(from + shares.arrow, shares.picture, bottom, squaresTop);
    }
}

}  // namespace

std::optional<Cells> Below(const Sheet& sheet, const Box& room, bool isStacked,
                           const LegendSetting& setting, bool titleWithin, Names names) {
    const Furniture& furniture = sheet.furniture;
    const double gap = sheet.measures.gap;
    const double space = 2.0 * sheet.measures.space;
    Shares shares = LeastShares(furniture, isStacked);
    if (isStacked && (shares.bar == 0 || shares.arrow + shares.picture == 0)) {
        return std::nullopt;
    }
    const Grid grid(sheet.measures, room, std::max(2, shares.Block()));
    const int left = grid.count - shares.Block();
    double height = BlockHeight(sheet, shares, std::min(grid.width, room.Height() / 3.0));
    int forLegend = 0;
    if (furniture.legend) {
        if (left < 1) {
            return std::nullopt;
        }
        const double forInk = grid.Width(left) - space;
        const std::optional<InkBox> ink =
            sheet.LegendIn(setting, {forInk, kMostOfLegend * room.Height()}, names);
        if (!ink) {
            return std::nullopt;
        }
        forLegend = std::min(left, grid.ColumnsFor(ink->Width() + space));
        height = std::max(height, ink->Height() + space);
    }
    ShareOut(shares, grid.count, forLegend);

    std::optional<TitleBlock> title;
    if (titleWithin) {
        title = SetTitle(sheet.design, sheet.measures, sheet.title, room.Width(),
                         kMostOfTitle * room.Height());
    }
    const double titleHeight = title ? title->height + gap : 0.0;
    Box forMap = room;
    forMap.bottom += height + gap + titleHeight;
    if (forMap.Height() <= 0.0) {
        return std::nullopt;
    }
    Cells cells;
    cells.setting = setting;
    cells.names = names;
    cells.map = FitMap(forMap, sheet.shape);
    const double rise = room.top - cells.map.top;
    cells.map.bottom += rise;
    cells.map.top += rise;
    if (title) {
        cells.words = title;
        cells.title = {room.MiddleX() - title->width / 2.0,
                       cells.map.bottom - gap - title->height,
                       room.MiddleX() + title->width / 2.0, cells.map.bottom - gap};
    }
    const double top = cells.map.bottom - gap - titleHeight;
    Fill(cells, sheet, grid, shares, top - height, top);
    cells.isLean =
        !isStacked && shares.arrow + shares.picture > 0 && height > kLean * grid.width;
    return cells;
}

}  // namespace host
