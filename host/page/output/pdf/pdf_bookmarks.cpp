#include "page/output/pdf/pdf_bookmarks.h"

#include <qpdf/QPDFObjectHandle.hh>
#include <string>

namespace host {
namespace {

using Handle = QPDFObjectHandle;

void AddOutline(PdfObjects& objects, const std::vector<PlacedPage>& pages,
                Handle catalogue) {
    const int outline = objects.Reserve();
    std::vector<int> numbers(pages.size());
    for (int& number : numbers) {
        number = objects.Reserve();
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Handle bookmark = Handle::newDictionary();
        const std::string& name = pages[i].page->name;
        bookmark.replaceKey(
            "/Title",
            Handle::newUnicodeString(name.empty() ? pages[i].page->about.title : name));
        bookmark.replaceKey("/Parent", PdfObjects::Reference(outline));
        bookmark.replaceKey("/Dest",
                            Handle::newArray({PdfObjects::Reference(pages[i].number),
                                              Handle::newName("/Fit")}));
        if (i > 0) {
            bookmark.replaceKey("/Prev", PdfObjects::Reference(numbers[i - 1]));
        }
        if (i + 1 < pages.size()) {
            bookmark.replaceKey("/Next", PdfObjects::Reference(numbers[i + 1]));
        }
        objects.Write(numbers[i], bookmark);
    }
    Handle entries = Handle::newDictionary();
    entries.replaceKey("/Type", Handle::newName("/Outlines"));
    entries.replaceKey("/First", PdfObjects::Reference(numbers.front()));
    entries.replaceKey("/Last", PdfObjects::Reference(numbers.back()));
    entries.replaceKey("/Count",
                       Handle::newInteger(static_cast<long long>(pages.size())));
    objects.Write(outline, entries);
    catalogue.replaceKey("/Outlines", PdfObjects::Reference(outline));
    catalogue.replaceKey("/PageMode", Handle::newName("/UseOutlines"));
}

void AddLabels(const std::vector<PlacedPage>& pages, Handle catalogue) {
    Handle numbers = Handle::newArray();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Handle label = Handle::newDictionary();
        const std::string& name = pages[i].page->name;
        if (name.empty()) {
            label.replaceKey("/S", Handle::newName("/D"));
            label.replaceKey("/St", Handle::newInteger(static_cast<long long>(i) + 1));
        } else {
            label.replaceKey("/P", Handle::newUnicodeString(name));
        }
        numbers.appendItem(Handle::newInteger(static_cast<long long>(i)));
        numbers.appendItem(label);
    }
    Handle labels = Handle::newDictionary();
    labels.replaceKey("/Nums", numbers);
    catalogue.replaceKey("/PageLabels", labels);
}

}  // namespace

void AddBookmarks(PdfObjects& objects, const std::vector<PlacedPage>& pages,
                  const Handle& catalogue) {
    if (pages.size() > 1 || !pages.front().page->name.empty()) {
        AddOutline(objects, pages, catalogue);
        AddLabels(pages, catalogue);
    }
}

}  // namespace host
