#include <gdal_rat.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>

#include "raster_data/gdal_session.h"
#include "raster_data/make_raster.h"

namespace {

using raster_test::Coloured;
using raster_test::Pixels;
using raster_test::Raster;
using raster_test::With;
using raster_test::WriteAndOpen;

struct Class {
    std::wstring label;
    unsigned int colour = 0;  ///< 0xAARRGGBB

    bool operator==(const Class& other) const {
        return label == other.label && colour == other.colour;
    }
};

void PrintTo(const Class& c, std::ostream* out) {
    *out << testing::PrintToString(c.label) << " " << std::hex << c.colour << std::dec;
}

std::vector<Class> Classes(host::GdalRaster& raster) {
    std::vector<Class> classes;
    CClassifyDisplayTable* const table = raster.GetClassifyDisplayTable();
    for (int i = 0; i < table->GetClassesCount(); ++i) {
        unsigned char red = 0, green = 0, blue = 0, alpha = 0;
        table->GetClassifyItem(i)->GetColor(red, green, blue, alpha);
        classes.push_back({table->GetClassifyItem(i)->GetLable(),
                           unsigned{alpha} << 24U | unsigned{red} << 16U |
                               unsigned{green} << 8U | unsigned{blue}});
    }
    return classes;
}

struct TableColumn {
    const char* name;
    GDALRATFieldType type;
    GDALRATFieldUsage usage;
};

/// An attribute table with every cell given as text.
struct Table {
    std::vector<TableColumn> columns;
    std::vector<std::vector<const char*>> rows;
    /// The first value and the size of a bin.
    std::optional<std::pair<double, double>> binning = {};
    GDALRATTableType type = GRTT_THEMATIC;
};

raster_test::Describe Explained(const Table& table) {
    return [=](GDALRasterBand& band) {
        GDALDefaultRasterAttributeTable attributes;
        attributes.SetTableType(table.type);
        for (const TableColumn& column : table.columns) {
            attributes.CreateColumn(column.name, column.type, column.usage);
        }
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            for (std::size_t column = 0; column < table.columns.size(); ++column) {
                attributes.SetValue(static_cast<int>(row), static_cast<int>(column),
                                    table.rows[row][column]);
            }
        }
        if (table.binning) {
            attributes.SetLinearBinning(table.binning->first, table.binning->second);
        }
        ASSERT_EQ(band.SetDefaultRAT(&attributes), CE_None);
    };
}

const raster_test::Palette kFourColours = {{0, {0, 0, 0, 255}},
                                           {1, {10, 20, 30, 255}},
                                           {2, {40, 50, 60, 255}},
                                           {3, {70, 80, 90, 255}}};

const std::vector<TableColumn> kByUsage = {{"a", GFT_Integer, GFU_MinMax},
                                           {"b", GFT_String, GFU_Name},
                                           {"c", GFT_Integer, GFU_Red},
                                           {"d", GFT_Integer, GFU_Green},
                                           {"e", GFT_Integer, GFU_Blue}};

const std::vector<TableColumn> kByName = {
    {"OID", GFT_Integer, GFU_Generic},       {"VALUE", GFT_Integer, GFU_Generic},
    {"Count", GFT_Real, GFU_Generic},        {"Remark", GFT_String, GFU_Generic},
    {"CLASS_NAME", GFT_String, GFU_Generic}, {"red", GFT_Integer, GFU_Generic},
    {"green", GFT_Integer, GFU_Generic},     {"blue", GFT_Integer, GFU_Generic}};

const std::vector<TableColumn> kRealColours = {{"Value", GFT_Integer, GFU_MinMax},
                                               {"Red", GFT_Real, GFU_Generic},
                                               {"Green", GFT_Real, GFU_Generic},
                                               {"Blue", GFT_Real, GFU_Generic},
                                               {"Alpha", GFT_Real, GFU_Generic}};

