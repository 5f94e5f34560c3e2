#pragma once

#include <cstddef>
#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

#include "page/output/pdf/pdf_objects.h"
#include "page/output/print_settings.h"

namespace host {

/// A file that Cairo wrote, whose pages go into another: what they refer to is copied
/// once, and so are images that are drawn on many pages. An object is dropped from memory
/// once copied.
class PdfDraft {
public:
    /// Throws std::runtime_error if it is not a PDF file.
    /// @param descriptor not owned, read from its beginning
    /// @param objects of the other file
    PdfDraft(int descriptor, PdfObjects& objects, PdfStandard standard);

    /// The name of the library that wrote it.
    std::string Producer();

    std::size_t PageCount() const { return m_pages.size(); }

    /// The content of a page, and a copy of everything else that belongs to it, except
    /// its place among the pages.
    struct PageCopy {
        QPDFObjectHandle content;
        QPDFObjectHandle entries;
    };
    PageCopy CopyOf(std::size_t page);

    /// Releases a page that has been copied.
    void Forget(std::size_t page);

private:
    QPDFObjectHandle Copied(QPDFObjectHandle object);
    QPDFObjectHandle Value(QPDFObjectHandle object);
    int Written(QPDFObjectHandle stream);

    QPDF m_file;
    PdfObjects& m_objects;
    bool m_isArchive;
    std::vector<QPDFObjectHandle> m_pages;
    std::map<int, int> m_copies;           // their numbers, by those in the draft
    std::map<std::string, int> m_streams;  // likewise, by a checksum of their contents
};

}  // namespace host
