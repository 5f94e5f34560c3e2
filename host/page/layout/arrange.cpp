#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "page/layout/arrangement.h"
#include "page/layout/type_scale.h"

namespace host {
namespace {

constexpr int kWidestPanel = 5;       // columns beside the map
constexpr int kMostColumns = 12;      // of a legend
constexpr double kLeastColumn = 7.0;  // of a legend, in em
constexpr int kStepsUp = 2;           // by which a legend may be larger than usual

/// A legend is left out if the map keeps less than this share of the area that it has
/// without one.
constexpr double kLeastWithLegend = 0.2;

double AreaOf(const Box& box) { return box.Width() * box.Height(); }

/// How good a page is: the size of its map, some of which is traded for type that reads
/// more easily.
double WorthOf(const Cells& cells, const Measures& measures) {
    constexpr double kSmaller = 0.94;  // per step
    constexpr double kLarger = 1.004;
    constexpr double kDense = 0.97;
    constexpr double kOfNames[] = {1.0, 0.95, 0.9};
    constexpr double kLeanFrames = 0.99;
    constexpr double kColumn = 0.998;  // per further column in the legend
    const int larger = StepOf(cells.setting.points) - StepOf(measures.body);
    double worth =
        AreaOf(cells.map) * std::pow(larger < 0 ? kSmaller : kLarger, std::abs(larger));
    worth *=
        std::pow(kColumn, cells.setting.columns - 1) * (cells.isLean ? kLeanFrames : 1.0);
    return worth * (cells.setting.gap < LegendSetting().gap ? kDense : 1.0) *
           kOfNames[static_cast<int>(cells.names)];
}

/// A place for the furniture: beside the map, in a number of columns, or below it.
struct Place {
    bool isBeside = true;
    int columns = 0;
    bool isStacked = false;
    double most = 0.0;  ///< area of the map without a legend
};

/// Searches all arrangements for the best.
class Search {
public:
    Search(const Sheet& sheet, const Box& room)
        : m_sheet(sheet), m_room(room), m_design(sheet.design.layout) {
        if (m_design != LayoutDesign::Bottom) {
            for (int columns = LeastPanel(); columns <= kWidestPanel; ++columns) {
                Add({true, columns});
            }
        }
        if (m_design != LayoutDesign::Side) {
            for (const bool isStacked : {false, true}) {
                Add({false, 0, isStacked});
            }
        }
    }

    std::optional<Cells> Best() {
        if (!m_sheet.furniture.legend) {
            for (const Place& place : m_places) {
                Keep(CellsIn(m_sheet, place, {}, Names::AreWhole));
            }
            return m_best;
        }
        // The usual size first: whatever cannot beat it is not tried.
        for (const Names names : {Names::AreWhole, Names::AreBroken, Names::AreCut}) {
            if (names == Names::AreCut && m_best) {
                break;  // only as a last resort
            }
            const double body = m_sheet.measures.body;
            TryAll(body, names);
            for (int step = 1; step <= kStepsUp && names == Names::AreWhole; ++step) {
                TryAll(StepsDown(body, -step), names);
            }
            for (double points = body; points > kLeastSetPoints;) {
                points = StepsDown(points, 1);
                TryAll(points, names);
            }
        }
        return m_best;
    }

private:
    static constexpr double kDenseGap = 0.5;

    /// A picture or an arrow alone needs only one column.
    int LeastPanel() const {
        const Furniture& all = m_sheet.furniture;
        const bool isOne = !all.legend && all.bar <= 0.0 && all.scale <= 0.0 &&
                           !(all.arrow && all.picture) && m_design != LayoutDesign::Side;
        return isOne ? 1 : 2;
    }

    void Add(Place place) {
        Sheet without = m_sheet;
        without.furniture.legend = false;
        if (const std::optional<Cells> cells =
                CellsIn(without, place, {}, Names::AreWhole)) {
            place.most = AreaOf(cells->map);
            m_places.push_back(place);
        }
    }

