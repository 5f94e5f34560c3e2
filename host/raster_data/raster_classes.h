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

/// The classes that a band's attribute table, palette and category names define: which
/// class a value belongs to, its name and its colour. What none of them knows is a class
/// of its own, called by its value, in grey.
///
/// Of an attribute table the columns count by their usage, else by their common names
/// ("Value", "Red", "Class_Name", …); a column of texts is a name when no other is one.
class RasterClasses {
public:
    explicit RasterClasses(GDALRasterBand& band);

    /// Whether the band has a palette, or a table that says more than a histogram does.
    bool Any() const;

    /// Whether an attribute table or category names say what values stand for.
    bool HasNames() const;

    /// The colours of a palette from one value to another, where they are a ramp: 32 or
    /// more, opaque, none far from the one before it. Else none.
    std::vector<ClassColour> Ramp(double first, double last) const;

    /// The value that stands for a value's class: the low end of its range in the table,
    /// else itself. Classes are in the order of these.
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
