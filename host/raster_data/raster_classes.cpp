#include "raster_data/raster_classes.h"

#include <cpl_string.h>
#include <gdal_priv.h>
#include <gdal_rat.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <initializer_list>

#include "raster_data/gdal_session.h"

namespace host {

namespace {

// A longer table is not a legend.
constexpr int kMostRows = 1 << 20;

constexpr ClassColour kUnknown{128, 128, 128, 255};

// For tables that name their classes without colouring them: neighbours differ in hue and
// in lightness, so that they can be told apart in print.
constexpr std::array<ClassColour, 12> kQualitative{{
    {78, 121, 167, 255},
    {242, 179, 92, 255},
    {89, 161, 79, 255},
    {225, 87, 89, 255},
    {160, 203, 232, 255},
    {176, 122, 161, 255},
    {140, 209, 125, 255},
    {156, 117, 95, 255},
    {255, 157, 167, 255},
    {73, 152, 148, 255},
    {241, 206, 99, 255},
    {121, 112, 110, 255},
}};

/// The column with a usage, else one with one of those names and a generic usage; -1 when
/// there is neither.
int Column(const GDALRasterAttributeTable& table, GDALRATFieldUsage usage,
           std::initializer_list<const char*> names) {
    const int byUsage = table.GetColOfUsage(usage);
    if (byUsage >= 0) {
        return byUsage;
    }
    for (const char* name : names) {
        for (int i = 0; i < table.GetColumnCount(); ++i) {
            if (table.GetUsageOfCol(i) == GFU_Generic &&
                EQUAL(table.GetNameOfCol(i), name)) {
                return i;
            }
        }
    }
    return -1;
}

int NameColumn(const GDALRasterAttributeTable& table) {
    const int column = Column(table, GFU_Name,
                              {"Class_Name", "Class_Names", "ClassName", "Class Name",
                               "Name", "Label", "Class", "Category", "Description"});
    if (column >= 0) {
        return column;
    }
    for (int i = 0; i < table.GetColumnCount(); ++i) {
        if (table.GetTypeOfCol(i) == GFT_String &&
            table.GetUsageOfCol(i) == GFU_Generic) {
            return i;
        }
    }
    return -1;
}

/// A table's colour columns: 0 to 255, or fractions where none exceeds 1.
class ColourColumns {
public:
    ColourColumns(const GDALRasterAttributeTable& table, int rows)
        : m_table(table),
          m_red(Column(table, GFU_Red, {"Red", "R"})),
          m_green(Column(table, GFU_Green, {"Green", "G"})),
          m_blue(Column(table, GFU_Blue, {"Blue", "B"})),
          m_alpha(Column(table, GFU_Alpha, {"Alpha", "Opacity", "A"})) {
        if (Any() && table.GetTypeOfCol(m_red) == GFT_Real) {
            m_scale = 255.0;
            for (int row = 0; row < rows; ++row) {
                for (const int column : {m_red, m_green, m_blue}) {
                    m_scale = table.GetValueAsDouble(row, column) > 1.0 ? 1.0 : m_scale;
                }
            }
        }
    }

    bool Any() const { return m_red >= 0 && m_green >= 0 && m_blue >= 0; }

    ClassColour Of(int row) const {
        return {Component(row, m_red), Component(row, m_green), Component(row, m_blue),
                m_alpha < 0 ? static_cast<unsigned char>(255) : Component(row, m_alpha)};
    }

private:
    unsigned char Component(int row, int column) const {
        const double value = m_table.GetValueAsDouble(row, column) * m_scale;
        return value > 0.0 ? static_cast<unsigned char>(std::min(value + 0.5, 255.0))
                           : static_cast<unsigned char>(0);
    }

    const GDALRasterAttributeTable& m_table;
    int m_red;
    int m_green;
    int m_blue;
    int m_alpha;
    double m_scale = 1.0;
};

/// The values that a row of the table stands for.
class RowValues {
public:
    explicit RowValues(const GDALRasterAttributeTable& table)
        : m_table(table),
          m_low(Column(table, GFU_Min, {})),
          m_high(Column(table, GFU_Max, {})),
          m_value(Column(table, GFU_MinMax, {"Value"})) {
        m_binned =
            table.GetLinearBinning(&m_firstBin, &m_binSize) != 0 && m_binSize > 0.0;
    }

    double Low(int row) const {
        if (m_value >= 0) {
            return m_table.GetValueAsDouble(row, m_value);
        }
        if (m_low >= 0 && m_high >= 0) {
            return m_table.GetValueAsDouble(row, m_low);
        }
        return m_binned ? m_firstBin + row * m_binSize : row;
    }