    std::optional<Cells> CellsIn(const Sheet& sheet, const Place& place,
                                 const LegendSetting& setting, Names names) const {
        return place.isBeside ? Beside(sheet, m_room, place.columns, setting,
                                       m_design == LayoutDesign::Side, names)
                              : Below(sheet, m_room, place.isStacked, setting,
                                      m_design == LayoutDesign::Bottom, names);
    }

    void TryAll(double points, Names names) {
        // Rows move closer together once type cannot become smaller.
        const double least = points > kLeastSetPoints ? LegendSetting().gap : kDenseGap;
        for (const double gap : {LegendSetting().gap, least}) {
            for (const Place& place : m_places) {
                if (place.isBeside) {
                    TryBeside(place, {1, points, gap}, names);
                } else {
                    TryBelow(place, {1, points, gap}, names);
                }
            }
            if (least == gap) {
                return;
            }
        }
    }

    /// Fewer columns beside the map are as good, as long as the panel is not too high.
    void TryBeside(const Place& place, LegendSetting setting, Names names) {
        for (; setting.columns <= place.columns; ++setting.columns) {
            if (Try(place, setting, names) > 0.0) {
                return;
            }
        }
    }

    /// Below the map each further column leaves a larger map, until nothing more is
    /// gained.
    void TryBelow(const Place& place, LegendSetting setting, Names names) {
        const double one = m_sheet.OneColumn(setting).width;
        const int most =
            std::clamp(static_cast<int>(m_room.Width() / one), 1, kMostColumns);
        constexpr int kNarrower = 3;
        const bool isWhole = names == Names::AreWhole;
        setting.columns = isWhole ? most : std::min(most + kNarrower, kMostColumns);
        const int least = isWhole ? 1 : most;
        double before = 0.0;
        for (; setting.columns >= least; --setting.columns) {
            const double worth = Try(place, setting, names);
            if (worth < before) {
                return;
            }
            before = worth;
        }
    }

    /// @return how good it is; 0 where it does not fit, or cannot be the best
    double Try(const Place& place, const LegendSetting& setting, Names names) {
        Cells bound;
        bound.setting = setting;
        bound.names = names;
        bound.map = {0.0, 0.0, place.most, 1.0};
        const double width =
            place.isBeside ? place.columns * m_sheet.measures.column : m_room.Width();
        const double em = UnitsFromPoints(setting.points);
        if (WorthOf(bound, m_sheet.measures) <= m_worth ||
            (setting.columns > 1 && width / setting.columns <= kLeastColumn * em)) {
            return 0.0;
        }
        return Keep(CellsIn(m_sheet, place, setting, names));
    }

    double Keep(const std::optional<Cells>& cells) {
        const double worth = cells ? WorthOf(*cells, m_sheet.measures) : 0.0;
        if (worth > m_worth * (1.0 + 1e-9)) {
            m_worth = worth;
            m_best = cells;
        }
        return worth;
    }