/// Fails unless a raster of one row has just these classes and is drawn in these colours.
void ExpectClasses(const Raster& raster, const std::vector<Class>& classes,
                   const raster_test::Colours& drawn) {
    SCOPED_TRACE(::testing::PrintToString(classes));
    const auto opened = WriteAndOpen(raster);
    EXPECT_EQ(opened->GetDisplayType(), DisplayClassified);
    EXPECT_EQ(Classes(*opened), classes);
    EXPECT_EQ(Pixels(opened->Render(raster.width, 1)), drawn);
    EXPECT_EQ(opened->GetClassifyDisplayTable(), opened->GetClassifyDisplayTable());
}

TEST(RasterClasses, OfAPaletteAreThoseThatOccurCalledByTheirNamesOrValues) {
    ExpectClasses(With({3, {{3, 1, 3}}}, Coloured(kFourColours)),
                  {{L"1", 0xff0a141e}, {L"3", 0xff46505a}},
                  {0xff46505a, 0xff0a141e, 0xff46505a});
    const auto named = [](GDALRasterBand& band) {
        Coloured(kFourColours)(band);
        char nothing[] = "Nothing", empty[] = "", forest[] = "森林";
        char* names[] = {nothing, empty, forest, nullptr};
        band.SetCategoryNames(names);
    };
    ExpectClasses(With({4, {{0, 1, 2, 3}}}, named),
                  {{L"Nothing", 0xff000000},
                   {L"1", 0xff0a141e},
                   {L"森林", 0xff28323c},
                   {L"3", 0xff46505a}},
                  {0xff000000, 0xff0a141e, 0xff28323c, 0xff46505a});
    // No-data is no class.
    ExpectClasses(With({4, {{0, 1, 2, 3}}, GDT_Byte, 3}, Coloured(kFourColours)),
                  {{L"0", 0xff000000}, {L"1", 0xff0a141e}, {L"2", 0xff28323c}},
                  {0xff000000, 0xff0a141e, 0xff28323c, 0});
}

TEST(RasterClasses, OfATableAreFoundByTheUsageOrTheNamesOfItsColumns) {
    const auto byUsage = Explained({kByUsage,
                                    {{"20", "Trees", "1", "2", "3"},
                                     {"10", "Water", "4", "5", "255"},
                                     {"30", "Ice", "7", "8", "9"}}});
    ExpectClasses(With({3, {{20, 10, 20}}}, byUsage),
                  {{L"Water", 0xff0405ff}, {L"Trees", 0xff010203}},
                  {0xff010203, 0xff0405ff, 0xff010203});
    // Values that no table has are grey.
    ExpectClasses(With({2, {{10, 99}}}, byUsage),
                  {{L"Water", 0xff0405ff}, {L"99", 0xff808080}},
                  {0xff0405ff, 0xff808080});
    ExpectClasses(With({2, {{-3, 200}}, GDT_Int16},
                       Explained({kByName,
                                  {{"0", "-3", "5", "x", "Sea bed", "1", "2", "3"},
                                   {"1", "200", "6", "y", "Hill", "4", "5", "6"}}})),
                  {{L"Sea bed", 0xff010203}, {L"Hill", 0xff040506}},
                  {0xff010203, 0xff040506});
    // Rows without values stand for 0, 1, 2; any text is a name.
    ExpectClasses(
        With({2, {{2, 0}}}, Explained({{{"Opacity", GFT_Integer, GFU_Alpha},
                                        {"Blue", GFT_Integer, GFU_Blue},
                                        {"Green", GFT_Integer, GFU_Green},
                                        {"Red", GFT_Integer, GFU_Red},
                                        {"Land Cover", GFT_String, GFU_Generic}},
                                       {{"255", "3", "2", "1", ""},
                                        {"255", "6", "5", "4", "Bog"},
                                        {"128", "9", "8", "7", "Fen"}}})),
        {{L"0", 0xff010203}, {L"Fen", 0x80070809}}, {0x80070809, 0xff010203});
    // Names of the table, colours of the palette.
    const auto both = [](GDALRasterBand& band) {
        Coloured(kFourColours)(band);
        Explained(
            {{{"Value", GFT_Integer, GFU_MinMax}, {"Class", GFT_String, GFU_Generic}},
             {{"1", "One"}, {"2", "Two"}}})(band);
    };
    ExpectClasses(With({2, {{1, 2}}}, both), {{L"One", 0xff0a141e}, {L"Two", 0xff28323c}},
                  {0xff0a141e, 0xff28323c});
}

