#pragma once

#include "gdiplus/flat.h"

namespace Gdiplus {

enum DebugEventLevel { DebugEventLevelFatal = 0, DebugEventLevelWarning = 1 };

typedef VOID (*DebugEventProc)(DebugEventLevel level, char* message);
typedef Status (*NotificationHookProc)(ULONG_PTR* token);
typedef VOID (*NotificationUnhookProc)(ULONG_PTR token);

/// Startup options; the defaults suit every program.
struct GdiplusStartupInput {
    /// Everything off.
    GdiplusStartupInput(Gdiplus::DebugEventProc debugEventCallback = nullptr,
                        BOOL suppressBackgroundThread = 0,
                        BOOL suppressExternalCodecs = 0)
        : DebugEventCallback(debugEventCallback),
          SuppressBackgroundThread(suppressBackgroundThread),
          SuppressExternalCodecs(suppressExternalCodecs) {}

    /// Always 1; called on errors inside GDI+, or null; no background thread; no external
    /// codecs.
    UINT32 GdiplusVersion = 1;
    Gdiplus::DebugEventProc DebugEventCallback;
    BOOL SuppressBackgroundThread;
    BOOL SuppressExternalCodecs;
};

/// Hooks for a host that suppresses the background thread.
struct GdiplusStartupOutput {
    /// Always null here.
    NotificationHookProc NotificationHook = nullptr;
    NotificationUnhookProc NotificationUnhook = nullptr;
};

/// Starts GDI+ for the process, before any other use of it. Pair each call with a
/// GdiplusShutdown of its token.
inline Status GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                             GdiplusStartupOutput* output) {
    if (token != nullptr) {
        *token = 0;
    }
    return DllExports::GdiplusStartup(token, input, output);
}

/// Ends a use of GDI+. Delete every GDI+ object first.
inline VOID GdiplusShutdown(ULONG_PTR token) { DllExports::GdiplusShutdown(token); }

}  // namespace Gdiplus