    const Sheet& m_sheet;
    Box m_room;
    LayoutDesign m_design;
    std::vector<Place> m_places;
    double m_worth = 0.0;
    std::optional<Cells> m_best;
};

struct LeftOut {
    const char* name;
    void (*leaveOut)(Furniture&);
    bool (*isThere)(const Furniture&);
};

// In this order, until the rest fits.
constexpr LeftOut kLeftOutFirst[] = {
    {"legend", [](Furniture& all) { all.legend = false; },
     [](const Furniture& all) { return all.legend; }},
    {"numeric scale", [](Furniture& all) { all.scale = 0.0; },
     [](const Furniture& all) { return all.scale > 0.0; }},
    {"scale bar", [](Furniture& all) { all.bar = 0.0; },
     [](const Furniture& all) { return all.bar > 0.0; }},
    {"north arrow", [](Furniture& all) { all.arrow = false; },
     [](const Furniture& all) { return all.arrow; }},
    {"picture", [](Furniture& all) { all.picture = false; },
     [](const Furniture& all) { return all.picture; }},
};

std::optional<Cells> BestOf(const Sheet& sheet, const Box& room) {
    if (sheet.furniture.IsEmpty() && sheet.design.layout == LayoutDesign::Classic) {
        Cells cells;
        cells.map = FitMap(room, sheet.shape);
        return cells;
    }
    return Search(sheet, room).Best();
}

/// A legend is wanted, but not at the price of the map.
bool TakesTheMap(const Sheet& sheet, const Box& room, const Cells& cells) {
    if (!sheet.furniture.legend) {
        return false;
    }
    Sheet without = sheet;
    without.furniture.legend = false;
    const std::optional<Cells> best = BestOf(without, room);
    return best && AreaOf(cells.map) < kLeastWithLegend * AreaOf(best->map);
}

/// Moves everything into the middle of the sheet.
void CentreOnSheet(Cells& cells, const Box& room) {
    double bottom = cells.map.bottom;
    double top = cells.map.top;
    for (const auto cell : kCells) {
        if ((cells.*cell).Width() > 0.0) {
            bottom = std::min(bottom, (cells.*cell).bottom);
            top = std::max(top, (cells.*cell).top);
        }
    }
    const double down = ((top - room.top) + (bottom - room.bottom)) / 2.0;
    for (const auto cell : kCells) {
        (cells.*cell).bottom -= down;
        (cells.*cell).top -= down;
    }
}

}  // namespace

PaperSize Sheet::OneColumn(const LegendSetting& setting) const {
    const InkBox& ink = legend.Natural({1, measures.body, setting.gap});
    const double factor = setting.points / measures.body;
    return {ink.Width() * factor, ink.Height() * factor};
}

std::optional<InkBox> Sheet::LegendIn(const LegendSetting& setting, const PaperSize& room,
                                      Names names) const {
    constexpr double kRounding = 1.0;
    // Measuring a long legend takes milliseconds: one that is far too large in one column
    // is not measured in several.
    constexpr double kSurely = 0.75;
    const PaperSize one = OneColumn(setting);
    const bool isWide = one.width * setting.columns * kSurely > room.width;
    if (one.height * kSurely > room.height * setting.columns ||
        (names == Names::AreWhole && setting.columns > 1 && isWide)) {
        return std::nullopt;
    }
    const bool isWhole = !isWide && legend.Natural(setting).Width() <= room.width;
    if (isWhole != (names == Names::AreWhole)) {
        return std::nullopt;
    }
    const InkBox ink =
        isWhole ? legend.Natural(setting) : legend.Set(setting, room.width);
    const bool fits =
        ink.Width() <= room.width + kRounding && ink.Height() <= room.height;
    return fits && (isWhole || legend.IsCut() == (names == Names::AreCut))
               ? std::optional<InkBox>(ink)
               : std::nullopt;
}

Cells Arrange(Sheet& sheet, std::vector<std::string>& remarks) {
    const PaperSize& paper = sheet.design.paper;
    const Box inner = Inset({0.0, 0.0, paper.width, paper.height}, sheet.measures.margin);
    Box room = inner;
    Box title;
    std::optional<TitleBlock> words;
    if (sheet.design.layout == LayoutDesign::Classic) {
        const std::optional<TitleBlock> block =
            SetTitle(sheet.design, sheet.measures, sheet.title, room.Width(),
                     kMostOfTitle * room.Height());
        words = block;
        if (block) {
            title = {room.MiddleX() - block->width / 2.0, room.top - block->height,
                     room.MiddleX() + block->width / 2.0, room.top};
            room.top = title.bottom - sheet.measures.gap;
        }
    }
    std::optional<Cells> cells = BestOf(sheet, room);
    for (const LeftOut& part : kLeftOutFirst) {
        if (cells && !TakesTheMap(sheet, room, *cells)) {
            break;
        }
        if (part.isThere(sheet.furniture)) {
            remarks.push_back(std::string("the ") + part.name +
                              " is left out: there is no room for it");
            part.leaveOut(sheet.furniture);
            cells = BestOf(sheet, room);
        }
    }
    if (!cells) {
        cells.emplace();
        cells->map = FitMap(room, sheet.shape);
    }
    if (title.Width() > 0.0) {
        cells->title = title;
        cells->words = words;
    }
    CentreOnSheet(*cells, inner);
    return *cells;
}

}  // namespace host