TEST(RasterClasses, MayBeBinsOfOneSizeAndRanges) {
    ExpectClasses(
        With({6, {{9.5, 10, 14.75, 15, 19.5, 20}}, GDT_Float32},
             Explained({{{"Name", GFT_String, GFU_Name},
                         {"R", GFT_Integer, GFU_Red},
                         {"G", GFT_Integer, GFU_Green},
                         {"B", GFT_Integer, GFU_Blue}},
                        {{"low", "1", "2", "3"}, {"high", "4", "5", "6"}},
                        {{10.0, 5.0}}})),
        {{L"9.5", 0xff808080},
         {L"low", 0xff010203},
         {L"high", 0xff040506},
         {L"20", 0xff808080}},
        {0xff808080, 0xff010203, 0xff010203, 0xff040506, 0xff040506, 0xff808080});
    // The lower range has the value where they meet.
    ExpectClasses(
        With({5, {{10, 0, 15.5, 20, -0.25}}, GDT_Float32},
             Explained({{{"from", GFT_Real, GFU_Min},
                         {"to", GFT_Real, GFU_Max},
                         {"Name", GFT_String, GFU_Name},
                         {"R", GFT_Integer, GFU_Red},
                         {"G", GFT_Integer, GFU_Green},
                         {"B", GFT_Integer, GFU_Blue}},
                        {{"10", "20", "upper", "4", "5", "6"},
                         {"0", "10", "lower", "1", "2", "3"}}})),
        {{L"-0.25", 0xff808080}, {L"lower", 0xff010203}, {L"upper", 0xff040506}},
        {0xff010203, 0xff010203, 0xff040506, 0xff040506, 0xff808080});
}

TEST(RasterClasses, HaveColoursAsFractionsOfOneWhereAllAreReal) {
    // 0.5 * 255 + 0.5 is 128, 0.2 * 255 is 51.
    ExpectClasses(
        With({2, {{1, 2}}},
             Explained({kRealColours,
                        {{"1", "0", "0.5", "1", "1"}, {"2", "-3", "0.2", "1", "0.5"}}})),
        {{L"1", 0xff0080ff}, {L"2", 0x800033ff}}, {0xff0080ff, 0x800033ff});
    ExpectClasses(With({2, {{1, 2}}}, Explained({kRealColours,
                                                 {{"1", "0", "0.75", "1", "255"},
                                                  {"2", "-3", "300", "64", "9"}}})),
                  {{L"1", 0xff000101}, {L"2", 0x0900ff40}}, {0xff000101, 0x0900ff40});
}

TEST(RasterClasses, OfATableWithoutColoursAreToldApart) {
    Raster raster{3, {{1, 2, 3}}};
    raster.describe =
        Explained({{{"Value", GFT_Integer, GFU_MinMax}, {"Name", GFT_String, GFU_Name}},
                   {{"1", "One"}, {"2", "Two"}, {"3", "Three"}}});
    const auto opened = WriteAndOpen(raster);
    const std::vector<Class> classes = Classes(*opened);
    ASSERT_EQ(classes.size(), 3U);
    EXPECT_EQ(classes[2].label, L"Three");
    EXPECT_NE(classes[0].colour, classes[1].colour);
    EXPECT_NE(classes[1].colour, classes[2].colour);
    EXPECT_NE(classes[0].colour, classes[2].colour);
    EXPECT_EQ(Pixels(opened->Render(3, 1)),
              (std::vector{classes[0].colour, classes[1].colour, classes[2].colour}));
}

