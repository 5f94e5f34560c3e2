#pragma once

#include "page/output/pdf/pdf_objects.h"
#include "page/page.h"

namespace host {

// What PDF/A-2u asks for beyond PDF/UA-1.

/// Throws NamedError for the first item with a character that no font has: the box in its
/// place is no text.
void CheckForArchive(const Page& page);

/// Says what the colours of a file are, those of sRGB.
void AddColours(PdfObjects& objects, QPDFObjectHandle catalogue);

}  // namespace host
