#pragma once

#include <memory>
#include <string>
#include <vector>

namespace host {

/// Whether text in a font family is drawn in that family, or in one made to the same
/// measures: Liberation Sans for Arial. GDI+ would draw an unknown family in any other
/// without a word. Generic names (sans-serif, serif, monospace) are known.
/// @param family UTF-8
bool IsFontFamilyKnown(const std::string& family);

/// What a text in a family and style is drawn with: the family's font, and those that
/// stand in, in their order, for characters that it does not have. Empty where there are
/// no fonts.
class FontChain {
public:
    /// @param family UTF-8
    FontChain(const std::string& family, bool bold, bool italic);

    /// The characters of a text that no font has, each once, in order. Boxes are drawn in
    /// their place. What has no shape, such as spaces, is missed nowhere.
    std::u32string Missing(const std::wstring& text) const;

    /// Why one of the files that a text needs cannot be used now, after its name: "a.ttf:
    /// Too many open files". Empty when all can: boxes are drawn otherwise.
    std::string WhyUnusable(const std::wstring& text) const;

private:
    struct Fonts;

    std::shared_ptr<const Fonts> m_fonts;
};

/// The folders of the fonts, of what is known about them, and of how they are configured;
/// all that is read of the configuration has been read then.
std::vector<std::string> FontPlaces();

}  // namespace host
