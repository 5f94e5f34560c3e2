#pragma once

#include <gdiplus.h>

#include <string>
#include <string_view>

#include "map_surround/frame.h"

namespace gallery {

inline const Gdiplus::Color kInk{0xFF1B2733};
inline const Gdiplus::Color kCaptionInk{0xFF55606B};

/// Writes a text in Arial with its top left corner on a point.
void Write(Gdiplus::Graphics* graphics, const std::wstring& text, float size, int style,
           Gdiplus::Color color, int left, int top);

/// A frame with a border, a light fill and a shadow.
/// @param shadowX, shadowY parts of the frame's width and height
void Decorate(CFrameBase& frame, float shadowX, float shadowY);

/// Smooth shapes and smooth text.
void Smooth(Gdiplus::Graphics* graphics);

/// A word of the catalogue in wide characters.
std::wstring Wide(std::string_view word);
/// "scale-bar-line" as "scale_bar_line".
std::wstring FileName(std::string_view word);
/// "scale-bar-line" as "scale bar line".
std::wstring Spoken(std::string_view word);

/// False with a message on standard error when the file cannot be written.
bool SavePng(Gdiplus::Bitmap& bitmap, const std::wstring& file);

}  // namespace gallery
