#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "binding/flat_spy.h"

using namespace Gdiplus;

namespace {

/// While set, memory for arrays cannot be had without an exception.
bool outOfMemory = false;

class OutOfMemoryNow {
public:
    OutOfMemoryNow() { outOfMemory = true; }
    ~OutOfMemoryNow() { outOfMemory = false; }
};

}  // namespace

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return outOfMemory ? nullptr : std::malloc(size);
}
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void* operator new[](std::size_t size) {
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

namespace {

/// A wide text of any values, code points or not.
std::wstring Wide(const std::vector<std::int32_t>& values) {
    std::wstring text;
    for (const std::int32_t value : values) {
        text += static_cast<wchar_t>(value);
    }
    return text;
}

std::vector<unsigned> Units(const std::u16string& text) {
    return {text.begin(), text.end()};
}

class Text : public ::testing::Test {
protected:
    Text() { flat_spy::Clear(); }

    GraphicsPath path;
    FontFamily family{L"Arial"};

    Status Add(const wchar_t* text, int length = -1) {
        flat_spy::Clear();
        return path.AddString(text, length, &family, FontStyleRegular, 10.0f, PointF(),
                              nullptr);
    }
};

TEST_F(Text, BecomesUtf16) {
    struct Row {
        const char* name;
        std::vector<std::int32_t> wide;
        std::vector<unsigned> units;
    };
    const Row rows[] = {
        {"nothing", {}, {}},
        {"Latin", {'N', 'o'}, {'N', 'o'}},
        {"Chinese", {0x5730, 0x56FE}, {0x5730, 0x56FE}},
        {"the last of one unit", {0xFFFF}, {0xFFFF}},
        {"the first of two", {0x10000}, {0xD800, 0xDC00}},
        {"a world map", {0x1F5FA}, {0xD83D, 0xDDFA}},
        {"the last of all", {0x10FFFF}, {0xDBFF, 0xDFFF}},
        {"past the last", {0x110000}, {0xFFFD}},
        {"far past it", {0x7FFFFFFF}, {0xFFFD}},
        {"negative", {-1, INT32_MIN}, {0xFFFD, 0xFFFD}},
        {"a pair that is one already", {0xD83D, 0xDDFA}, {0xD83D, 0xDDFA}},
        {"a lone high one", {'a', 0xD83D, 'b'}, {'a', 0xFFFD, 'b'}},
        {"a high one at the end", {0xD83D}, {0xFFFD}},
        {"a lone low one", {0xDDFA, 'b'}, {0xFFFD, 'b'}},
        {"two high ones and a low one",
         {0xD83D, 0xD83D, 0xDDFA},
         {0xFFFD, 0xD83D, 0xDDFA}},
        {"the wrong way round", {0xDDFA, 0xD83D}, {0xFFFD, 0xFFFD}},
        {"a high one before a pair of one", {0xD83D, 0x1F5FA}, {0xFFFD, 0xD83D, 0xDDFA}},
        {"beside the surrogates", {0xD7FF, 0xE000}, {0xD7FF, 0xE000}},
    };
    for (const Row& row : rows) {
        Add(Wide(row.wide).c_str());
        EXPECT_EQ(flat_spy::Last().calls, 1) << row.name;
        EXPECT_EQ(Units(flat_spy::Last().text), row.units) << row.name;
        EXPECT_EQ(flat_spy::Last().length, static_cast<int>(row.units.size()))
            << row.name << ": the length counts units";
    }
}

TEST_F(Text, TakesAsManyCharactersAsItIsTold) {
    const std::wstring text = Wide({'a', 0x1F5FA, 'b', 'c'});
    struct Row {
        int length;
        std::vector<unsigned> units;
    };
    const Row rows[] = {{0, {}},
                        {1, {'a'}},
                        {2, {'a', 0xD83D, 0xDDFA}},
                        {3, {'a', 0xD83D, 0xDDFA, 'b'}},
                        {-1, {'a', 0xD83D, 0xDDFA, 'b', 'c'}}};
    for (const Row& row : rows) {
        Add(text.c_str(), row.length);
        EXPECT_EQ(Units(flat_spy::Last().text), row.units) << row.length;
    }
}

TEST_F(Text, HoldsEmbeddedNullsWhenToldItsLength) {
    const std::wstring text = Wide({'a', 0, 'b'});
    Add(text.c_str(), 3);
    EXPECT_EQ(Units(flat_spy::Last().text), (std::vector<unsigned>{'a', 0, 'b'}));
    Add(text.c_str(), -1);
    EXPECT_EQ(Units(flat_spy::Last().text), (std::vector<unsigned>{'a'}));
}

TEST_F(Text, CutsAPairOfTwoCharactersIntoALoneOne) {
    const std::wstring pair = Wide({0xD83D, 0xDDFA});
    Add(pair.c_str(), 1);
    EXPECT_EQ(Units(flat_spy::Last().text), (std::vector<unsigned>{0xFFFD}));
}

TEST_F(Text, OfANegativeLengthIsInvalid) {
    for (const int length : {-2, -100, INT32_MIN}) {
        EXPECT_EQ(Add(L"abc", length), InvalidParameter) << length;
        EXPECT_EQ(flat_spy::Last().calls, 0) << length;
    }
    EXPECT_EQ(path.GetLastStatus(), InvalidParameter);
}

TEST_F(Text, ThatIsNullIsHandedOnOrInvalid) {
    EXPECT_EQ(Add(nullptr), InvalidParameter);
    EXPECT_TRUE(flat_spy::Last().null);
    const FontFamily nameless(nullptr);
    EXPECT_EQ(nameless.GetLastStatus(), InvalidParameter);
    EXPECT_FALSE(nameless.IsAvailable());
    const Image image(static_cast<const WCHAR*>(nullptr));
    EXPECT_EQ(image.GetLastStatus(), InvalidParameter);
}

TEST_F(Text, MayBeAnyLength) {
    // Around the room on the stack, half of which a text of pairs fills.
    for (const std::size_t length : {1u, 62u, 63u, 64u, 65u, 127u, 128u, 129u, 5000u}) {
        const std::wstring latin(length, L'x');
        Add(latin.c_str());
        EXPECT_EQ(flat_spy::Last().text, std::u16string(length, u'x')) << length;

        const std::wstring pairs(length, static_cast<wchar_t>(0x10000));
        Add(pairs.c_str());
        ASSERT_EQ(flat_spy::Last().text.size(), 2 * length);
        EXPECT_EQ(flat_spy::Last().text[2 * length - 1], 0xDC00) << length;
    }
}

TEST_F(Text, WithoutMemoryIsNotHandedOn) {
    const std::wstring text(200, L'x');
    Bitmap bitmap(10, 10);
    Graphics graphics(&bitmap);
    const Font font(&family, 10.0f);
    const SolidBrush brush(Color(0xFF000000));
    const CLSID png = {};
    const OutOfMemoryNow now;
    EXPECT_EQ(Add(text.c_str()), OutOfMemory);
    EXPECT_EQ(path.GetLastStatus(), OutOfMemory);
    EXPECT_EQ(graphics.DrawString(text.c_str(), -1, &font, PointF(), &brush),
              OutOfMemory);
    RectF bounds;
    EXPECT_EQ(graphics.MeasureString(text.c_str(), -1, &font, RectF(), &bounds),
              OutOfMemory);
    EXPECT_EQ(bitmap.Save(text.c_str(), &png), OutOfMemory);
    EXPECT_EQ(FontFamily(text.c_str()).GetLastStatus(), OutOfMemory);
    EXPECT_EQ(Image(text.c_str()).GetLastStatus(), OutOfMemory);
    UINT count = 1;
    UINT bytes = 1;
    EXPECT_EQ(GetImageEncodersSize(&count, &bytes), OutOfMemory);
    EXPECT_EQ(count, 0u);
    ImageCodecInfo encoder;
    EXPECT_EQ(GetImageEncoders(1, sizeof encoder, &encoder), OutOfMemory);
    EXPECT_EQ(flat_spy::Last().calls, 0);
    EXPECT_EQ(Add(L"a short text needs none"), Ok);
}

TEST_F(Text, OfMoreThanAGigaCharacterIsNotRead) {
    for (const int length : {0x40000000, INT32_MAX}) {
        EXPECT_EQ(Add(L"short", length), OutOfMemory) << length;
    }
    EXPECT_EQ(flat_spy::Last().calls, 0);
    EXPECT_EQ(path.GetLastStatus(), OutOfMemory);
}

TEST(WideText, ComesBackFromUtf16) {
    struct Row {
        std::u16string flat;
        std::wstring wide;
    };
    const Row rows[] = {
        {u"", L""},
        {u"Arial", L"Arial"},
        {u"\x5730\x56FE", L"\x5730\x56FE"},
        {{0xD83D, 0xDDFA, u'x'}, Wide({0x1F5FA, 'x'})},
        {{0xD83D, u'x'}, Wide({0xFFFD, 'x'})},
        {{0xDDFA}, Wide({0xFFFD})},
        {{u'x', 0xD83D}, Wide({'x', 0xFFFD})},
    };
    for (const Row& row : rows) {
        wchar_t out[8] = {};
        EXPECT_EQ(detail::WideSize(row.flat.c_str()), row.wide.size() + 1);
        EXPECT_EQ(detail::WriteWide(row.flat.c_str(), out, 8), out + row.wide.size() + 1);
        EXPECT_EQ(out, row.wide);
    }
    wchar_t small[3] = {L'?', L'?', L'?'};
    detail::WriteWide(u"long", small, 2);
    EXPECT_EQ(std::wstring(small), L"l") << "cut to its room";
    EXPECT_EQ(small[2], L'?');
}

TEST(FontFamily, TakesTheFontsFamilyForWhatItHeld) {
    const Font sans(L"Arial", 12.0f);
    const Font serif(L"Times New Roman", 12.0f);
    FontFamily family;
    WCHAR name[LF_FACESIZE];
    WCHAR expected[LF_FACESIZE];
    for (const Font* font : {&sans, &serif, &sans}) {
        EXPECT_EQ(font->GetFamily(&family), Ok);
        EXPECT_EQ(family.GetFamilyName(name), Ok);
        FontFamily(font == &sans ? L"Arial" : L"Times New Roman").GetFamilyName(expected);
        EXPECT_STREQ(name, expected);
    }
    const Font none(static_cast<const FontFamily*>(nullptr), 12.0f);
    EXPECT_EQ(none.GetFamily(&family), InvalidParameter);
    EXPECT_FALSE(family.IsAvailable());
    EXPECT_EQ(family.GetLastStatus(), InvalidParameter);
}

TEST(FontFamily, WithoutANameToWriteOrAFamilyTellsNone) {
    const FontFamily family(L"Arial");
    WCHAR name[LF_FACESIZE] = L"untouched";
    EXPECT_EQ(family.GetFamilyName(nullptr), InvalidParameter);
    const FontFamily none;
    EXPECT_EQ(none.GetFamilyName(name), InvalidParameter);
    EXPECT_STREQ(name, L"");
}

}  // namespace
