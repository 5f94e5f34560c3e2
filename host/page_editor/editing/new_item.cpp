#include "page_editor/editing/new_item.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "map_surround/map_surround.h"
#include "page/document/picture_file.h"
#include "page/element_of.h"
#include "page/layout/legend_draft.h"
#include "page/layout/map_on_page.h"
#include "page/layout/steps.h"
#include "page_editor/editing/arrange.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/editing/separate_reading.h"
#include "system/utf8.h"

namespace page_editor {
namespace {

using Frame = std::unique_ptr<CSurroundFrame>;

/// The first map of a page and what the page says of it.
struct PlacedMap {
    host::MapOnPage map;
    host::Box room;
    std::vector<std::string> paths;
};

PlacedMap FirstMap(const host::Page& page) {
    for (const host::PageItem& item : page.Items()) {
        if (const auto layers = host::LayersOf(item)) {
            const auto& map = std::get<host::MapFrame>(item);
            const host::Box box = host::BoxOf(map.frame.GetExtent());
            return {host::DescribeMap(layers),
                    {box.left, box.bottom, box.right, box.top},
                    map.rasterPaths};
        }
    }
    return {};
}

/// Lays out an item of a type on this sheet.
class Placing {
public:
    explicit Placing(const host::Page& page)
        : m_map(FirstMap(page)),
          m_measures({page.Width(), page.Height()}),
          m_room{page.Width() / 3.0, page.Height() / 3.0, page.Width() * 2.0 / 3.0,
                 page.Height() * 2.0 / 3.0} {
        m_design.paper = {page.Width(), page.Height()};
        m_design.language = &host::LanguageOfLocale();
    }

    std::unique_ptr<CSurroundFrame> ScaleBar(const host::CatalogueEntry& style) {
        m_design.scaleBar.style = &style;
        return Alone(host::PlaceScaleBar(m_design, m_map.map, Shown(), m_measures, m_room,
                                         m_remarks));
    }

    std::unique_ptr<CSurroundFrame> NorthArrow(const host::CatalogueEntry& style) {
        m_design.northArrow.style = &style;
        const host::Box room = {0.0, 0.0, m_measures.column, m_measures.column};
        auto frame = host::PlaceNorthArrow(m_design, m_map.map, Shown(), m_measures, room,
                                           m_remarks);
        if (frame == nullptr) {  // without a map, north is up
            m_design.northArrow.angle = 0.0;
            m_remarks.clear();
            frame = host::PlaceNorthArrow(m_design, m_map.map, Shown(), m_measures, room,
                                          m_remarks);
        }
        return frame;
    }

    std::unique_ptr<CSurroundFrame> Legend() {
        host::LegendDraft draft(m_design, m_map.map);
        if (!draft.IsWanted()) {
            return nullptr;
        }
        draft.Set({1, m_measures.body}, m_room.Width() - 2.0 * m_measures.space);
        auto frame = draft.Take();
        frame->SetRasterPaths(m_map.paths);
        frame->SetExtent(BoundingBoxOf(m_room));
        Decorate(*frame, m_room, m_design.frames, m_measures);
        return Alone(std::move(frame));
    }

    std::unique_ptr<CSurroundFrame> Title() {
        m_design.title.text = L"Title";
        const auto words =
            host::SetTitle(m_design, m_measures, host::TitleLines(m_design.title),
                           m_design.paper.width, m_design.paper.height);
        const host::Box cell = {0.0, 0.0, words->width, words->height};
        return host::PlaceTitle(m_design, m_measures, *words, cell, m_remarks);
    }

    std::unique_ptr<CSurroundFrame> Picture(const std::string& path) {
        host::Widen(path, m_design.picture.path);
        const host::Box room = {0.0, 0.0, m_measures.column, m_measures.column};
        return Alone(host::PlacePicture(m_design, m_measures, room));
    }

