#pragma once

#include <functional>

#include "page/output/map_images.h"

namespace host {

/// The rules that a PDF file keeps.
enum class PdfStandard {
    Ua1,  ///< PDF/UA-1: it can be read aloud
    A2u,  ///< PDF/A-2u as well: it is drawn in the same way for ever, and is text
};

/// How files for print are written.
struct PrintSettings {
    MapImages mapImages = MapImages::Lossless;
    PdfStandard standard = PdfStandard::Ua1;  ///< of PDF files
    /// Called when a page has been drawn and is written next, which packs its images.
    std::function<void()> drawn = {};
};

}  // namespace host
