#include "flat_tokens.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "recording/flat_calls.h"

namespace fuzz::flat {
namespace {

using namespace Gdiplus;
using namespace Gdiplus::DllExports;
using flat_calls::Deed;
using flat_calls::Flat;

struct Token {
    const char* kind = nullptr;
    bool alive = false;
    REAL size = 0.0f;  // a font's
    INT style = 0;
};

// Handed out in turn, so that a deleted one is not another soon.
std::array<Token, 512> g_tokens;
std::size_t g_next = 0;
int g_alive = 0;

Input* g_input = nullptr;
int g_callsLeft = 0;
int g_callsToFailure = 0;
bool g_turned = false;
UINT g_imageSides[2] = {};

constexpr int kMostCalls = 400;

void Check(bool held) {
    if (!held) {
        std::abort();
    }
}

template <typename Native>
Token& TokenOf(Native* native) {
    auto* const token =
        reinterpret_cast<Token*>(const_cast<std::remove_const_t<Native>*>(native));
    Check(token >= g_tokens.data() && token < g_tokens.data() + g_tokens.size());
    Check(token->alive &&
          token->kind == flat_calls::kKindOf<std::remove_const_t<Native>>);
    return *token;
}

/// Counts a call: whether it is carried out.
bool Enter() {
    if (g_input != nullptr && --g_callsLeft < 0) {
        throw EnoughDrawn();
    }
    return --g_callsToFailure != 0;
}

template <typename Native>
void Make(Native** native) {
    for (std::size_t tries = 0; g_tokens[g_next].alive; ++tries) {
        Check(tries < g_tokens.size());
        g_next = (g_next + 1) % g_tokens.size();
    }
    Token& token = g_tokens[g_next];
    g_next = (g_next + 1) % g_tokens.size();
    token = {flat_calls::kKindOf<Native>, true};
    ++g_alive;
    *native = reinterpret_cast<Native*>(&token);
}

/// Objects are alive and of the right kind, and every move and turn is a finite number.
template <bool isMove, typename Argument>
void CheckArgument(Argument argument) {
    if constexpr (flat_calls::kKindOfArgument<Argument> != nullptr) {
        if (argument != nullptr) {
            TokenOf(argument);
        }
    } else if constexpr (isMove && std::is_same_v<Argument, REAL>) {
        Check(std::isfinite(argument));
    }
}

/// A flat function that checks its arguments and does nothing else.
template <auto function>
struct Careful;
template <typename... Arguments, GpStatus (*function)(Arguments...)>
struct Careful<function> {
    static constexpr std::string_view kName = flat_calls::kNameOf<function>;
    static constexpr Deed kDeed = flat_calls::DeedOf(kName);
    static constexpr bool kIsMove =
        kName.find("Translate") != kName.npos || kName.find("Rotate") != kName.npos;

    static GpStatus Call(Arguments... arguments) {
        (CheckArgument<kIsMove>(arguments), ...);
        const GpStatus all = flat_calls::NeedAll(arguments...);
        if constexpr (kDeed == Deed::Deletes) {
            // Never fails: a destructor is where nothing can be thrown.
            if (all == Ok) {
                ((TokenOf(arguments).alive = false), ...);
                --g_alive;
            }
            return all;
        }
        if constexpr (kDeed == Deed::Turns) {
            g_turned = sizeof...(Arguments) > 1;  // all but the one that takes it back
        }
        if (!Enter()) {
            return GenericError;
        }
        if constexpr (kDeed == Deed::Makes) {
            if (all == Ok) {
                Make(flat_calls::PlaceOfMade(arguments...));
            }
        }
        return all;
    }
};

/// A text is not null, ends where its length says, and is followed by a zero.
template <auto function>
void CheckText() {
    Flat<function>::now = [](auto on, const FlatChar* text, INT length, auto... rest) {
        Check(text != nullptr && length >= 0 && text[length] == 0);
        return Careful<function>::Call(on, text, length, rest...);
    };
}

/// Answers a question after checking the object that it is about.
template <auto function, typename Object, typename Value, typename Answer>
GpStatus AnswerOf(Object* object, Value* value, Answer answer) {
    const GpStatus status = Careful<function>::Call(object, value);
    if (status == Ok) {
        *value = answer();
    }
    return status;
}

[[maybe_unused]] const bool g_careful = [] {
    flat_calls::Use<Careful>();
    CheckText<GdipDrawString>();
    CheckText<GdipAddPathString>();
    Flat<GdipCreateFontFamilyFromName>::now =
        [](const FlatChar* name, GpFontCollection* collection, GpFontFamily** family) {
            return name[0] == 0 ? FontFamilyNotFound
                                : Careful<GdipCreateFontFamilyFromName>::Call(
                                      name, collection, family);
        };
    Flat<GdipCreateFont>::now = [](const GpFontFamily* family, REAL emSize, INT style,
                                   Unit unit, GpFont** font) {
        if (!(emSize > 0.0f)) {
            return InvalidParameter;
        }
        const GpStatus status =
            Careful<GdipCreateFont>::Call(family, emSize, style, unit, font);
        if (status == Ok) {
            TokenOf(*font).size = emSize;
            TokenOf(*font).style = style;
        }
        return status;
    };
    Flat<GdipGetFontSize>::now = [](GpFont* font, REAL* size) {
        return AnswerOf<GdipGetFontSize>(font, size,
                                         [font] { return TokenOf(font).size; });
    };
    Flat<GdipGetFontStyle>::now = [](GpFont* font, INT* style) {
        return AnswerOf<GdipGetFontStyle>(font, style,
                                          [font] { return TokenOf(font).style; });
    };
    Flat<GdipGetPathWorldBoundsI>::now = [](GpPath* path, GpRect* bounds,
                                            const GpMatrix* matrix, const GpPen* pen) {
        const GpStatus status =
            Careful<GdipGetPathWorldBoundsI>::Call(path, bounds, matrix, pen);
        if (status == Ok) {
            bounds->X = g_input->Whole();
            bounds->Y = g_input->Whole();
            bounds->Width = g_input->Whole();
            bounds->Height = g_input->Whole();
        }
        return status;
    };
    Flat<GdipLoadImageFromFile>::now = [](const FlatChar* file, GpImage** image) {
        if (file[0] == 0) {
            return OutOfMemory;
        }
        g_imageSides[0] = static_cast<UINT>(g_input->Whole());
        g_imageSides[1] = static_cast<UINT>(g_input->Whole());
        return Careful<GdipLoadImageFromFile>::Call(file, image);
    };
    Flat<GdipGetImagePixelFormat>::now = [](GpImage* image, PixelFormat*) {
        TokenOf(image);
        return NotImplemented;
    };
    Flat<GdipGetImageWidth>::now = [](GpImage* image, UINT* width) {
        return AnswerOf<GdipGetImageWidth>(image, width, [] { return g_imageSides[0]; });
    };
    Flat<GdipGetImageHeight>::now = [](GpImage* image, UINT* height) {
        return AnswerOf<GdipGetImageHeight>(image, height,
                                            [] { return g_imageSides[1]; });
    };
    return true;
}();

}  // namespace

void Begin(Input& input) {
    g_input = &input;
    g_callsLeft = kMostCalls;
    g_callsToFailure = input.Choice(4) == 1 ? input.Choice(64) : 0;
    g_turned = false;
}

int LiveObjects() { return g_alive; }

bool IsTurned() { return g_turned; }

}  // namespace fuzz::flat
