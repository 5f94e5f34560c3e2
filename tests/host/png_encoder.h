#pragma once

#include <gdiplus.h>

#include <string>

namespace host_tests {

/// The PNG encoder that every GDI+ has.
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

inline Gdiplus::Status SavePng(Gdiplus::Bitmap& bitmap, const std::string& path) {
    return bitmap.Save(std::wstring(path.begin(), path.end()).c_str(), &kPngEncoder);
}

/// A green picture of 64 x 48 pixels.
inline void WriteLogo(const std::string& path) {
    Gdiplus::Bitmap logo(64, 48, PixelFormat32bppARGB);
    Gdiplus::Graphics(&logo).Clear(Gdiplus::Color(0, 128, 0));
    SavePng(logo, path);
}

}  // namespace host_tests
