#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "map_surround/kit/classification_table.h"

class GDALRasterBand;

namespace host {

using map_surround::kit::ClassColour;
using map_surround::kit::ClassificationTable;

/// The classes that a band's attribute table, palette and category names define: the
/// class of a value, its name and its colour. A value that none of them knows is a class
/// of its own, named by the value, in grey.
///
/// An attribute table's columns are found by their usage, else by their common names
/// ("Value", "Red", "Class_Name", …); failing those, a column of text is the name.
class RasterClasses {
public:
    explicit RasterClasses(GDALRasterBand& band);

    /// Whether the band has a palette, or a table that says more than a histogram does.
    bool Any() const;

    /// Whether an attribute table or category names say what values stand for.
    bool HasNames() const;

    /// The colours of a palette from one value to another, where they form a ramp: 32 or
    /// more, opaque, none far from the one before it. Otherwise empty.
    std::vector<ClassColour> Ramp(double first, double last) const;

    /// The value that represents a value's class: the low end of its range in the table,
    /// else the value itself. Classes are in this order.
    double ClassOf(double value) const;

    std::wstring Name(double classValue) const;
    ClassColour Colour(double classValue) const;

private:
    struct Row {
        double low = 0.0;
        double high = 0.0;  ///< included
        std::wstring name;
        std::optional<ClassColour> colour;
    };

    void ReadAttributeTable(GDALRasterBand& band);
    const Row* Find(double value) const;
    const Row* RowOf(double classValue) const;

    std::vector<Row> m_rows;  ///< by their low ends
    std::vector<ClassColour> m_palette;
    std::vector<std::wstring> m_names;
};

}  // namespace host
