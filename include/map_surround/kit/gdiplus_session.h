#pragma once

/// @file
/// GDI+ from start to shutdown.

#include <gdiplus.h>

#include <stdexcept>

/// What most hosts need around the library, in headers alone: use it, or your own.
namespace map_surround::kit {

/// GDI+ for as long as it lives: make it before the first element, and let it go after
/// the last element, bitmap and surface.
class GdiplusSession {
public:
    /// Throws std::runtime_error when GDI+ cannot be started, as in a version it has not.
    explicit GdiplusSession(const Gdiplus::GdiplusStartupInput& input = {}) {
        if (Gdiplus::GdiplusStartup(&m_token, &input, nullptr) != Gdiplus::Ok) {
            throw std::runtime_error("GDI+: cannot be started");
        }
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    ~GdiplusSession() { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

}  // namespace map_surround::kit
