#include "page/output/pdf_bookmarks.h"

#include <qpdf/QPDFObjectHandle.hh>
#include <string>

namespace host {
namespace {

void AddOutline(QPDF& pdf, const std::vector<PdfPage>& pages) {
    const std::vector<QPDFObjectHandle>& drawn = pdf.getAllPages();
    QPDFObjectHandle outline = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    std::vector<QPDFObjectHandle> bookmarks;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        QPDFObjectHandle bookmark =
            pdf.makeIndirectObject(QPDFObjectHandle::parse("<< >>"));
        QPDFObjectHandle place = QPDFObjectHandle::newArray();
        place.appendItem(drawn[i]);
        place.appendItem(QPDFObjectHandle::newName("/Fit"));
        const std::string& name = pages[i].name;
        bookmark.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(
                                          name.empty() ? pages[i].about.title : name));
        bookmark.replaceKey("/Parent", outline);
        bookmark.replaceKey("/Dest", place);
        if (i > 0) {
            bookmark.replaceKey("/Prev", bookmarks.back());
            bookmarks.back().replaceKey("/Next", bookmark);
        }
        bookmarks.push_back(bookmark);
    }
    outline.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    outline.replaceKey("/First", bookmarks.front());
    outline.replaceKey("/Last", bookmarks.back());
    outline.replaceKey(
        "/Count", QPDFObjectHandle::newInteger(static_cast<long long>(bookmarks.size())));
    pdf.getRoot().replaceKey("/Outlines", outline);
    pdf.getRoot().replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
}

void AddLabels(QPDF& pdf, const std::vector<PdfPage>& pages) {
    QPDFObjectHandle numbers = QPDFObjectHandle::newArray();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        QPDFObjectHandle label = QPDFObjectHandle::newDictionary();
        if (pages[i].name.empty()) {
            label = QPDFObjectHandle::parse("<< /S /D >>");
            label.replaceKey("/St",
                             QPDFObjectHandle::newInteger(static_cast<long long>(i) + 1));
        } else {
            label.replaceKey("/P", QPDFObjectHandle::newUnicodeString(pages[i].name));
        }
        numbers.appendItem(QPDFObjectHandle::newInteger(static_cast<long long>(i)));
        numbers.appendItem(label);
    }
    QPDFObjectHandle labels = QPDFObjectHandle::newDictionary();
    labels.replaceKey("/Nums", numbers);
    pdf.getRoot().replaceKey("/PageLabels", labels);
}

}  // namespace

void AddBookmarks(QPDF& pdf, const std::vector<PdfPage>& pages) {
    if (pages.size() > 1 || !pages.front().name.empty()) {
        AddOutline(pdf, pages);
        AddLabels(pdf, pages);
    }
}

}  // namespace host
