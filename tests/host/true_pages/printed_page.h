#pragma once

#include <string>

#include "true_pages/picture.h"

namespace true_pages {

/// Checks a PDF file of one page: it keeps the rules of PDF/UA-1, reads aloud what is on
/// the page, and looks like the page's picture, rendered at its resolution by pdftoppm.
void CheckPrint(const std::string& file, double dpi, const Picture& picture);

}  // namespace true_pages
