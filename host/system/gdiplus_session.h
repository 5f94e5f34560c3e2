#pragma once

#include <stdexcept>

#include "map_surround/kit/gdiplus_session.h"

namespace host {

/// Throws std::runtime_error when GDI+ cannot be started.
class GdiplusSession : public map_surround::kit::GdiplusSession {
public:
    GdiplusSession() {
        if (GetStatus() != Gdiplus::Ok) {
            throw std::runtime_error("GDI+: cannot be started");
        }
    }
};

}  // namespace host
