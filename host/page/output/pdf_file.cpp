#include "page/output/pdf_file.h"

#include <cairo-pdf.h>

#include "page/output/cairo_page.h"
#include "page/output/pdf_finish.h"
#include "page/units.h"

namespace host {

std::vector<std::uint8_t> EncodePdf(const Page& page, double dpi,
                                    const Progress& progress, MapImages mapImages) {
    std::vector<std::uint8_t> draft;
    const CairoSurface surface = Owned(cairo_pdf_surface_create_for_stream(
        AppendToBytes, &draft, PointsFromUnits(page.Width()),
        PointsFromUnits(page.Height())));
    PdfPage described = PdfPageOf(page, dpi);
    CairoDrawing how;
    how.mapImages = mapImages;
    for (const PdfPage::Tagged& item : described.items) {
        how.tagged.insert(item.spoken.item);
    }
    described.tags = DrawOnCairo(surface.get(), page, dpi, progress, how);
    FinishSurface(surface.get());
    return FinishPdf(draft, {described});
}

}  // namespace host
