#pragma once

#include <qpdf/QPDF.hh>
#include <vector>

#include "page/output/pdf_page.h"

namespace host {

/// Tells readers what stands on the pages of a file that Cairo drew, and in which order:
/// each tagged item is an element of the file's structure, with the words that stand for
/// it, and all else on the pages is decoration. Throws std::runtime_error where the tags
/// in the file are not those of the pages.
void WriteStructure(QPDF& pdf, const std::vector<PdfPage>& pages);

}  // namespace host
