#pragma once

#include <dlfcn.h>

#include "gdiplus/flat.h"

namespace Gdiplus {

enum DebugEventLevel { DebugEventLevelFatal, DebugEventLevelWarning };

typedef VOID (*DebugEventProc)(DebugEventLevel level, char* message);
typedef Status (*NotificationHookProc)(ULONG_PTR* token);
typedef VOID (*NotificationUnhookProc)(ULONG_PTR token);

struct GdiplusStartupInput {
    UINT32 GdiplusVersion = 1;
    Gdiplus::DebugEventProc DebugEventCallback = nullptr;
    BOOL SuppressBackgroundThread = 0;
    BOOL SuppressExternalCodecs = 0;
};

struct GdiplusStartupOutput {
    NotificationHookProc NotificationHook = nullptr;
    NotificationUnhookProc NotificationUnhook = nullptr;
};

/// Starts GDI+ for the process; each start wants one GdiplusShutdown with its token.
inline Status GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                             GdiplusStartupOutput* output) {
    return DllExports::GdiplusStartup(token, input, output);
}

/// Stops GDI+. Every object of it must have been deleted before.
///
/// libgdiplus shuts fontconfig down, which ends the process with an assertion while
/// anything still holds a font; Pango's default font map does once it has drawn a
/// fallback font, as for Chinese text in "Arial". So that map is let go first.
inline VOID GdiplusShutdown(ULONG_PTR token) {
    using SetDefaultFontMap = void (*)(void*);
    if (void* function = dlsym(RTLD_DEFAULT, "pango_cairo_font_map_set_default")) {
        reinterpret_cast<SetDefaultFontMap>(function)(nullptr);
    }
    DllExports::GdiplusShutdown(token);
}

}  // namespace Gdiplus
