#include "page_editor/canvas/drag.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "page_editor/editing/resize.h"

namespace page_editor {
namespace {

/// The lines of the sheet and of all items except some.
SnapLines LinesOf(const PageDocument& document, const Indices& but) {
    SnapLines lines;
    lines.Add({0.0, 0.0, document.Page().Width(), document.Page().Height()});
    for (std::size_t i = 0; i < document.Count(); ++i) {
        if (!std::binary_search(but.begin(), but.end(), i)) {
            lines.Add(host::BoxOf(document.Extent(i)));
        }
    }
    return lines;
}

/// The distance after snapping in one direction: to the nearest line, else to whole
/// units.
double Snapped(double distance, std::vector<double> places,
               const std::vector<double>& lines, const DragRules& rules,
               std::vector<double>& marks) {
    if (rules.isFree) {
        return distance;
    }
    for (double& place : places) {
        place += distance;
    }
    if (const auto snap = NearestLine(places, lines, rules.tolerance)) {
        marks.push_back(snap->line);
        return distance + snap->offset;
    }
    return std::round(distance);
}

class MoveDrag : public Drag {
public:
    MoveDrag(PageDocument& document, CPoint2D from)
        : m_document(document),
          m_from(from),
          m_items(document.Selection()),
          m_lines(LinesOf(document, m_items)) {
        for (const std::size_t item : m_items) {
            m_extents.push_back(document.Extent(item));
            m_boxes.push_back(host::BoxOf(m_extents.back()));
        }
    }

    void To(CPoint2D point, const DragRules& rules) override {
        m_marks = {};
        const host::Box all = Around(m_boxes);
        const double dx =
            Snapped(point.x - m_from.x, {all.left, all.MiddleX(), all.right}, m_lines.x,
                    rules, m_marks.x);
        const double dy =
            Snapped(point.y - m_from.y, {all.bottom, all.MiddleY(), all.top}, m_lines.y,
                    rules, m_marks.y);
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            CFrameBase& frame = m_document.Frame(m_items[i]);
            frame.SetExtent(m_extents[i]);  // always from the start: sums would drift
            frame.SetOffset(dx, dy);
        }
    }

    void End() override { m_document.Commit("Move"); }
    void Cancel() override { m_document.Revert(m_items); }
    const Indices& Items() const override { return m_items; }

private:
    PageDocument& m_document;
    CPoint2D m_from;
    Indices m_items;
    SnapLines m_lines;
    std::vector<CBoundingBox> m_extents;
    std::vector<host::Box> m_boxes;
};

class ResizeDrag : public Drag {
public:
    ResizeDrag(PageDocument& document, std::size_t item, int handle, CPoint2D from)
        : m_document(document),
          m_items{item},
          m_handle(handle),
          m_from(from),
          m_box(host::BoxOf(document.Extent(item))),
          m_scale(document.Item(item)),
          m_isMap(std::holds_alternative<host::MapFrame>(document.Item(item))),
          m_lines(LinesOf(document, m_items)) {}

    void To(CPoint2D point, const DragRules& rules) override {
        m_marks = {};
        const CPoint2D handle = HandleAt(m_box, m_handle);
        const CPoint2D to = {handle.x + Snapped(point.x - m_from.x, {handle.x}, m_lines.x,
                                                rules, m_marks.x),
                             handle.y + Snapped(point.y - m_from.y, {handle.y}, m_lines.y,
                                                rules, m_marks.y)};
        const bool proportions = m_scale.HasProportions() != rules.isProportioned;
        m_marks.outline = Resized(m_box, m_handle, to, proportions);
        if (proportions || PullOf(m_handle).x == 0) {
            m_marks.x.clear();
        }
        if (proportions || PullOf(m_handle).y == 0) {
            m_marks.y.clear();
        }
        if (!m_isMap) {
            m_scale.Apply(m_document.Item(m_items.front()), *m_marks.outline);
        }
    }

    void End() override {
        if (!m_marks.outline) {
            return;
        }
        m_document.ChangeItems(m_items, "Resize", [this](host::PageItem& item) {
            m_scale.Apply(item, *m_marks.outline);
        });
    }

    void Cancel() override { m_document.Revert(m_items); }
    const Indices& Items() const override { return m_isMap ? m_nothing : m_items; }
    bool ChangesShape() const override { return true; }

private:
    PageDocument& m_document;
    Indices m_items;
    Indices m_nothing;
    int m_handle;
    CPoint2D m_from;
    host::Box m_box;
    ElementScale m_scale;
    bool m_isMap;
    SnapLines m_lines;
};

class SelectionDrag : public Drag {
public:
    SelectionDrag(PageDocument& document, CPoint2D from)
        : m_document(document), m_from(from), m_before(document.Selection()) {}

    void To(CPoint2D point, const DragRules&) override {
        const host::Box band = host::BoxOf({m_from.x, m_from.y, point.x, point.y});
        m_marks.outline = band;
        Indices selection = m_before;
        for (std::size_t i = 0; i < m_document.Count(); ++i) {
            const host::Box box = host::BoxOf(m_document.Extent(i));
            if (box.left >= band.left && box.right <= band.right &&
                box.bottom >= band.bottom && box.top <= band.top) {
                selection.push_back(i);
            }
        }
        m_document.Select(std::move(selection));
    }

    void End() override {}
    void Cancel() override { m_document.Select(m_before); }
    const Indices& Items() const override { return m_nothing; }

private:
    PageDocument& m_document;
    CPoint2D m_from;
    Indices m_before;
    Indices m_nothing;
};

}  // namespace

std::unique_ptr<Drag> MoveSelected(PageDocument& document, CPoint2D from) {
    return std::make_unique<MoveDrag>(document, from);
}

std::unique_ptr<Drag> PullHandle(PageDocument& document, std::size_t item, int handle,
                                 CPoint2D from) {
    return std::make_unique<ResizeDrag>(document, item, handle, from);
}

std::unique_ptr<Drag> SelectWithin(PageDocument& document, CPoint2D from) {
    return std::make_unique<SelectionDrag>(document, from);
}

}  // namespace page_editor
