#include "page/output/pdf_structure.h"

#include <algorithm>
#include <cmath>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>

#include "page/output/pdf_content.h"

namespace host {
namespace {

using Handle = QPDFObjectHandle;

const char* TagOf(SpokenItem::Role role) {
    switch (role) {
        case SpokenItem::Role::Heading:
            return "/H1";
        case SpokenItem::Role::Text:
            return "/P";
        case SpokenItem::Role::Figure:
            break;
    }
    return "/Figure";
}

Handle Structure(QPDF& pdf, const char* tag, const Handle& parent) {
    Handle element = Handle::newDictionary();
    element.replaceKey("/Type", Handle::newName("/StructElem"));
    element.replaceKey("/S", Handle::newName(tag));
    element.replaceKey("/P", parent);
    return pdf.makeIndirectObject(element);
}

Handle BoundingBox(const Box& box) {
    Handle numbers = Handle::newArray();
    for (const double side : {box.left, box.bottom, box.right, box.top}) {
        numbers.appendItem(Handle::newReal(side, 3));
    }
    return numbers;
}

/// What is read of an item, and where it stands.
Handle Spoken(QPDF& pdf, const PdfPage::Tagged& item, const Handle& parent,
              const Handle& page, std::size_t tag) {
    const bool isFigure = item.spoken.role == SpokenItem::Role::Figure;
    Handle element = Structure(pdf, TagOf(item.spoken.role), parent);
    element.replaceKey("/Pg", page);
    element.replaceKey("/K", Handle::newInteger(static_cast<long long>(tag)));
    element.replaceKey(isFigure ? "/Alt" : "/ActualText",
                       Handle::newUnicodeString(item.spoken.text));
    if (isFigure) {
        Handle layout = Handle::parse("<< /O /Layout /Placement /Block >>");
        layout.replaceKey("/BBox", BoundingBox(item.box));
        element.replaceKey("/A", layout);
    }
    return element;
}

/// The elements of a page below a parent, and by tag, for those who come from the page.
void AddPage(QPDF& pdf, const PdfPage& described, const Handle& page, Handle parent,
             Handle byTag) {
    std::vector<std::string> tags(described.tags.size());
    std::vector<Handle> elements(described.tags.size(), Handle::newNull());
    Handle children = Handle::newArray();
    for (const PdfPage::Tagged& item : described.items) {
        const auto found =
            std::find(described.tags.begin(), described.tags.end(), item.spoken.item);
        if (found == described.tags.end()) {
            continue;
        }
        const auto tag = static_cast<std::size_t>(found - described.tags.begin());
        tags[tag] = TagOf(item.spoken.role);
        elements[tag] = Spoken(pdf, item, parent, page, tag);
        children.appendItem(elements[tag]);
    }
    parent.replaceKey("/K", children);
    for (const Handle& element : elements) {
        byTag.appendItem(element);
    }
    TagContent(pdf, page, tags);
}

}  // namespace

void WriteStructure(QPDF& pdf, const std::vector<PdfPage>& pages) {
    const std::vector<QPDFObjectHandle>& drawn = pdf.getAllPages();
    Handle root = pdf.makeIndirectObject(Handle::newDictionary());
    root.replaceKey("/Type", Handle::newName("/StructTreeRoot"));
    Handle document = Structure(pdf, "/Document", root);
    root.replaceKey("/K", document);
    Handle sections = Handle::newArray();
    Handle numbers = Handle::newArray();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Handle page = drawn[i];
        const bool isOnly = pages.size() == 1;
        Handle parent = isOnly ? document : Structure(pdf, "/Sect", document);
        Handle byTag = pdf.makeIndirectObject(Handle::newArray());
        AddPage(pdf, pages[i], page, parent, byTag);
        if (!isOnly) {
            sections.appendItem(parent);
        }
        const Handle number = Handle::newInteger(static_cast<long long>(i));
        numbers.appendItem(number);
        numbers.appendItem(byTag);
        page.replaceKey("/StructParents", number);
        page.replaceKey("/Tabs", Handle::newName("/S"));
    }
    if (pages.size() != 1) {
        document.replaceKey("/K", sections);
    }
    Handle tree = Handle::newDictionary();
    tree.replaceKey("/Nums", numbers);
    root.replaceKey("/ParentTree", pdf.makeIndirectObject(tree));
    root.replaceKey("/ParentTreeNextKey",
                    Handle::newInteger(static_cast<long long>(pages.size())));
    pdf.getRoot().replaceKey("/StructTreeRoot", root);
    pdf.getRoot().replaceKey("/MarkInfo", Handle::parse("<< /Marked true >>"));
}

}  // namespace host
