#include "system/fonts.h"

#include <fcntl.h>
#include <fontconfig/fontconfig.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <set>
#include <system_error>
#include <utility>

namespace host {
namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;
using FontSet = std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)>;
using ObjectSet = std::unique_ptr<FcObjectSet, decltype(&FcObjectSetDestroy)>;

constexpr const char* kGenericFamilies[] = {"sans-serif", "serif", "monospace"};

Pattern PatternOf(const FcChar8* family) {
    Pattern pattern(FcPatternCreate(), &FcPatternDestroy);
    FcPatternAddString(pattern.get(), FC_FAMILY, family);
    return pattern;
}

bool IsInstalled(const FcChar8* family) {
    const Pattern pattern = PatternOf(family);
    const ObjectSet wanted(FcObjectSetBuild(FC_FAMILY, nullptr), &FcObjectSetDestroy);
    const FontSet found(FcFontList(nullptr, pattern.get(), wanted.get()),
                        &FcFontSetDestroy);
    return found != nullptr && found->nfont > 0;
}

bool IsGeneric(const FcChar8* family) {
    return std::any_of(std::begin(kGenericFamilies), std::end(kGenericFamilies),
                       [family](const char* generic) {
                           return FcStrCmpIgnoreCase(
                                      family,
                                      reinterpret_cast<const FcChar8*>(generic)) == 0;
                       });
}

struct CharacterRange {
    char32_t first;
    char32_t last;
};

// Spaces, and characters that only join, separate or turn their neighbours.
constexpr CharacterRange kWithoutShape[] = {
    {0x00, 0x20},     {0x7F, 0xA0},      {0xAD, 0xAD},     {0x34F, 0x34F},
    {0x61C, 0x61C},   {0x1680, 0x1680},  {0x180B, 0x180F}, {0x2000, 0x200F},
    {0x2028, 0x202F}, {0x205F, 0x206F},  {0x3000, 0x3000}, {0xFE00, 0xFE0F},
    {0xFEFF, 0xFEFF}, {0xE0000, 0xE0FFF}};

bool HasShape(char32_t character) {
    return std::none_of(std::begin(kWithoutShape), std::end(kWithoutShape),
                        [character](const CharacterRange& range) {
                            return range.first <= character && character <= range.last;
                        });
}

/// The visible characters of a text, each once.
std::u32string ShapesOf(const std::wstring& text) {
    std::u32string shapes;
    for (const wchar_t unit : text) {
        const auto character = static_cast<char32_t>(unit);
        if (HasShape(character) && shapes.find(character) == std::u32string::npos) {
            shapes += character;
        }
    }
    return shapes;
}

/// Why a font file cannot be mapped into memory, as it is for drawing.
std::string WhyNotMapped(const char* file) {
    const auto failed = [file] {
        return std::string(file) + ": " + std::generic_category().message(errno);
    };
    const int descriptor = open(file, O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return failed();
    }
    struct stat status = {};
    fstat(descriptor, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    void* const mapped = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    std::string why = mapped == MAP_FAILED ? failed() : "";
    if (mapped != MAP_FAILED) {
        munmap(mapped, size);
    }
    close(descriptor);
    return why;
}

}  // namespace

struct FontChain::Fonts {
    FontSet set;

    /// The index of the first font in the set that has a character; -1 for none.
    int With(char32_t character) const {
        for (int i = 0; set != nullptr && i < set->nfont; ++i) {
            FcCharSet* has = nullptr;
            if (FcPatternGetCharSet(set->fonts[i], FC_CHARSET, 0, &has) ==
                    FcResultMatch &&
                FcCharSetHasChar(has, character) != FcFalse) {
                return i;
            }
        }
        return -1;
    }
};

FontChain::FontChain(const std::string& family, bool bold, bool italic) {
    if (FcInit() == FcFalse) {
        return;
    }
    const Pattern pattern = PatternOf(reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT,
                        bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT,
                        italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultMatch;
    FontSet set(FcFontSort(nullptr, pattern.get(), FcTrue, nullptr, &result),
                &FcFontSetDestroy);
    m_fonts = std::make_shared<Fonts>(Fonts{std::move(set)});
}

std::u32string FontChain::Missing(const std::wstring& text) const {
    std::u32string missing;
    for (const char32_t character : ShapesOf(text)) {
        if (m_fonts == nullptr || m_fonts->With(character) < 0) {
            missing += character;
        }
    }
    return missing;
}

std::string FontChain::WhyUnusable(const std::wstring& text) const {
    std::set<int> used;
    for (const char32_t character : ShapesOf(text)) {
        const int font = m_fonts == nullptr ? -1 : m_fonts->With(character);
        FcChar8* file = nullptr;
        if (font < 0 || !used.insert(font).second ||
            FcPatternGetString(m_fonts->set->fonts[font], FC_FILE, 0, &file) !=
                FcResultMatch) {
            continue;
        }
        std::string why = WhyNotMapped(reinterpret_cast<const char*>(file));
        if (!why.empty()) {
            return why;
        }
    }
    return {};
}

bool IsFontFamilyKnown(const std::string& family) {
    const auto* const name = reinterpret_cast<const FcChar8*>(family.c_str());
    if (family.empty() || FcInit() == FcFalse) {
        return false;
    }
    if (IsGeneric(name) || IsInstalled(name)) {
        return true;
    }
    // The configured substitutes: those for the family itself, rather than for any
    // family, are bound as strongly as its name.
    const Pattern pattern = PatternOf(name);
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcValue value;
    FcValueBinding binding = FcValueBindingWeak;
    for (int i = 0; FcPatternGetWithBinding(pattern.get(), FC_FAMILY, i, &value,
                                            &binding) == FcResultMatch;
         ++i) {
        if (binding != FcValueBindingWeak && value.type == FcTypeString &&
            IsInstalled(value.u.s)) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> FontPlaces() {
    std::vector<std::string> places;
    FcConfig* const fonts = FcInit() == FcFalse ? nullptr : FcConfigGetCurrent();
    for (FcStrList* const list : {FcConfigGetFontDirs(fonts), FcConfigGetCacheDirs(fonts),
                                  FcConfigGetConfigFiles(fonts)}) {
        while (const FcChar8* const place =
                   list == nullptr ? nullptr : FcStrListNext(list)) {
            places.emplace_back(reinterpret_cast<const char*>(place));
        }
        if (list != nullptr) {
            FcStrListDone(list);
        }
    }
    return places;
}

}  // namespace host
