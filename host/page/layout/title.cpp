#include <algorithm>
#include <cmath>

#include "page/layout/steps.h"
#include "page/layout/text_size.h"
#include "page/layout/type_scale.h"

namespace host {
namespace {

constexpr double kSmallestTitlePoints = 4.0;

// Space around the ink, in em: more at the sides than above, as type needs.
constexpr double kSpaceBeside = 0.85;
constexpr double kSpaceAbove = 0.5;

/// A way to fit a title: in a number of lines, down to a share of the wanted size.
struct Way {
    int lines;
    double least;
};
constexpr Way kWays[] = {{1, 0.75}, {2, 0.6}, {3, 0.5}, {100, 0.0}};

/// The room for the ink of a title.
struct InkRoom {
    double width;
    double height;
};

/// Sets a title in an em size, page units, if that fits in at most some lines.
std::optional<TitleBlock> SetIn(const PageDesign& design, const TitleLines& lines,
                                double em, int most, const InkRoom& room) {
    const std::optional<std::wstring> text =
        lines.Within(room.width / em - 2.0 * kSpaceBeside);
    if (!text || LinesOf(*text) > most) {
        return std::nullopt;
    }
    CMapTitle title;
    title.SetFontValue(*text);
    title.SetFontStyle(design.title.family);
    title.SetFontProcess(design.title.style);
    title.SetFontSize(em);
    title.ResetAspectRatio();
    const double height = title.GetSize();
    const double width = height * double{title.GetAspectRatio()};
    TitleBlock block{*text, em, width + 2.0 * kSpaceBeside * em,
                     height + 2.0 * kSpaceAbove * em};
    // The pieces of a line are measured separately, so together they may be a little
    // wider.
    if (!(height > 0.0) || !(width > 0.0) || block.width > room.width * 1.02 ||
        block.height > room.height) {
        return std::nullopt;
    }
    return block;
}

/// The sizes from the wanted one down to the smallest that a page sets, in points.
std::vector<double> SizesFrom(double points) {
    std::vector<double> sizes = {points};
    const std::vector<double>& scale = TypeScale();
    for (auto size = scale.rbegin(); size != scale.rend(); ++size) {
        if (*size < points) {
            sizes.push_back(*size);
        }
    }
    return sizes;
}

std::optional<TitleBlock> SetToFit(const PageDesign& design, const TitleLines& lines,
                                   double wanted, const InkRoom& room) {
    for (const Way& way : kWays) {
        for (const double points : SizesFrom(wanted)) {
            const bool isAsked = design.title.points.has_value();
            if (!isAsked && points < way.least * wanted) {
                break;
            }
            auto block = SetIn(design, lines, UnitsFromPoints(points),
                               isAsked ? 100 : way.lines, room);
            if (block) {
                return block;
            }
        }
    }
    // One word wider than the sheet, or more lines than fit.
    for (int halves = 1; halves < 4; ++halves) {
        const double points = kLeastSetPoints - halves / 2.0;
        auto block = SetIn(design, lines, UnitsFromPoints(points), 1000,
                           {room.width, room.height});
        if (block) {
            return block;
        }
    }
    constexpr double kAny = 1e9;
    return SetIn(design, lines, UnitsFromPoints(kSmallestTitlePoints), 1000,
                 {kAny, kAny});
}

}  // namespace

std::optional<TitleBlock> SetTitle(const PageDesign& design, const Measures& measures,
                                   const TitleLines& lines, double width, double height) {
    const double wanted = design.title.points.value_or(measures.title);
    return SetToFit(design, lines, wanted, {width, height});
}

std::unique_ptr<CSurroundFrame> PlaceTitle(const PageDesign& design,
                                           const Measures& measures,
                                           const TitleBlock& block, const Box& extent,
                                           std::vector<std::string>& remarks) {
    auto title = std::make_unique<CMapTitle>();
    title->SetFontValue(block.text);
    title->SetFontStyle(design.title.family);
    title->SetFontProcess(design.title.style);
    title->SetLineAlignment(Gdiplus::StringAlignmentCenter);
    title->SetFontSize(block.em);
    title->ResetAspectRatio();
    title->SetFrontColor(Gdiplus::Color(kInkColor));
    const double wanted = design.title.points.value_or(measures.title);
    const double points = PointsFromUnits(block.em);
    // A title that suits the sheet is as large as fits, down to half of that size.
    if (design.title.points ? points < wanted : points < wanted / 2.0) {
        remarks.push_back("the title is set in " + PointsText(points) +
                          " to fit the page, instead of " + PointsText(wanted));
    }
    auto frame = std::make_unique<PlacedFrame>(std::move(title));
    Decorate(*frame, extent, design.frames, measures);
    frame->SetName("title");
    return frame;
}

}  // namespace host