    double High(int row) const {
        if (m_value >= 0) {
            return Low(row);
        }
        if (m_low >= 0 && m_high >= 0) {
            return m_table.GetValueAsDouble(row, m_high);
        }
        // Up to the start of the next bin, which belongs to that bin.
        return m_binned ? std::nextafter(Low(row + 1), Low(row)) : row;
    }

private:
    const GDALRasterAttributeTable& m_table;
    int m_low;
    int m_high;
    int m_value;
    bool m_binned = false;
    double m_firstBin = 0.0;
    double m_binSize = 0.0;
};

/// The list's entry for a class value; null where the value is not an index.
template <class T>
const T* At(const std::vector<T>& list, double value) {
    const bool isIndex = value >= 0.0 && value < static_cast<double>(list.size()) &&
                         value == std::floor(value);
    return isIndex ? &list[static_cast<std::size_t>(value)] : nullptr;
}

/// A whole number without decimals, any other with as many as distinguish it from its
/// neighbours.
std::wstring ValueText(double value) {
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    const bool isWhole = value == std::floor(value) && std::abs(value) < 1e15;
    const std::to_chars_result result =
        isWhole ? std::to_chars(text.data(), end, static_cast<std::int64_t>(value))
                : std::to_chars(text.data(), end, value);
    return {text.data(), result.ptr};
}

std::vector<ClassColour> ReadPalette(GDALRasterBand& band) {
    std::vector<ClassColour> palette;
    const GDALColorTable* const table = band.GetColorTable();
    const int count = table == nullptr ? 0 : table->GetColorEntryCount();
    for (int i = 0; i < count; ++i) {
        GDALColorEntry entry{};
        table->GetColorEntryAsRGB(i, &entry);
        const auto component = [](short value) {
            return static_cast<unsigned char>(std::clamp<int>(value, 0, 255));
        };
        palette.push_back({component(entry.c1), component(entry.c2), component(entry.c3),
                           component(entry.c4)});
    }
    return palette;
}

}  // namespace

RasterClasses::RasterClasses(GDALRasterBand& band) : m_palette(ReadPalette(band)) {
    ReadAttributeTable(band);
    char** const names = band.GetCategoryNames();
    for (int i = 0; i < CSLCount(names); ++i) {
        m_names.push_back(WideText(names[i]));
    }
}

void RasterClasses::ReadAttributeTable(GDALRasterBand& band) {
    const GDALRasterAttributeTable* const table = band.GetDefaultRAT();
    if (table == nullptr) {
        return;
    }
    const int nameColumn = NameColumn(*table);
    const int count = std::min(table->GetRowCount(), kMostRows);
    const ColourColumns colours(*table, count);
    if (table->GetTableType() == GRTT_ATHEMATIC && nameColumn < 0 && !colours.Any()) {
        return;  // the histogram of a continuous raster
    }
    const RowValues values(*table);
    for (int i = 0; i < count; ++i) {
        Row row;
        row.low = values.Low(i);
        row.high = values.High(i);
        if (!(row.low <= row.high)) {
            continue;
        }
        if (nameColumn >= 0) {
            row.name = WideText(table->GetValueAsString(i, nameColumn));
        }
        if (colours.Any()) {
            row.colour = colours.Of(i);
        } else if (m_palette.empty()) {
            row.colour = kQualitative[static_cast<std::size_t>(i) % kQualitative.size()];
        }
        m_rows.push_back(std::move(row));
    }
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](const Row& a, const Row& b) { return a.low < b.low; });
}

bool RasterClasses::Any() const { return !m_rows.empty() || !m_palette.empty(); }

bool RasterClasses::HasNames() const {
    return !m_rows.empty() ||
           std::any_of(m_names.begin(), m_names.end(),
                       [](const std::wstring& name) { return !name.empty(); });
}

std::vector<ClassColour> RasterClasses::Ramp(double first, double last) const {
    constexpr double kFewest = 32;
    constexpr int kLargestStep = 48;
    if (!(last - first >= kFewest - 1) || At(m_palette, first) == nullptr ||
        At(m_palette, last) == nullptr) {
        return {};
    }
    const std::vector<ClassColour> ramp(At(m_palette, first), At(m_palette, last) + 1);
    const auto areFar = [](const ClassColour& a, const ClassColour& b) {
        return std::abs(a.red - b.red) > kLargestStep ||
               std::abs(a.green - b.green) > kLargestStep ||
               std::abs(a.blue - b.blue) > kLargestStep;
    };
    const bool isRamp =
        std::adjacent_find(ramp.begin(), ramp.end(), areFar) == ramp.end() &&
        std::all_of(ramp.begin(), ramp.end(),
                    [](const ClassColour& colour) { return colour.alpha == 255; });
    return isRamp ? ramp : std::vector<ClassColour>();
}

const RasterClasses::Row* RasterClasses::Find(double value) const {
    auto row = std::upper_bound(m_rows.begin(), m_rows.end(), value,
                                [](double v, const Row& r) { return v < r.low; });
    const Row* found = nullptr;
    // A value where two ranges meet belongs to the lower one.
    for (int tries = 0; tries < 2 && row != m_rows.begin(); ++tries) {
        --row;
        found = value <= row->high ? &*row : found;
    }
    return found;
}

double RasterClasses::ClassOf(double value) const {
    const Row* const row = Find(value);
    return row == nullptr ? value : row->low;
}

const RasterClasses::Row* RasterClasses::RowOf(double classValue) const {
    const auto row = std::lower_bound(m_rows.begin(), m_rows.end(), classValue,
                                      [](const Row& r, double v) { return r.low < v; });
    return row != m_rows.end() && row->low == classValue ? &*row : nullptr;
}

std::wstring RasterClasses::Name(double classValue) const {
    const Row* const row = RowOf(classValue);
    if (row != nullptr && !row->name.empty()) {
        return row->name;
    }
    const std::wstring* const name = At(m_names, classValue);
    return name != nullptr && !name->empty() ? *name : ValueText(classValue);
}

ClassColour RasterClasses::Colour(double classValue) const {
    const Row* const row = RowOf(classValue);
    if (row != nullptr && row->colour) {
        return *row->colour;
    }
    const ClassColour* const entry = At(m_palette, classValue);
    return entry == nullptr ? kUnknown : *entry;
}

}  // namespace host
