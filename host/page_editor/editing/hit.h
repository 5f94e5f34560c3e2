#pragma once

#include <optional>

#include "page_editor/editing/page_document.h"

namespace page_editor {

/// What lies under a point of the page.
struct Hit {
    std::optional<std::size_t> item;
    int handle = -1;  ///< of that item, which is selected; -1 for none
};

/// The handle of a selected item, else the topmost item. An empty frame without a
/// background is transparent wherever something else lies.
/// @param tolerance how close to a handle counts as a hit, page units
Hit HitAt(PageDocument& document, CPoint2D point, double tolerance);

}  // namespace page_editor
