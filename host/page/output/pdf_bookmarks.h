#pragma once

#include <qpdf/QPDF.hh>
#include <vector>

#include "page/output/pdf_page.h"

namespace host {

/// Gives each page of a file a bookmark, its name or else its title, and a label, its
/// name or else its number, and has viewers show the bookmarks. A file of one page
/// without a name gets none.
void AddBookmarks(QPDF& pdf, const std::vector<PdfPage>& pages);

}  // namespace host
