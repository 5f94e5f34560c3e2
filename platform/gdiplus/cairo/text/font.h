#pragma once

#include <memory>

#include "cairo/text/font_files.h"

namespace engine {

struct FontFamily : GpFontFamily {
    std::shared_ptr<const Family> family;
};

struct Font : GpFont {
    std::shared_ptr<const Family> family;
    REAL size = 0.0f;
    INT style = FontStyleRegular;
    Unit unit = UnitPoint;
};

struct StringFormat : GpStringFormat {
    INT flags = 0;
    LANGID language = 0;
    StringAlignment alignment = StringAlignmentNear;
    StringAlignment lineAlignment = StringAlignmentNear;
    StringTrimming trimming = StringTrimmingCharacter;
};

inline FontFamily* From(GpFontFamily* family) { return static_cast<FontFamily*>(family); }
inline const FontFamily* From(const GpFontFamily* family) {
    return static_cast<const FontFamily*>(family);
}
inline Font* From(GpFont* font) { return static_cast<Font*>(font); }
inline const Font* From(const GpFont* font) { return static_cast<const Font*>(font); }
inline StringFormat* From(GpStringFormat* format) {
    return static_cast<StringFormat*>(format);
}
inline const StringFormat* From(const GpStringFormat* format) {
    return static_cast<const StringFormat*>(format);
}

inline bool IsStyle(INT style) {
    return (style & ~(FontStyleBoldItalic | FontStyleUnderline | FontStyleStrikeout)) ==
           0;
}

}  // namespace engine
