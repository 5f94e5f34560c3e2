// Stands in front of GDI+ by LD_PRELOAD, writes calls to standard output and hands them
// on.

#include <dlfcn.h>

#include <cstdint>
#include <cstdio>

namespace {

int g_within = 0;  // how deep in GDI+, which calls itself

template <typename... Arguments>
void Tell(const char* format, Arguments... arguments) {
    if (g_within == 0) {
        std::printf(format, arguments...);
    }
}

template <typename... Arguments>
int HandOn(const char* name, int (*)(Arguments...), Arguments... arguments) {
    const auto real = reinterpret_cast<int (*)(Arguments...)>(dlsym(RTLD_NEXT, name));
    ++g_within;
    const int status = real(arguments...);
    --g_within;
    return status;
}

struct RectF {
    float x, y, width, height;
};

void PrintText(const char16_t* text, int length) {
    for (int i = 0; i < length; ++i) {
        Tell("%s%x", i == 0 ? "" : ",", static_cast<unsigned>(text[i]));
    }
}

}  // namespace

extern "C" {

int GdipCreatePen1(std::uint32_t color, float width, int unit, void** pen) {
    const int status = HandOn("GdipCreatePen1", &GdipCreatePen1, color, width, unit, pen);
    Tell("pen %p %x %.9g %d\n", *pen, color, width, unit);
    return status;
}

int GdipSetPenColor(void* pen, std::uint32_t color) {
    Tell("pencolor %p %x\n", pen, color);
    return HandOn("GdipSetPenColor", &GdipSetPenColor, pen, color);
}

int GdipSetPenDashStyle(void* pen, int dash) {
    Tell("pendash %p %d\n", pen, dash);
    return HandOn("GdipSetPenDashStyle", &GdipSetPenDashStyle, pen, dash);
}

int GdipDeletePen(void* pen) {
    Tell("gone %p\n", pen);
    return HandOn("GdipDeletePen", &GdipDeletePen, pen);
}

int GdipCreateSolidFill(std::uint32_t color, void** brush) {
    const int status = HandOn("GdipCreateSolidFill", &GdipCreateSolidFill, color, brush);
    Tell("brush %p %x\n", *brush, color);
    return status;
}

int GdipDeleteBrush(void* brush) {
    Tell("gone %p\n", brush);
    return HandOn("GdipDeleteBrush", &GdipDeleteBrush, brush);
}

int GdipCreateFont(void* family, float size, int style, int unit, void** font) {
    const int status =
        HandOn("GdipCreateFont", &GdipCreateFont, family, size, style, unit, font);
    Tell("font %p %.9g %d %d\n", *font, size, style, unit);
    return status;
}

int GdipDeleteFont(void* font) {
    Tell("gone %p\n", font);
    return HandOn("GdipDeleteFont", &GdipDeleteFont, font);
}

int GdipDrawLineI(void* graphics, void* pen, int x1, int y1, int x2, int y2) {
    Tell("line %p %d %d %d %d\n", pen, x1, y1, x2, y2);
    return HandOn("GdipDrawLineI", &GdipDrawLineI, graphics, pen, x1, y1, x2, y2);
}

int GdipDrawRectangleI(void* graphics, void* pen, int x, int y, int width, int height) {
    Tell("rectangle %p %d %d %d %d\n", pen, x, y, width, height);
    return HandOn("GdipDrawRectangleI", &GdipDrawRectangleI, graphics, pen, x, y, width,
                  height);
}

int GdipFillRectangle(void* graphics, void* brush, float x, float y, float width,
                      float height) {
    Tell("fill %p %.9g %.9g %.9g %.9g\n", brush, x, y, width, height);
    return HandOn("GdipFillRectangle", &GdipFillRectangle, graphics, brush, x, y, width,
                  height);
}

int GdipFillRectangleI(void* graphics, void* brush, int x, int y, int width, int height) {
    Tell("fillwhole %p %d %d %d %d\n", brush, x, y, width, height);
    return HandOn("GdipFillRectangleI", &GdipFillRectangleI, graphics, brush, x, y, width,
                  height);
}

int GdipDrawString(void* graphics, const char16_t* text, int length, const void* font,
                   const RectF* box, const void* format, const void* brush) {
    Tell("text %p %p %.9g %.9g %.9g %.9g %s ", font, brush, box->x, box->y, box->width,
         box->height, format == nullptr ? "plain" : "formatted");
    PrintText(text, length);
    Tell("\n");
    return HandOn("GdipDrawString", &GdipDrawString, graphics, text, length, font, box,
                  format, brush);
}

}  // extern "C"
