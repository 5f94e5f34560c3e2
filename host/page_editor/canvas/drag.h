#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "page_editor/editing/element_scale.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/editing/snap.h"

namespace page_editor {

/// How a drag follows the pointer.
struct DragRules {
    bool isFree = false;          ///< does not snap
    bool isProportioned = false;  ///< keeps proportions, or frees those that are kept
    double tolerance = 0.0;       ///< the reach of snapping, page units
};

/// What a drag shows besides the page.
struct DragMarks {
    std::vector<double> x;  ///< vertical lines that it snapped to, page units
    std::vector<double> y;
    std::optional<host::Box> outline;  ///< the frame when the drag ends
};

/// Changes the page while the mouse button is held down. Ends in one command, or in none
/// when it is cancelled.
class Drag {
public:
    Drag() = default;
    Drag(const Drag&) = delete;
    Drag& operator=(const Drag&) = delete;
    virtual ~Drag() = default;

    /// The pointer is at a point of the page.
    virtual void To(CPoint2D point, const DragRules& rules) = 0;
    virtual void End() = 0;
    virtual void Cancel() = 0;

    /// The items that the last To changed: only moved, or changed in shape too.
    virtual const Indices& Items() const = 0;
    virtual bool ChangesShape() const { return false; }

    const DragMarks& Marks() const { return m_marks; }

protected:
    DragMarks m_marks;
};

/// Moves the selected items.
std::unique_ptr<Drag> MoveSelected(PageDocument& document, CPoint2D from);

/// Drags a handle of an item. An element grows with its frame; a map is only outlined
/// until the end, since a new size means reading its rasters again.
std::unique_ptr<Drag> PullHandle(PageDocument& document, std::size_t item, int handle,
                                 CPoint2D from);

/// Selects the items within a rectangle, in addition to those already selected.
std::unique_ptr<Drag> SelectWithin(PageDocument& document, CPoint2D from);

}  // namespace page_editor
