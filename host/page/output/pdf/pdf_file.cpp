#include "page/output/pdf/pdf_file.h"

#include <cairo-pdf.h>

#include <stdexcept>
#include <system_error>
#include <utility>

#include "page/output/cairo_page.h"
#include "page/output/pdf/pdf_archive.h"
#include "page/output/pdf/pdf_finish.h"
#include "page/units.h"
#include "system/descriptor.h"
#include "system/memory_file.h"

namespace host {

/// The file that Cairo writes.
struct PdfFile::Draft {
    int descriptor;
    int error = 0;  ///< why it could not be written, as errno has it
    CairoSurface surface = Owned(nullptr);

    static cairo_status_t Write(void* draft, const unsigned char* data,
                                unsigned int length) {
        auto& self = *static_cast<Draft*>(draft);
        self.error = WriteAll(self.descriptor, data, length);
        return self.error == 0 ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
    }

    /// A step that writes; on failure throws the reason, which Cairo does not know.
    template <typename Step>
    auto Writing(Step step) const {
        try {
            return step();
        } catch (const std::runtime_error&) {
            if (error != 0) {
                throw std::runtime_error(std::generic_category().message(error));
            }
            throw;
        }
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
    described.isDropped = true;  // until it has been drawn
    CairoDrawing how;
    how.print = m_settings.print;
    for (const PdfPage::Tagged& item : described.items) {
        how.tagged.insert(item.spoken.item);
    }
    m_pages.push_back(std::move(described));
    try {
        m_pages.back().tags = m_draft->Writing([&] {
            return DrawOnCairo(surface.get(), page, m_settings.dpi, progress, how);
        });
    } catch (...) {
        cairo_surface_show_page(surface.get());  // begins another page
        throw;
    }
    m_pages.back().isDropped = false;
}

void PdfFile::Finish(const PageAbout& about, const PdfObjects::Sink& write) {
    m_draft->Writing([&] { FinishSurface(m_draft->surface.get()); });
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
