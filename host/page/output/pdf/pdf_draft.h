#pragma once

#include <cstddef>
#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

#include "page/output/pdf/pdf_objects.h"
#include "page/output/print_settings.h"

namespace host {

/// A file that Cairo wrote, of which pages go into another: what they refer to is copied
/// once, and so are images that are drawn on many pages. An object is gone from memory
/// when it has been copied.
class PdfDraft {
public:
    /// Throws std::runtime_error where there is no such file.
    /// @param descriptor not owned, read from its beginning
    /// @param objects of the other file
    PdfDraft(int descriptor, PdfObjects& objects, PdfStandard standard);

    /// The name of the library that wrote it.
    std::string Producer();

    std::size_t PageCount() const { return m_pages.size(); }

    /// The content of a page, and a copy of all else that belongs to the page itself:
    /// what was its place among others is left out.
    struct PageCopy {
        QPDFObjectHandle content;
        QPDFObjectHandle entries;
    };
    PageCopy CopyOf(std::size_t page);

    /// Lets go of a page that was copied.
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
    std::map<std::string, int> m_streams;  // likewise, by a sum of what they hold
};

}  // namespace host
