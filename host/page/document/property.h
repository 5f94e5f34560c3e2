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

/// What a property is, which says how it is written, checked and edited.
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

/// The value of a property; its kind says which of these it is.
using PropertyValue = std::variant<bool, std::int32_t, double, Gdiplus::ARGB, std::string,
                                   std::vector<std::string>, std::optional<Box>>;

/// One value of an enumeration, and what people call it.
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

/// Both ends are in it.
struct NumberRange {
    double lowest = 0.0;
    double highest = 0.0;
};

/// One thing that can be set of a page item. Reading, writing, checking, describing and
/// editing items all walk lists of these, so that a property exists everywhere or
/// nowhere.
///
/// `read` and `write` are for items of the type that the property belongs to. What `read`
/// gives, `write` takes back without loss. `write` stores and, for a picture's path,
/// opens the image; it never measures (see MeasureItem) and never checks (see
/// CheckValue).
struct Property {
    const char* name;   ///< as in the page file: "borderWidth"
    const char* about;  ///< one line for people, with the unit
    PropertyKind kind;
    PropertyValue (*read)(const PageItem&);
    void (*write)(PageItem&, const PropertyValue&);
    NumberRange range = {};   ///< of Integer, Number, Ratio and Angle
    Choices choices = {};     ///< of Choice
    bool isFloat = false;     ///< held with the precision of a float
    bool isMeasured = false;  ///< measuring the element changes it
    bool hasLines = false;    ///< of a Text: people give it in several
    /// Of a Text that has a form: what is wrong with one, as CheckValue says it, and the
    /// regular expression that a schema has of it.
    std::string (*checkText)(const std::string&) = nullptr;
    const char* pattern = nullptr;
};

/// Characters of a text: a line of type that long is over a hundred metres.
constexpr std::size_t kLongestText = 10'000;
/// Lines of a text: as high as ten sheets of A0.
constexpr std::size_t kMostLines = 1'000;
/// Files of a list.
constexpr std::size_t kMostRasters = 1'000;

/// What is wrong with a value for a property, as the end of a sentence that begins with
/// its name: "must be from 0 to 100". Empty when nothing is.
std::string CheckValue(const Property& property, const PropertyValue& value);

/// The same of a text alone.
std::string CheckText(const std::string& text);

}  // namespace host
