#pragma once

#include "gdiplus/flat.h"

namespace Gdiplus {

enum DebugEventLevel { DebugEventLevelFatal = 0, DebugEventLevelWarning = 1 };

typedef VOID (*DebugEventProc)(DebugEventLevel level, char* message);
typedef Status (*NotificationHookProc)(ULONG_PTR* token);
typedef VOID (*NotificationUnhookProc)(ULONG_PTR token);

/// How GDI+ is to start; the defaults suit every program.
struct GdiplusStartupInput {
    /// All switched off.
    GdiplusStartupInput(Gdiplus::DebugEventProc debugEventCallback = nullptr,
                        BOOL suppressBackgroundThread = 0,
                        BOOL suppressExternalCodecs = 0)
        : DebugEventCallback(debugEventCallback),
          SuppressBackgroundThread(suppressBackgroundThread),
          SuppressExternalCodecs(suppressExternalCodecs) {}

    /// 1; called on errors within GDI+, or null; no thread of its own; no codecs but its
    /// own.
    UINT32 GdiplusVersion = 1;
    Gdiplus::DebugEventProc DebugEventCallback;
    BOOL SuppressBackgroundThread;
    BOOL SuppressExternalCodecs;
};

/// What a host without a background thread has to call; null otherwise.
struct GdiplusStartupOutput {
    /// Null here.
    NotificationHookProc NotificationHook = nullptr;
    NotificationUnhookProc NotificationUnhook = nullptr;
};

/// Starts GDI+ for the process, before any other use of it; each start wants one
/// GdiplusShutdown with its token.
inline Status GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                             GdiplusStartupOutput* output) {
    if (token != nullptr) {
        *token = 0;
    }
    return DllExports::GdiplusStartup(token, input, output);
}

/// Ends a use of GDI+. Every object of it must have been deleted before.
///
/// libgdiplus itself is left running, for its own shutdown closes the whole process's
/// fontconfig, which ends the program with an assertion while anything still holds a
/// font: a toolkit, another thread, or the worker thread in which Pango still sorts the
/// fonts of the text just drawn. What stays are fontconfig's caches, which the next
/// start finds ready.
inline VOID GdiplusShutdown(ULONG_PTR) {}

}  // namespace Gdiplus
