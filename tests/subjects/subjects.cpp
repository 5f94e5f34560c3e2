#include "subjects/subjects.h"

#include <algorithm>
#include <utility>

#include "legend/fake_sources.h"
#include "map_surround/map_surround.h"
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

template <typename Element>
using Set = void (*)(Element&);

/// An element by itself.
template <typename Element>
class Held : public Subject {
public:
    explicit Held(Set<Element> set) { set(m_element); }

    void Measure() override { m_element.ResetAspectRatio(); }
    void Draw(Gdiplus::Graphics* graphics) override {
        m_element.Draw(graphics, kCentre, kScale);
    }

protected:
    Element m_element;
};

using Path = std::wstring (*)();

class HeldPicture : public Held<CDrawPicture> {
public:
    HeldPicture(Set<CDrawPicture> set, Path path) : Held(set), m_path(path()) {}

    void Measure() override {
        m_element.Open(m_path.c_str());
        Held::Measure();
    }

private:
    std::wstring m_path;
};

class HeldBar : public Subject {
public:
    HeldBar(const host::CatalogueEntry* style, const scale_bar_test::BarRow& row)
        : m_bar(host::NewElement<CScaleBarBase>(*style)) {
        SetProperties(*m_bar, row);
        m_bar->SetUnitsName(L"nautical miles");
    }

    void Measure() override { m_bar->ResetAspectRatio(); }
    void Draw(Gdiplus::Graphics* graphics) override {
        m_bar->Draw(graphics, kCentre, kScale);
    }

private:
    std::unique_ptr<CScaleBarBase> m_bar;
};

class HeldFrame : public Subject {
public:
    explicit HeldFrame(Set<CSurroundFrame> set) { set(m_frame); }

    void Measure() override {
        if (m_frame.GetMapSurround() != nullptr) {
            m_frame.GetMapSurround()->ResetAspectRatio();
        }
    }
    void Draw(Gdiplus::Graphics* graphics) override {
        m_frame.DrawFrame(graphics, CRect(10, 10, 110, 70));
        m_frame.Draw(graphics, kCentre, kScale);
    }

private:
    CSurroundFrame m_frame;
};

struct Sources {
    fakes::Raster bands{L"scene of the lower valley.tif", DisplayRGB};
    fakes::Raster ramp{L"heights above the sea.tif", DisplayGray};
    fakes::Raster classes{L"land cover.tif", DisplayClassified};
    fakes::Raster bare{L"shaded relief.tif", static_cast<DataDisplayType>(7)};
    fakes::Raster hidden{L"not available.tif", DisplayRGB};
    fakes::Vector vector;

    Sources() {
        ramp.band.highest = 1234567.0;
        ramp.band.lowest = -1234567.0;
        classes.table.items = {
            {L"water", 0, 0, 255}, {L"", 9, 9, 9}, {kLongText, 1, 2, 3}};
        hidden.available = {false};
    }
};

class HeldLegend : public Subject {
public:
    explicit HeldLegend(void (*set)(CMapLegend&, Sources&)) {
        m_legend.SetTitleValue(L"Legend of the map");
        set(m_legend, m_sources);
    }

    void Measure() override { m_legend.ResetAspectRatio(); }
    void Draw(Gdiplus::Graphics* graphics) override {
        m_legend.Draw(graphics, kCentre, kScale);
    }

private:
    Sources m_sources;
    CMapLegend m_legend;
};

template <typename Made, typename... Arguments>
Row Make(std::string family, std::string name, bool turns, Arguments... arguments) {
    return {std::move(family), std::move(name), turns,
            [=] { return std::make_unique<Made>(arguments...); }};
}

Row Title(std::string name, bool turns, Set<CMapTitle> set) {
    return Make<Held<CMapTitle>>("Title", std::move(name), turns, set);
}
Row Picture(std::string name, bool turns, Path path, Set<CDrawPicture> set) {
    return Make<HeldPicture>("Picture", std::move(name), turns, set, path);
}
Row Legend(std::string name, void (*set)(CMapLegend&, Sources&)) {
    return Make<HeldLegend>("Legend", std::move(name), false, set);
}
Row Frame(std::string name, bool turns, Set<CSurroundFrame> set) {
    return Make<HeldFrame>("Frame", std::move(name), turns, set);
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
    const Path aFile = [] { return ImagePath(); };
    rows.push_back(Picture("plain", true, aFile, [](CDrawPicture&) {}));
    rows.push_back(Picture("turned", true, aFile,
                           [](CDrawPicture& picture) { picture.SetAngle(-70.0f); }));
    rows.push_back(Picture(
        "of a missing file", true, [] { return ImagePath() + L"missing"; },
        [](CDrawPicture&) {}));
    rows.push_back(Make<Held<CDrawPicture>>("Picture", "never opened", false,
                                            Set<CDrawPicture>([](CDrawPicture&) {})));
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
    rows.push_back(Legend("of a crowd", [](CMapLegend& legend, Sources& sources) {
        legend.SetFileName(L"Times New Roman");
        legend.SetTitleStyle(Gdiplus::FontStyleItalic);
        legend.SetTitleColor(Gdiplus::Color(0xFF102030));
        legend.SetFileColor(Gdiplus::Color(0xFF405060));
        legend.SetDataSouce({&sources.vector, &sources.bare, nullptr, &sources.hidden,
                             &sources.classes, &sources.bands});
    }));
}

class HeldArrow : public Subject {
public:
    HeldArrow(const host::CatalogueEntry* style, Set<CMapSurround> set)
        : m_arrow(style->make()) {
        set(*m_arrow);
    }

    void Measure() override { m_arrow->ResetAspectRatio(); }
    void Draw(Gdiplus::Graphics* graphics) override {
        m_arrow->Draw(graphics, kCentre, kScale);
    }

private:
    std::unique_ptr<CMapSurround> m_arrow;
};

/// "ScaleLine" of CScaleLine.
std::string FamilyOf(const host::CatalogueEntry& entry) { return entry.className + 1; }

void AddArrows(std::vector<Row>& rows, const host::CatalogueEntry& style) {
    const auto add = [&](const char* name, Set<CMapSurround> set) {
        rows.push_back(Make<HeldArrow>(FamilyOf(style), name, true, &style, set));
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
        BarRow row;
        set(row);
        rows.push_back(Make<HeldBar>(FamilyOf(style), name, false, &style, row));
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
