#pragma once

#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

#include "page/output/pdf/pdf_objects.h"
#include "page/output/pdf/pdf_page.h"

namespace host {

/// Tells readers what stands on the pages of a file, and in which order: each tagged item
/// is an element of the file's structure, with the words that stand for it.
class PdfStructure {
public:
    /// @param isOfOnePage whether the file has only one page
    PdfStructure(PdfObjects& objects, bool isOfOnePage);

    /// Writes the elements of the next page.
    /// @param page its number in the file; its entries are completed
    /// @return the tags of its content
    std::vector<std::string> Add(const PdfPage& described, int page,
                                 QPDFObjectHandle entries);

    /// Writes what holds the pages' elements together.
    void Finish(QPDFObjectHandle catalogue);

private:
    PdfObjects& m_objects;
    bool m_isOfOnePage;
    int m_root;
    int m_document;
    QPDFObjectHandle m_sections;  // of the document: the pages, or the elements of one
    QPDFObjectHandle m_byTag;     // elements of each page, to find them from there
    int m_pages = 0;
};

}  // namespace host
