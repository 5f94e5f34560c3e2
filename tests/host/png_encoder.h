#pragma once

#include <gdiplus.h>

namespace host_tests {

/// The PNG encoder that every GDI+ has.
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

}  // namespace host_tests
