#pragma once

#include <vector>

#include "page/output/pdf/pdf_objects.h"
#include "page/output/pdf/pdf_page.h"
#include "page/output/print_settings.h"

namespace host {

/// Completes a PDF file by Cairo with what Cairo does not write: metadata for viewers and
/// catalogues, the language, the structure for reading aloud that PDF/UA-1 requires, and
/// where its maps lie on Earth.
///
/// It is dated by SOURCE_DATE_EPOCH, or not at all, and its identifier is derived from
/// its contents, so that the same page gives the same bytes. Throws std::runtime_error
/// when it cannot be written.
/// @param draftFile descriptor of the file; read from its beginning
/// @param about the file as a whole
/// @param drawn its pages, as Cairo drew them
/// @param standard whose rules it keeps
/// @param write takes the file, piece by piece
void FinishPdf(int draftFile, const PageAbout& about, const std::vector<PdfPage>& drawn,
               PdfStandard standard, const PdfObjects::Sink& write);

}  // namespace host
