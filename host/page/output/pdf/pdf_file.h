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
    double dpi = 150.0;  ///< of maps: an A4 page is always 842 x 595 points
    PrintSettings print = {};
};

/// A PDF file of pages in their true size: shapes stay shapes and text stays text, in
/// embedded fonts that all its pages share; maps are images. It can be searched, read
/// aloud and measured (see PdfPageOf), and the same pages give the same bytes.
///
/// A page is dropped from memory once it has been added. Two files take part: Cairo
/// writes a draft, from which the file is made at the end.
class PdfFile {
public:
    /// @param draft descriptor of an empty file, open for reading and writing; not owned
    explicit PdfFile(int draft, PdfSettings settings = {});
    PdfFile(const PdfFile&) = delete;
    PdfFile& operator=(const PdfFile&) = delete;
    ~PdfFile();

    /// Draws a page. Throws what drawing it throws; where PDF/A is asked for, NamedError
    /// for a text with a character that no font has, and the page is left out of the
    /// file; and std::runtime_error when the draft cannot be written.
    /// @param name the page's label and bookmark in the file; when empty, its number and
    /// its title
    void Add(const Page& page, const Progress& progress = {},
             const std::string& name = "");

    /// Removes the last page that was added.
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
    std::vector<PdfPage> m_pages;  // including dropped ones
};

/// The bytes of a file with one page. Throws as PdfFile does.
std::vector<std::uint8_t> EncodePdf(const Page& page, const PdfSettings& settings,
                                    const Progress& progress = {});

}  // namespace host
