#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// Throws std::runtime_error with the reason where no file of the name's ending can be
/// written: there is no such format, or what makes it is not installed.
void CheckPageOutput(const std::string& path);

/// Why a page cannot be drawn at the resolution, as the end of a sentence; empty when it
/// can. A0 at 400 dpi, 248 million pixels, can.
std::string WhyTooLarge(const Page& page, double dpi);

/// The bytes of the file that a page is drawn into: an image or a file for print, as the
/// name's ending says. Throws what the page's drawing throws, and std::runtime_error with
/// the reason when it cannot be encoded.
/// @param encoding called between drawing an image and encoding it
std::vector<std::uint8_t> EncodePage(const Page& page, const std::string& path,
                                     double dpi, const Progress& progress = {},
                                     const std::function<void()>& encoding = {});

}  // namespace host
