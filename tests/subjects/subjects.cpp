#include "subjects/subjects.h"

#include <type_traits>
#include <utility>

#include "page/catalogue.h"
#include "scale_bar/bar_row.h"
#include "title_picture/image_file.h"

namespace subjects {

const wchar_t kLongText[] =
    L"Land use of the lower valley, 影像 and \U0001F5FA, as surveyed from the air in the "
    L"dry season";

const std::wstring& ImagePath() {
    static const ImageFolder folder;
    static const std::wstring path = folder.WriteBmp(
        "a logo whose name is longer than any buffer that is meant for names.bmp", 12, 8,
        0x208040);
    return path;
}

namespace {

const CPoint kCentre(60, 40);
constexpr double kScale = 1.25;

/// A row of an element's class, set up by a function of the element, and of its subject
/// where that is asked for.
template <typename Element, typename Set>
Row Of(std::string family, std::string name, bool turns, Set set) {
    return {std::move(family), std::move(name), turns, [set] {
                auto subject = std::make_unique<Subject>();
                auto element = std::make_unique<Element>();
                if constexpr (std::is_invocable_v<Set, Element&, Subject&>) {
                    set(*element, *subject);
                } else {
                    set(*element);
                }
                subject->element = std::move(element);
                return subject;
            }};
}

/// A row of a style of the catalogue.
template <typename Set>
Row Of(const host::CatalogueEntry& style, std::string name, bool turns, Set set) {
    return {style.className + 1,  // "ScaleLine" of CScaleLine
            std::move(name), turns, [make = style.make, set] {
                auto subject = std::make_unique<Subject>();
                subject->element = make();
                set(*subject->element);
                return subject;
            }};
}

template <typename Set>
Row Title(std::string name, bool turns, Set set) {
    return Of<CMapTitle>("Title", std::move(name), turns, set);
}
template <typename Set>
Row Picture(std::string name, bool turns, Set set) {
    return Of<CDrawPicture>("Picture", std::move(name), turns, set);
}
template <typename Set>
Row Legend(std::string name, Set set) {
    return Of<CMapLegend>(
        "Legend", std::move(name), false, [set](CMapLegend& legend, Subject& subject) {
            subject.sources = std::make_unique<Sources>();
            Sources& sources = *subject.sources;
            sources.ramp.band.highest = 1234567.0;
            sources.ramp.band.lowest = -1234567.0;
            sources.classes.table.items = {
                {L"water", 0, 0, 255}, {L"", 9, 9, 9}, {kLongText, 1, 2, 3}};
            sources.hidden.available = {false};
            legend.SetTitleValue(L"Legend of the map");
            set(legend, sources);
        });
}
template <typename Set>
Row Frame(std::string name, bool turns, Set set) {
    return {"Frame", std::move(name), turns, [set] {
                auto subject = std::make_unique<Subject>();
                subject->frame = std::make_unique<CSurroundFrame>();
                set(*subject->frame);
                return subject;
            }};
}

void AddTitles(std::vector<Row>& rows) {
    rows.push_back(Title("plain", true, [](CMapTitle& title) {
        title.SetFontValue(L"Map");
        title.SetFontStyle(L"Arial");
    }));
    rows.push_back(Title("long and turned", true, [](CMapTitle& title) {
        title.SetFontValue(kLongText);
        title.SetFontStyle(L"Times New Roman");
        title.SetFontProcess(FontProcessBoldItalic);
        title.SetFontSize(7.5);
        title.SetAngle(33.0f);
    }));
    rows.push_back(Title("without a text", false, [](CMapTitle&) {}));
    rows.push_back(Title("without a family", true,
                         [](CMapTitle& title) { title.SetFontValue(L"Map"); }));
    rows.push_back(Title("of a family with a long name", true, [](CMapTitle& title) {
        title.SetFontValue(L"Map");
        title.SetFontStyle(kLongText);
    }));
}

void AddPictures(std::vector<Row>& rows) {
    rows.push_back(Picture("plain", true, [](CDrawPicture&, Subject& subject) {
        subject.path = ImagePath();
    }));
    rows.push_back(Picture("turned", true, [](CDrawPicture& picture, Subject& subject) {
        subject.path = ImagePath();
        picture.SetAngle(-70.0f);
    }));
    rows.push_back(
        Picture("of a missing file", true, [](CDrawPicture&, Subject& subject) {
            subject.path = ImagePath() + L"missing";
        }));
    rows.push_back(Picture("never opened", false, [](CDrawPicture&) {}));
}

void AddLegends(std::vector<Row>& rows) {
    rows.push_back(Legend("of nothing", [](CMapLegend&, Sources&) {}));
    rows.push_back(Legend("of bands", [](CMapLegend& legend, Sources& sources) {
        legend.SetDataSouce({&sources.bands});
    }));
    rows.push_back(Legend("of a ramp", [](CMapLegend& legend, Sources& sources) {
        legend.SetDataSouce({&sources.ramp});
    }));
    rows.push_back(
        Legend("of classes, growing", [](CMapLegend& legend, Sources& sources) {
            sources.classes.table.missing = 1;
            legend.SetSizeAspect(1.5f);
            legend.SetDataSouce({&sources.classes});
        }));
    rows.push_back(
        Legend("without what it lists", [](CMapLegend& legend, Sources& sources) {
            sources.ramp.hasBand = false;
            sources.classes.hasTable = false;
            legend.SetTitleValue(kLongText);
            legend.SetTitle(kLongText);
            legend.SetFileName(L"");
            legend.SetDataSouce({&sources.ramp, &sources.classes});
        }));
    rows.push_back(Legend("in columns", [](CMapLegend& legend, Sources& sources) {
        legend.SetColumns(2);
        legend.SetDataSouce({&sources.classes, &sources.ramp, &sources.bands});
    }));
    rows.push_back(Legend("of a crowd", [](CMapLegend& legend, Sources& sources) {
        legend.SetFileName(L"Times New Roman");
        legend.SetTitleStyle(Gdiplus::FontStyleItalic);
        legend.SetTitleColor(Gdiplus::Color(0xFF102030));
        legend.SetFileColor(Gdiplus::Color(0xFF405060));
        legend.SetDataSouce({&sources.vector, &sources.bare, nullptr, &sources.hidden,
                             &sources.classes, &sources.bands});
    }));
}

void AddArrows(std::vector<Row>& rows, const host::CatalogueEntry& style) {
    const auto add = [&](const char* name, auto set) {
        rows.push_back(Of(style, name, true, set));
    };
    add("plain", [](CMapSurround& arrow) { arrow.SetSize(50); });
    add("red and turned", [](CMapSurround& arrow) {
        arrow.SetSize(37);
        arrow.SetAngle(120.0f);
        arrow.SetFrontColor(Gdiplus::Color(0xFFFF0000));
    });
    add("without a size", [](CMapSurround&) {});
}

void AddBars(std::vector<Row>& rows, const host::CatalogueEntry& style) {
    using scale_bar_test::BarRow;
    const auto add = [&](const char* name, auto set) {
        rows.push_back(Of(style, name, false, [set](CMapSurround& element) {
            auto& bar = dynamic_cast<CScaleBarBase&>(element);
            BarRow row;
            set(row);
            SetProperties(bar, row);
            bar.SetUnitsName(L"nautical miles");
        }));
    };
    add("plain", [](BarRow&) {});
    add("with long labels and the unit before", [](BarRow& row) {
        row.paperToData = 25e6;
        row.mainCount = 3;
        row.subCount = 2;
        row.unitPosition = UnitPosBefore;
        row.color = 0x80FF7F00;
    });
    add("with decimals and the unit nowhere", [](BarRow& row) {
        row.paperToData = 0.037;
        row.mainCount = 2;
        row.subCount = 0;
        row.unitPosition = 7;
    });
    add("without sub-divisions", [](BarRow& row) { row.subCount = -1; });
    add("without a division", [](BarRow& row) { row.mainCount = 0; });
    add("with fewer divisions than none", [](BarRow& row) { row.mainCount = -1; });
    add("without a size", [](BarRow& row) { row.size = 0; });
    add("without a scale", [](BarRow& row) { row.paperToData = 0.0; });
}

void AddFrames(std::vector<Row>& rows) {
    rows.push_back(Frame("bare and empty", false, [](CSurroundFrame&) {}));
    rows.push_back(Frame("with all there is", true, [](CSurroundFrame& frame) {
        frame.DrawBorder = frame.DashedBorder = frame.DrawShadow = frame.DrawFill = true;
        frame.BorderWidth = 2.0f;
        frame.ShadowRatioX = frame.ShadowRatioY = 0.05f;
        auto title = std::make_unique<CMapTitle>();
        title->SetFontValue(kLongText);
        title->SetFontStyle(L"Arial");
        frame.SetMapSurround(title.release());
    }));
    rows.push_back(Frame("with a border of no width", false, [](CSurroundFrame& frame) {
        frame.DrawBorder = true;
        frame.BorderWidth = 0.0f;
        frame.SetMapSurround(std::make_unique<CScaleLine>().release());
    }));
    rows.push_back(Frame("with a shadow to the right", false, [](CSurroundFrame& frame) {
        frame.DrawShadow = true;
        frame.ShadowRatioX = 0.05f;
    }));
    rows.push_back(Frame("with a shadow below", false, [](CSurroundFrame& frame) {
        frame.DrawShadow = true;
        frame.ShadowRatioY = 0.05f;
    }));
    // Which loses the border's width, so that the second drawing differs from the first.
    rows.push_back(
        Frame("with a shadow right below it", false, [](CSurroundFrame& frame) {
            frame.DrawBorder = frame.DrawShadow = true;
            frame.BorderWidth = 3.0f;
        }));
}

std::vector<Row> AllRows() {
    std::vector<Row> rows;
    AddTitles(rows);
    AddPictures(rows);
    AddLegends(rows);
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundNorthArrow)) {
        AddArrows(rows, *style);
    }
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundScaleBar)) {
        AddBars(rows, *style);
    }
    AddFrames(rows);
    return rows;
}

}  // namespace

void Subject::Measure() {
    if (!path.empty()) {
        dynamic_cast<CDrawPicture&>(*element).Open(path.c_str());
    }
    CMapSurround* const measured =
        frame == nullptr ? element.get() : frame->GetMapSurround();
    if (measured != nullptr) {
        measured->ResetAspectRatio();
    }
}

void Subject::Draw(Gdiplus::Graphics* graphics) {
    if (frame != nullptr) {
        frame->DrawFrame(graphics, CRect(10, 10, 110, 70));
        frame->Draw(graphics, kCentre, kScale);
    } else {
        element->Draw(graphics, kCentre, kScale);
    }
}

const std::vector<Row>& Rows() {
    static const std::vector<Row> rows = AllRows();
    return rows;
}

std::vector<std::string> Families() {
    std::vector<std::string> families;
    for (const Row& row : Rows()) {
        if (families.empty() || families.back() != row.family) {
            families.push_back(row.family);
        }
    }
    return families;
}

}  // namespace subjects
