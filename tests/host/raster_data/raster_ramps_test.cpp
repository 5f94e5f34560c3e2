// Palettes that are ramps rather than classes.

#include <cpl_string.h>
#include <gdal_priv.h>
#include <gdal_rat.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <utility>

#include "raster_data/make_raster.h"

namespace {

using raster_test::Raster;

/// Colours that change evenly, or up and down by a step.
raster_test::Palette PaletteOf(short step) {
    raster_test::Palette palette;
    for (short value = 0; value < 256; ++value) {
        const auto up = static_cast<short>(value % 2 * step);
        palette.emplace_back(
            value, step == 0
                       ? GDALColorEntry{value, static_cast<short>(255 - value), 7, 255}
                       : GDALColorEntry{7, up, static_cast<short>(200 - up), 255});
    }
    return palette;
}

void NameOne(GDALRasterBand& band) {
    std::vector<std::string> names(164);
    names[120] = "meadow";
    CPLStringList list;
    for (const std::string& name : names) {
        list.AddString(name.c_str());
    }
    band.SetCategoryNames(list.List());
}

void NameOneInATable(GDALRasterBand& band) {
    GDALDefaultRasterAttributeTable table;
    table.CreateColumn("Value", GFT_Integer, GFU_MinMax);
    table.CreateColumn("Class_Name", GFT_String, GFU_Name);
    table.SetValue(0, 0, 110);
    table.SetValue(0, 1, "meadow");
    band.SetDefaultRAT(&table);
}

const struct {
    const char* what;
    int first;
    int last;
    short step;
    std::optional<double> noData;
    std::size_t colours;  ///< of the ramp
    void (*describe)(GDALRasterBand&) = nullptr;
} kCases[] = {
    {"a ramp", 100, 163, 0, {}, 64},
    {"of all bytes", 0, 255, 0, {}, 256},
    {"of just enough values", 100, 131, 0, {}, 32},
    {"of too few", 100, 130, 0, {}, 0},
    {"steps as large as can be", 100, 163, 48, {}, 64},
    {"too large a step", 100, 163, 49, {}, 0},
    {"with a name", 100, 163, 0, {}, 0, NameOne},
    {"with an attribute table", 100, 163, 0, {}, 0, NameOneInATable},
    {"with a value that is transparent", 100, 163, 0, 130.0, 0},
    {"but for values beyond it", 101, 163, 0, 100.0, 63},
};

TEST(RasterRamps, ArePalettesWithoutNamesThatChangeLittleByLittle) {
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.what);
        const std::vector<double> values = raster_test::Ramp(row.first, row.last);
        Raster raster{static_cast<int>(values.size()), {values}, GDT_Byte, row.noData};
        raster.describe = [&](GDALRasterBand& band) {
            raster_test::Coloured(PaletteOf(row.step))(band);
            if (row.describe != nullptr) {
                row.describe(band);
            }
        };
        // Whatever the stretch, which is of greys.
        const auto opened =
            raster_test::WriteAndOpen(raster, raster_test::Stretched("percent 20 80"));
        EXPECT_EQ(opened->GetDisplayType(), DisplayClassified);
        const std::vector<host::ClassColour> colours = opened->RampColours();
        ASSERT_EQ(colours.size(), row.colours);
        // Those that the map has, and the values at its ends.
        const std::vector<unsigned int> drawn =
            raster_test::Pixels(opened->Render(raster.width, 1));
        for (std::size_t i = 0; i < colours.size(); ++i) {
            EXPECT_EQ(0xFF000000U | unsigned{colours[i].red} << 16U |
                          unsigned{colours[i].green} << 8U | unsigned{colours[i].blue},
                      drawn[i]);
        }
        EXPECT_EQ(raster_test::RangeOf(*opened),
                  std::pair(row.first + 0.0, row.last + 0.0));
    }
}

TEST(RasterRamps, OfRastersWithoutAPaletteAreNone) {
    const Raster raster{64, {raster_test::Ramp(0, 63)}};
    EXPECT_TRUE(raster_test::WriteAndOpen(raster)->RampColours().empty());
}

}  // namespace
