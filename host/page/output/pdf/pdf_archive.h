#pragma once

#include "page/output/pdf/pdf_objects.h"
#include "page/page.h"

namespace host {

// The requirements of PDF/A-2u beyond PDF/UA-1.

/// Throws NamedError for the first item with a character that no font has: a box in its
/// place is not text.
void CheckForArchive(const Page& page);

/// Declares the colours of a file to be sRGB.
void AddColours(PdfObjects& objects, QPDFObjectHandle catalogue);

}  // namespace host
