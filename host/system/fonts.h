#pragma once

#include <memory>
#include <string>
#include <vector>

namespace host {

/// Whether text in a font family is drawn in that family, or in one with the same
/// metrics: Liberation Sans for Arial. GDI+ replaces an unknown family by any other in
/// silence. Generic names (sans-serif, serif, monospace) are known.
/// @param family UTF-8
bool IsFontFamilyKnown(const std::string& family);

/// The fonts that text in a family and style is drawn with: the family's own, then, in
/// order, those that supply the characters it lacks. Empty where no fonts are installed.
class FontChain {
public:
    /// @param family UTF-8
    FontChain(const std::string& family, bool bold, bool italic);

    /// The characters of a text that no font has, each once, in order; boxes are drawn in
    /// their place. Characters without a shape, such as spaces, are never missing.
    std::u32string Missing(const std::wstring& text) const;

    /// Why one of the font files that a text needs cannot be used now, after its name:
    /// "a.ttf: Too many open files". Empty when all can; otherwise boxes are drawn.
    std::string WhyUnusable(const std::wstring& text) const;

private:
    struct Fonts;

    std::shared_ptr<const Fonts> m_fonts;
};

/// The folders of the fonts, of their caches, and of their configuration, which has all
/// been read by then.
std::vector<std::string> FontPlaces();

}  // namespace host
