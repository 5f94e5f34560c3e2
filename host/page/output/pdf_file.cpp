#include "page/output/pdf_file.h"

#include <cairo-pdf.h>

#include <utility>

#include "page/output/cairo_page.h"
#include "page/output/pdf_archive.h"
#include "page/output/pdf_finish.h"
#include "page/units.h"
#include "system/descriptor.h"
#include "system/memory_file.h"

namespace host {

/// What Cairo writes.
struct PdfFile::Draft {
    int descriptor;
    CairoSurface surface = Owned(nullptr);

    static cairo_status_t Write(void* draft, const unsigned char* data,
                                unsigned int length) {
        return WriteAll(static_cast<Draft*>(draft)->descriptor, data, length) == 0
                   ? CAIRO_STATUS_SUCCESS
                   : CAIRO_STATUS_WRITE_ERROR;
    }
};

PdfFile::PdfFile(int draft, PdfSettings settings)
    : m_settings(std::move(settings)), m_draft(new Draft{draft}) {}

PdfFile::~PdfFile() = default;

bool PdfFile::IsGood() const {
    return m_draft->surface == nullptr ||
           cairo_surface_status(m_draft->surface.get()) == CAIRO_STATUS_SUCCESS;
}

void PdfFile::Add(const Page& page, const Progress& progress, const std::string& name) {
    const bool isArchive = m_settings.print.standard == PdfStandard::A2u;
    if (isArchive) {
        CheckForArchive(page);
    }
    const double width = PointsFromUnits(page.Width());
    const double height = PointsFromUnits(page.Height());
    CairoSurface& surface = m_draft->surface;
    if (surface == nullptr) {
        surface = Owned(cairo_pdf_surface_create_for_stream(Draft::Write, m_draft.get(),
                                                            width, height));
    }
    cairo_pdf_surface_set_size(surface.get(), width, height);
    PdfPage described = PdfPageOf(page, m_settings.dpi);
    described.name = name;
    described.isDropped = true;  // until it is drawn
    CairoDrawing how;
    how.print = m_settings.print;
    for (const PdfPage::Tagged& item : described.items) {
        how.tagged.insert(item.spoken.item);
    }
    m_pages.push_back(std::move(described));
    try {
        m_pages.back().tags =
            DrawOnCairo(surface.get(), page, m_settings.dpi, progress, how);
    } catch (...) {
        cairo_surface_show_page(surface.get());  // the next is another
        throw;
    }
    m_pages.back().isDropped = false;
}

void PdfFile::Finish(const PageAbout& about, const Write& write) {
    FinishSurface(m_draft->surface.get());
    FinishPdf(m_draft->descriptor, about, m_pages, m_settings.print.standard, write);
}

std::vector<std::uint8_t> EncodePdf(const Page& page, const PdfSettings& settings,
                                    const Progress& progress) {
    const MemoryFile draft;
    PdfFile file(draft.Descriptor(), settings);
    file.Add(page, progress);
    std::vector<std::uint8_t> bytes;
    file.Finish(WordsOf(page).about, [&bytes](const std::vector<std::uint8_t>& piece) {
        bytes.insert(bytes.end(), piece.begin(), piece.end());
    });
    return bytes;
}

}  // namespace host
