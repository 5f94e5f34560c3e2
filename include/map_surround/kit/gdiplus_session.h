#pragma once

/// @file
/// GDI+ from start to shutdown.

#include <gdiplus.h>

/// What most hosts need around the library, in headers alone: use it, or your own.
namespace map_surround::kit {

/// Keeps GDI+ running while it lives: create it before the first element, and destroy it
/// after the last element, bitmap and surface.
class GdiplusSession {
public:
    /// Starts GDI+. If that fails, as for a version that GDI+ does not support, all
    /// drawing fails with its own status.
    explicit GdiplusSession(const Gdiplus::GdiplusStartupInput& input = {})
        : m_status(Gdiplus::GdiplusStartup(&m_token, &input, nullptr)) {}
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    ~GdiplusSession() {
        if (m_status == Gdiplus::Ok) {
            Gdiplus::GdiplusShutdown(m_token);
        }
    }

    /// Ok while GDI+ runs, else why it does not.
    Gdiplus::Status GetStatus() const { return m_status; }

private:
    ULONG_PTR m_token = 0;
    Gdiplus::Status m_status;
};

}  // namespace map_surround::kit