TEST(RasterClasses, PalettesMayBeTransparent) {
    const ScratchFolder folder;
    const std::string png = folder.Path("palette.png");
    // GeoTIFF keeps no alpha in palettes; PNG does.
    host::StartGdal();
    const raster_test::Dataset source =
        raster_test::Owned(GetGDALDriverManager()->GetDriverByName("MEM")->Create(
            "", 3, 1, 1, GDT_Byte, nullptr));
    Coloured({{0, {1, 2, 3, 0}}, {1, {4, 5, 6, 128}}, {2, {7, 8, 9, 255}}})(
        *source->GetRasterBand(1));
    raster_test::Set(*source->GetRasterBand(1), 0, 0, 3, 1, {0, 1, 2});
    raster_test::Copy(source, "PNG", png);
    const auto raster = raster_test::Open(png);
    EXPECT_EQ(Classes(*raster),
              (std::vector<Class>{{L"1", 0x80040506}, {L"2", 0xff070809}}));
    const std::vector<unsigned int> drawn = Pixels(raster->Render(3, 1));
    EXPECT_EQ(drawn[0] >> 24U, 0U);
    EXPECT_EQ(drawn[1], 0x80040506U);
    EXPECT_EQ(drawn[2], 0xff070809U);
}

TEST(RasterClasses, ATableThatIsOnlyAHistogramMakesNone) {
    Raster raster{3, {{0, 3, 10}}, GDT_Float32};
    raster.describe = Explained({{{"Histogram", GFT_Real, GFU_PixelCount}},
                                 {{"1"}, {"2"}},
                                 {{0.0, 5.0}},
                                 GRTT_ATHEMATIC});
    const auto opened = WriteAndOpen(raster);
    EXPECT_EQ(opened->GetDisplayType(), DisplayGray);
    EXPECT_EQ(opened->GetClassifyDisplayTable()->GetClassesCount(), 0);
}

TEST(RasterClasses, AreOfTheBandThatIsShown) {
    Raster raster{1, {{1}, {1}}};
    raster.describe = Explained({kByUsage, {{"1", "One", "1", "2", "3"}}});
    EXPECT_EQ(WriteAndOpen(raster)->GetDisplayType(), DisplayClassified);
    host::RasterStyle style;
    style.bands = {2};
    EXPECT_EQ(WriteAndOpen(raster, style)->GetDisplayType(), DisplayGray);
    raster.bands.push_back({1});
    EXPECT_EQ(WriteAndOpen(raster)->GetDisplayType(), DisplayRGB);
}

TEST(RasterClasses, OfVeryManyTheLowestAreListed) {
    std::vector<double> values(300 * 100);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = 0.5 + static_cast<double>(values.size() - i);
    }
    Raster raster{300, {values}, GDT_Float64};
    raster.describe = Explained({kByUsage, {{"-1", "None", "1", "2", "3"}}});
    const auto opened = WriteAndOpen(raster);
    const std::vector<Class> classes = Classes(*opened);
    ASSERT_EQ(classes.size(), 10000U);
    EXPECT_EQ(classes.front().label, L"1.5");
    EXPECT_EQ(classes.back().label, L"10000.5");
}

TEST(RasterClasses, OfARasterThatCannotBeReadAreNone) {
    const ScratchFolder folder;
    const std::string path = folder.Path("cut.tif");
    Raster raster{300, {std::vector<double>(300 * 300, 1.0)}};
    raster.describe = Coloured(kFourColours);
    raster_test::Write(path, raster);
    const auto opened = raster_test::Open(path);
    std::filesystem::resize_file(path, 2000);
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->GetDisplayType(), DisplayClassified);
    EXPECT_EQ(opened->GetClassifyDisplayTable()->GetClassesCount(), 0);
    EXPECT_THROW(opened->Render(10, 10), std::runtime_error);
}

TEST(RasterClasses, OfALargeRasterAreSampled) {
    const ScratchFolder folder;
    const std::string path = folder.Path("large.tif");
    {
        const raster_test::Dataset dataset = raster_test::Create(
            path, 20000, 20000, 1, GDT_Byte, {"SPARSE_OK=TRUE", "TILED=YES"});
        Coloured(kFourColours)(*dataset->GetRasterBand(1));
        raster_test::Set(*dataset->GetRasterBand(1), 10000, 10000, 512, 512,
                         std::vector<double>(512 * 512, 2));
    }
    const auto raster = raster_test::Open(path);
    EXPECT_EQ(Classes(*raster),
              (std::vector<Class>{{L"0", 0xff000000}, {L"2", 0xff28323c}}));
}

}  // namespace
