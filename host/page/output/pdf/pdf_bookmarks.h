#pragma once

#include <vector>

#include "page/output/pdf/pdf_objects.h"
#include "page/output/pdf/pdf_page.h"

namespace host {

/// A page and its object number in a file.
struct PlacedPage {
    const PdfPage* page;
    int number;
};

/// Gives each page of a file a bookmark, its name or else its title, and a label, its
/// name or else its number, and has viewers show the bookmarks. A single page without a
/// name gets none.
void AddBookmarks(PdfObjects& objects, const std::vector<PlacedPage>& pages,
                  const QPDFObjectHandle& catalogue);

}  // namespace host
