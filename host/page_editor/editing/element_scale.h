#pragma once

#include <string>
#include <utility>
#include <vector>

#include "page/document/property.h"
#include "page_editor/editing/arrange.h"

namespace page_editor {

/// The lengths of an item's element when resizing of its frame began, so that element and
/// frame grow together.
class ElementScale {
public:
    explicit ElementScale(const host::PageItem& item);

    /// Whether the element has proportions of its own, which its frame then keeps: all
    /// but north arrows, empty frames and maps.
    bool HasProportions() const { return m_hasProportions; }
    /// Whether there is an element that grows with the frame.
    bool HasElement() const { return !m_lengths.empty(); }

    /// Scales the element to its frame's new extent, and measures it: a title gets larger
    /// type, a scale bar longer divisions of a larger value.
    void Apply(host::PageItem& item, const host::Box& extent) const;

private:
    host::Box m_extent;
    bool m_hasProportions = false;
    std::vector<std::pair<const host::Property*, double>> m_lengths;
};

}  // namespace page_editor
