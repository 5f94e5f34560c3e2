#pragma once

#include <gdiplus.h>

#include <stdexcept>

namespace host {

/// GDI+ for as long as it lives. Throws std::runtime_error when it cannot be started.
class GdiplusSession {
public:
    GdiplusSession() {
        const Gdiplus::GdiplusStartupInput input;
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

}  // namespace host
