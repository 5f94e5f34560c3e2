#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "page/box.h"
#include "page/page.h"

namespace host {

/// The kind of a property, which decides how it is written, checked and edited.
enum class PropertyKind {
    Switch,     ///< on or off: bool
    Integer,    ///< a whole number: std::int32_t
    Number,     ///< any number: double
    Ratio,      ///< a number that may be unknown, and then is NaN: double
    Angle,      ///< degrees, clockwise: double
    Colour,     ///< with its alpha: Gdiplus::ARGB
    Text,       ///< UTF-8: std::string
    Font,       ///< the name of a font family, UTF-8: std::string
    File,       ///< the path of an image file: std::string
    Rasters,    ///< the paths of rasters, the first on top: std::vector<std::string>
    MapExtent,  ///< a part of the map, or all of it: std::optional<Box>
    Choice,     ///< one of a few: std::int32_t, the value of the choice
};

/// The value of a property; its kind decides which of these it is.
using PropertyValue = std::variant<bool, std::int32_t, double, Gdiplus::ARGB, std::string,
                                   std::vector<std::string>, std::optional<Box>>;

/// One value of an enumeration, and its name.
struct Choice {
    const char* name;
    std::int32_t value;
};

/// A list that lives as long as the program.
struct Choices {
    const Choice* first = nullptr;
    std::size_t count = 0;

    const Choice* begin() const { return first; }
    const Choice* end() const { return first + count; }
};

/// Includes both ends.
struct NumberRange {
    double lowest = 0.0;
    double highest = 0.0;
};

/// One thing that can be set on a page item. Reading, writing, checking, describing and
/// editing items all walk lists of these, so that a property exists everywhere or
/// nowhere.
///
/// `read` and `write` are for items of the type that the property belongs to. What `read`
/// returns, `write` takes back without loss. `write` stores and, for a picture's path,
/// opens the image; it never measures (see MeasureItem) and never checks (see
/// CheckValue).
struct Property {
    const char* name;   ///< as in the page file: "borderWidth"
    const char* about;  ///< one line of help, with the unit
    PropertyKind kind;
    PropertyValue (*read)(const PageItem&);
    void (*write)(PageItem&, const PropertyValue&);
    NumberRange range = {};   ///< for Integer, Number, Ratio and Angle
    Choices choices = {};     ///< for Choice
    bool isFloat = false;     ///< held with the precision of a float
    bool isMeasured = false;  ///< measuring the element changes it
    bool hasLines = false;    ///< a Text that may have several lines
    /// For a Text with a format: what is wrong with a text, as CheckValue says it, and
    /// the schema's regular expression for it.
    std::string (*checkText)(const std::string&) = nullptr;
    const char* pattern = nullptr;
};

/// In characters: a line of type that long is over a hundred metres.
constexpr std::size_t kLongestText = 10'000;
/// In lines of one text: as high as ten sheets of A0.
constexpr std::size_t kMostLines = 1'000;
/// In one list.
constexpr std::size_t kMostRasters = 1'000;

/// What is wrong with a value for a property, to complete a sentence that begins with the
/// property's name: "must be from 0 to 100". Empty when nothing is.
std::string CheckValue(const Property& property, const PropertyValue& value);

/// The same for a text by itself.
std::string CheckText(const std::string& text);

}  // namespace host
