#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "page/output/pdf/pdf_objects.h"
#include "page/output/pdf/pdf_page.h"
#include "page/output/print_settings.h"
#include "page/page.h"

namespace host {

/// How a PDF file is written.
struct PdfSettings {
    double dpi = 150.0;  ///< of maps: an A4 page is 842 x 595 points at any
    PrintSettings print = {};
};

/// A PDF file of pages in their true size: shapes stay shapes and texts texts, in fonts
/// that the file brings along, one copy of each for all its pages; maps are images. It is
/// searched, read aloud and measured as its pages are (see PdfPageOf), and the same pages
/// give the same bytes.
///
/// A page is gone from memory when it has been added. Two files take part: Cairo writes a
/// draft, of which the file is made when it is finished.
class PdfFile {
public:
    /// @param draft descriptor of an empty file, open for reading and writing; not owned
    explicit PdfFile(int draft, PdfSettings settings = {});
    PdfFile(const PdfFile&) = delete;
    PdfFile& operator=(const PdfFile&) = delete;
    ~PdfFile();

    /// Draws a page. Throws what its drawing throws, and NamedError for a text of which
    /// no font has a character where PDF/A is asked for, and the file is then without it;
    /// and std::runtime_error when the draft cannot be written.
    /// @param name of the page in the file, as label and as bookmark; empty: its number,
    /// and its title
    void Add(const Page& page, const Progress& progress = {},
             const std::string& name = "");

    /// Takes the last page that was added out again.
    void DropLast() { m_pages.back().isDropped = true; }

    /// Whether the draft can still be written.
    bool IsGood() const;

    /// Writes the file, of at least one page. Nothing can be added after that. Throws
    /// std::runtime_error.
    /// @param about the file as a whole
    void Finish(const PageAbout& about, const PdfObjects::Sink& write);

private:
    struct Draft;

    PdfSettings m_settings;
    std::unique_ptr<Draft> m_draft;
    std::vector<PdfPage> m_pages;  // with those that were dropped
};

/// The bytes of a file of one page. Throws as PdfFile does.
std::vector<std::uint8_t> EncodePdf(const Page& page, const PdfSettings& settings,
                                    const Progress& progress = {});

}  // namespace host
