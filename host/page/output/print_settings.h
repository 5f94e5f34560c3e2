#pragma once

#include <functional>

#include "page/output/map_images.h"

namespace host {

/// The standards that a PDF file meets.
enum class PdfStandard {
    Ua1,  ///< PDF/UA-1: accessible: it can be read aloud
    A2u,  ///< PDF/A-2u as well: for archives, with all text as Unicode
};

/// How files for print are written.
struct PrintSettings {
    MapImages mapImages = MapImages::Lossless;
    PdfStandard standard = PdfStandard::Ua1;  ///< of PDF files
    /// Called when a page has been drawn and is written next, which compresses its
    /// images.
    std::function<void()> drawn = {};
};

}  // namespace host
