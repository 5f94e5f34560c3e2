#include "system/fonts.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <iterator>
#include <memory>

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

}  // namespace

bool IsFontFamilyKnown(const std::string& family) {
    const auto* const name = reinterpret_cast<const FcChar8*>(family.c_str());
    if (family.empty() || FcInit() == FcFalse) {
        return false;
    }
    if (IsGeneric(name) || IsInstalled(name)) {
        return true;
    }
    // The configured substitutes; those that stand in for the family itself, and not for
    // any family at all, are bound as strongly as its name.
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
