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
    bool isFree = false;          ///< draws to no lines and no whole units
    bool isProportioned = false;  ///< the other way round where proportions are kept
    double tolerance = 0.0;       ///< how far lines draw, page units
};

/// What is shown of a drag besides the page.
struct DragMarks {
    std::vector<double> x;  ///< upright lines that it was drawn to, page units
    std::vector<double> y;
    std::optional<host::Box> outline;  ///< what will be when the drag ends
};

/// What happens to the page while the pointer is held down. Ends in one command, or in
/// none when it is cancelled.
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

    /// What the last To changed: moved only, or changed in shape too.
    virtual const Indices& Items() const = 0;
    virtual bool ChangesShape() const { return false; }

    const DragMarks& Marks() const { return m_marks; }

protected:
    DragMarks m_marks;
};

/// Moves the selected items.
std::unique_ptr<Drag> MoveSelected(PageDocument& document, CPoint2D from);

/// Pulls a handle of an item. An element grows with its frame; a map is only outlined
/// until the end, since its rasters are read anew for another size.
std::unique_ptr<Drag> PullHandle(PageDocument& document, std::size_t item, int handle,
                                 CPoint2D from);

/// Selects the items that lie in a rectangle, besides those selected before.
std::unique_ptr<Drag> SelectWithin(PageDocument& document, CPoint2D from);

}  // namespace page_editor
