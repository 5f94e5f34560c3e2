#include "cairo/text/font_files.h"

#include <hb-ot.h>

#include <algorithm>
#include <iterator>
#include <mutex>

#include "cairo/unicode.h"

namespace engine {
namespace {

using Pattern = Owned<FcPattern, FcPatternDestroy>;

const FcChar8* Bytes(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

/// The query to Fontconfig: a family in a style, with the system's rules applied.
Pattern Question(const std::string& name, INT style) {
    Pattern pattern(FcPatternCreate());
    if (pattern == nullptr) {
        throw std::bad_alloc();
    }
    FcPatternAddString(pattern.get(), FC_FAMILY, Bytes(name));
    FcPatternAddInteger(
        pattern.get(), FC_WEIGHT,
        (style & FontStyleBold) != 0 ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(
        pattern.get(), FC_SLANT,
        (style & FontStyleItalic) != 0 ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

bool IsGeneric(const std::string& name) {
    const char* const generics[] = {"sans", "sans-serif", "serif", "monospace", "mono"};
    return std::any_of(std::begin(generics), std::end(generics),
                       [&](const char* generic) {
                           return FcStrCmpIgnoreCase(Bytes(name), Bytes(generic)) == 0;
                       });
}

/// Whether a face is what was meant: of a family that the query binds as strongly as the
/// name itself, as it does those with the same metrics.
bool IsMeant(const FcPattern* face, const FcPattern* question) {
    FcValue value;
    FcValueBinding binding = FcValueBindingWeak;
    for (int i = 0; FcPatternGetWithBinding(question, FC_FAMILY, i, &value, &binding) ==
                    FcResultMatch;
         ++i) {
        if (binding == FcValueBindingWeak || value.type != FcTypeString) {
            continue;
        }
        FcChar8* family = nullptr;
        for (int j = 0; FcPatternGetString(face, FC_FAMILY, j, &family) == FcResultMatch;
             ++j) {
            if (FcStrCmpIgnoreCase(family, value.u.s) == 0) {
                return true;
            }
        }
    }
    return false;
}

std::shared_ptr<const FaceFile> FileOf(const FcPattern* face) {
    auto file = std::make_shared<FaceFile>();
    FcChar8* path = nullptr;
    if (FcPatternGetString(face, FC_FILE, 0, &path) != FcResultMatch) {
        return nullptr;
    }
    file->path = reinterpret_cast<const char*>(path);
    FcPatternGetInteger(face, FC_INDEX, 0, &file->index);
    FcBool embolden = FcFalse;
    FcPatternGetBool(face, FC_EMBOLDEN, 0, &embolden);
    file->embolden = embolden != FcFalse;
    FcMatrix* matrix = nullptr;
    file->slant = FcPatternGetMatrix(face, FC_MATRIX, 0, &matrix) == FcResultMatch &&
                  matrix->xy != 0.0;
    FcBool hinting = FcTrue;
    FcPatternGetBool(face, FC_HINTING, 0, &hinting);
    FcPatternGetInteger(face, FC_HINT_STYLE, 0, &file->hintStyle);
    if (hinting == FcFalse) {
        file->hintStyle = FC_HINT_NONE;
    }
    return file;
}

FamilyMetrics MetricsIn(const FaceFile& file) {
    const FontBytes blob = BytesOf(file);
    hb_face_t* const face = hb_face_create(blob.get(), static_cast<unsigned>(file.index));
    hb_font_t* const font = hb_font_create(face);
    hb_font_extents_t extents = {};
    hb_font_get_h_extents(font, &extents);
    FamilyMetrics metrics;
    metrics.em = static_cast<UINT16>(hb_face_get_upem(face));
    metrics.ascent = static_cast<UINT16>(extents.ascender);
    metrics.descent = static_cast<UINT16>(-extents.descender);
    metrics.spacing =
        static_cast<UINT16>(extents.ascender - extents.descender + extents.line_gap);
    hb_font_destroy(font);
    hb_face_destroy(face);
    return metrics;
}

Pattern Match(const Pattern& question) {
    FcResult result = FcResultMatch;
    return Pattern(FcFontMatch(nullptr, question.get(), &result));
}

/// Fontconfig locks by itself, in ways that thread checkers cannot follow; it is called
/// rarely, so threads may wait for each other here.
std::mutex g_fontconfig;

}  // namespace

FontBytes BytesOf(const FaceFile& file) {
    FontBytes bytes(hb_blob_create_from_file(file.path.c_str()));
    if (hb_blob_get_length(bytes.get()) == 0) {
        throw std::bad_alloc();
    }
    return bytes;
}

Family::Family(std::u16string found, std::string asked,
               std::shared_ptr<const FaceFile> regular)
    : name(std::move(found)), asked_(std::move(asked)) {
    Style& style = styles_[FontStyleRegular];
    std::call_once(style.found, [&] { style.face = std::move(regular); });
}

const std::shared_ptr<const FaceFile>& Family::FaceOf(INT style) const {
    Style& of = styles_[style & FontStyleBoldItalic];
    std::call_once(of.found, [&] {
        const std::lock_guard lock(g_fontconfig);
        const Pattern face = Match(Question(asked_, style));
        auto file = face == nullptr ? nullptr : FileOf(face.get());
        if (file == nullptr) {
            throw std::bad_alloc();
        }
        of.face = std::move(file);
    });
    return of.face;
}

const FamilyMetrics& Family::MetricsOf(INT style) const {
    Style& of = styles_[style & FontStyleBoldItalic];
    std::call_once(of.measured, [&] { of.metrics = MetricsIn(*FaceOf(style)); });
    return of.metrics;
}

std::shared_ptr<const Family> FindFamily(const FlatChar* name) {
    const std::string utf8 = Utf8(name);
    if (utf8.empty()) {
        return nullptr;
    }
    const std::lock_guard lock(g_fontconfig);
    const Pattern question = Question(utf8, FontStyleRegular);
    const Pattern face = Match(question);
    if (face == nullptr || !(IsMeant(face.get(), question.get()) || IsGeneric(utf8))) {
        return nullptr;
    }
    FcChar8* found = nullptr;
    auto regular = FileOf(face.get());
    if (regular == nullptr ||
        FcPatternGetString(face.get(), FC_FAMILY, 0, &found) != FcResultMatch) {
        return nullptr;
    }
    return std::make_shared<Family>(Utf16(reinterpret_cast<const char*>(found)), utf8,
                                    std::move(regular));
}

Fallback FindFallback(const Family& family, INT style) {
    const std::lock_guard lock(g_fontconfig);
    Fallback fallback;
    const Pattern question = Question(Utf8(family.name.c_str()), style);
    FcResult result = FcResultMatch;
    FcFontSet* const set = FcFontSort(nullptr, question.get(), FcTrue, nullptr, &result);
    if (set == nullptr) {
        return fallback;
    }
    const Owned<FcFontSet, FcFontSetDestroy> owned(set);
    for (int i = 0; i < set->nfont; ++i) {
        FcCharSet* characters = nullptr;
        if (FcPatternGetCharSet(set->fonts[i], FC_CHARSET, 0, &characters) !=
            FcResultMatch) {
            continue;
        }
        const Pattern face(FcFontRenderPrepare(nullptr, question.get(), set->fonts[i]));
        auto file = face == nullptr ? nullptr : FileOf(face.get());
        if (file != nullptr) {
            fallback.faces.push_back(std::move(file));
            fallback.characters.emplace_back(FcCharSetCopy(characters), FcCharSetDestroy);
        }
    }
    return fallback;
}

}  // namespace engine