    /// A frame around any element; an empty one is as large as the room.
    std::unique_ptr<CSurroundFrame> Any(const host::ItemType& type) {
        host::PageItem item = type.make();
        auto& frame = *host::FrameAs<host::PlacedFrame>(item);
        frame.DrawBorder = true;
        auto* const element = host::ElementOf<CMapSurround>(frame);
        if (element == nullptr) {
            frame.SetExtent(BoundingBoxOf(m_room));
            return std::get<Frame>(std::move(item));
        }
        if (auto* const legend = host::ElementOf<CMapLegend>(frame)) {
            auto& legendFrame = *host::FrameAs<host::LegendFrame>(item);
            legendFrame.SetJoinsTiles(true);
            legendFrame.SetExplainsRamps(true);
            host::DressLegend(*legend, m_design);  // so that its title shows
        }
        if (auto* const bar = host::FrameAs<host::ScaleBarFrame>(item)) {
            bar->SetLanguage(*m_design.language);
            host::ElementOf<CScaleBarBase>(frame)->SetUnitsNameVerbatim(
                m_design.language->mapUnit);  // whatever its numbers are in
            bar->SetDivisionLength(m_room.Width() / 5.0);
        }
        element->ResetAspectRatio();
        const host::InkBox ink = host::MeasureInk(frame);
        const double rim = m_measures.module;
        frame.SetExtent({0.0, 0.0, ink.Width() + rim, ink.Height() + rim});
        frame.SetElementOffset((ink.left - ink.right) / 2.0, (ink.down - ink.up) / 2.0);
        return std::get<Frame>(std::move(item));
    }

    /// A map as large as fits in two thirds of the sheet.
    host::PageItem Map(const std::vector<std::string>& paths, host::RasterStore& rasters,
                       const host::Progress& reading) const {
        TryRasters(paths, rasters, reading);
        const auto layers = rasters.Map(paths, std::nullopt);
        const host::Box room =
            host::Inset({0.0, 0.0, m_design.paper.width, m_design.paper.height},
                        m_design.paper.height / 6.0);
        host::MapFrame map = host::PlaceMap(host::FitMap(room, {layers->AspectRatio()}),
                                            layers, m_measures);
        map.rasterPaths = paths;
        return map;
    }

    const std::vector<std::string>& Remarks() const { return m_remarks; }

private:
    /// A frame that stands by itself is no larger than its element requires.
    std::unique_ptr<host::PlacedFrame> Alone(
        std::unique_ptr<host::PlacedFrame> frame) const {
        if (frame != nullptr) {
            ShrinkToInk(*frame, m_measures);
        }
        return frame;
    }

    host::ShownMap Shown() const { return host::Shown({}, m_map.map, m_map.room); }

    PlacedMap m_map;
    host::PageDesign m_design;
    host::Measures m_measures;
    host::Box m_room;
    std::vector<std::string> m_remarks;
};

/// As the layout places it; null where that finds nothing to show.
Frame Framed(const host::CatalogueEntry& element, Placing& placing,
             const std::vector<std::string>& files) {
    switch (element.family) {
        case SurroundScaleBar:
            return placing.ScaleBar(element);
        case SurroundNorthArrow:
            return placing.NorthArrow(element);
        case SurroundLegend:
            return placing.Legend();
        case SurroundMapTitle:
            return placing.Title();
        case SurroundPicture:
            return files.empty() ? nullptr : placing.Picture(files.front());
        case SurroundNone:
            break;
    }
    return nullptr;
}

void Centre(CFrameBase& frame, const host::Page& page) {
    const host::Box box = host::BoxOf(frame.GetExtent());
    frame.SetOffset(page.Width() / 2.0 - box.MiddleX(),
                    page.Height() / 2.0 - box.MiddleY());
}

}  // namespace

host::PageItem NewItem(const host::ItemType& type, const host::Page& page,
                       host::RasterStore& rasters, const std::vector<std::string>& files,
                       const host::Progress& reading, std::vector<std::string>* remarks) {
    Placing placing(page);
    if (type.name == std::string_view(host::kMapType) && !files.empty()) {
        return placing.Map(files, rasters, reading);
    }
    const bool isPicture =
        type.element != nullptr && type.element->family == SurroundPicture;
    if (isPicture && !files.empty()) {
        TryImage(files.front(), reading);
        const std::string why = host::CheckImageFile(files.front());
        if (!why.empty()) {
            throw host::PageError("", why);
        }
    }
    Frame frame =
        type.element == nullptr ? nullptr : Framed(*type.element, placing, files);
    const bool isAsLaidOut = frame != nullptr;
    if (!isAsLaidOut) {
        frame = placing.Any(type);
    }
    Centre(*frame, page);
    if (remarks != nullptr && isAsLaidOut) {
        *remarks = placing.Remarks();
    }
    return frame;
}

}  // namespace page_editor
