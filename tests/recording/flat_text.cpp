#include "recording/lines.h"
#include "recording/session.h"

using namespace recording;

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreateFontFamilyFromName(const FlatChar* name,
                                                 GpFontCollection* collection,
                                                 GpFontFamily** family) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipCreateFontFamilyFromName)>("GdipCreateFontFamilyFromName");
    Object object;
    object.kind = "family";
    object.content = Utf8(name, -1);
    object.look = "family[" + Quoted(object.content) + "]";
    const std::string line = "GdipCreateFontFamilyFromName " + Quoted(object.content);
    const bool nameless = object.content.empty();
    return RunCreation(
        "GdipCreateFontFamilyFromName", [&] { return line; },
        [&] { return real(name, collection, family); }, family, std::move(object),
        nameless ? FontFamilyNotFound : Ok);
}

GpStatus WINGDIPAPI GdipDeleteFontFamily(GpFontFamily* family) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipDeleteFontFamily)>("GdipDeleteFontFamily");
    return RunDeletion("GdipDeleteFontFamily", family, [&] { return real(family); });
}

GpStatus WINGDIPAPI GdipCreateFont(const GpFontFamily* family, REAL emSize, INT style,
                                   Unit unit, GpFont** font) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipCreateFont)>("GdipCreateFont");
    Object object;
    object.kind = "font";
    object.content = family == nullptr ? "" : ThisThread().Of(family).content;
    object.size = emSize;
    object.style = style;
    object.look = FontLook(object.content, emSize, style, unit);
    const std::string line = "GdipCreateFont " + object.look;
    const bool possible = family != nullptr && emSize > 0.0f;
    return RunCreation(
        "GdipCreateFont", [&] { return line; },
        [&] { return real(family, emSize, style, unit, font); }, font, std::move(object),
        possible ? Ok : InvalidParameter);
}

GpStatus WINGDIPAPI GdipDeleteFont(GpFont* font) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDeleteFont)>("GdipDeleteFont");
    return RunDeletion("GdipDeleteFont", font, [&] { return real(font); });
}

GpStatus WINGDIPAPI GdipGetFontSize(GpFont* font, REAL* size) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipGetFontSize)>("GdipGetFontSize");
    return Run(
        "GdipGetFontSize", CallKind::Internal,
        [&] { return "GdipGetFontSize " + ThisThread().LookOf(font); },
        [&] { return real(font, size); },
        [&] {
            if (font != nullptr) {
                *size = ThisThread().Of(font).size;
            }
            return NeedAll(font);
        });
}

GpStatus WINGDIPAPI GdipGetFontStyle(GpFont* font, INT* style) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipGetFontStyle)>("GdipGetFontStyle");
    return Run(
        "GdipGetFontStyle", CallKind::Internal,
        [&] { return "GdipGetFontStyle " + ThisThread().LookOf(font); },
        [&] { return real(font, style); },
        [&] {
            if (font != nullptr) {
                *style = ThisThread().Of(font).style;
            }
            return NeedAll(font);
        });
}

GpStatus WINGDIPAPI GdipCreateStringFormat(INT flags, LANGID language,
                                           GpStringFormat** format) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipCreateStringFormat)>("GdipCreateStringFormat");
    Object object;
    object.kind = "format";
    object.style = flags;
    object.look = FormatLook(flags, 0);
    return RunCreation(
        "GdipCreateStringFormat",
        [&] {
            return "GdipCreateStringFormat " + std::to_string(flags) + " " +
                   std::to_string(language);
        },
        [&] { return real(flags, language, format); }, format, std::move(object));
}

GpStatus WINGDIPAPI GdipSetStringFormatAlign(GpStringFormat* format,
                                             StringAlignment alignment) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipSetStringFormatAlign)>("GdipSetStringFormatAlign");
    const GpStatus status = Run(
        "GdipSetStringFormatAlign", CallKind::Internal,
        [&] { return "GdipSetStringFormatAlign " + std::to_string(alignment); },
        [&] { return real(format, alignment); }, [&] { return NeedAll(format); });
    if (status == Ok && ThisThread().depth == 0) {
        Object& object = ThisThread().objects[format];
        object.look = FormatLook(object.style, alignment);
    }
    return status;
}

GpStatus WINGDIPAPI GdipDeleteStringFormat(GpStringFormat* format) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipDeleteStringFormat)>("GdipDeleteStringFormat");
    return RunDeletion("GdipDeleteStringFormat", format, [&] { return real(format); });
}

GpStatus WINGDIPAPI GdipDrawString(GpGraphics* graphics, const FlatChar* text, INT length,
                                   const GpFont* font, const GpRectF* layout,
                                   const GpStringFormat* format, const GpBrush* brush) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDrawString)>("GdipDrawString");
    return Run(
        "GdipDrawString", CallKind::Visible,
        [&] {
            const Session& session = ThisThread();
            return DrawString(Utf8(text, length), session.LookOf(font), layout->X,
                              layout->Y, session.LookOf(brush), layout->Width,
                              layout->Height, session.LookOf(format));
        },
        [&] { return real(graphics, text, length, font, layout, format, brush); },
        [&] { return NeedAll(graphics, font, brush); });
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
