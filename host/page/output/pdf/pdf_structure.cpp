#include "page/output/pdf/pdf_structure.h"

#include <algorithm>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

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

Handle Structure(const char* tag, int parent) {
    Handle element = Handle::newDictionary();
    element.replaceKey("/Type", Handle::newName("/StructElem"));
    element.replaceKey("/S", Handle::newName(tag));
    element.replaceKey("/P", PdfObjects::Reference(parent));
    return element;
}

Handle BoundingBox(const Box& box) {
    Handle numbers = Handle::newArray();
    for (const double side : {box.left, box.bottom, box.right, box.top}) {
        numbers.appendItem(Handle::newReal(side, 3));
    }
    return numbers;
}

/// The words for an item, and its place.
Handle Spoken(const PdfPage::Tagged& item, int parent, int page, std::size_t tag) {
    const bool isFigure = item.spoken.role == SpokenItem::Role::Figure;
    Handle element = Structure(TagOf(item.spoken.role), parent);
    element.replaceKey("/Pg", PdfObjects::Reference(page));
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

}  // namespace

PdfStructure::PdfStructure(PdfObjects& objects, bool isOfOnePage)
    : m_objects(objects),
      m_isOfOnePage(isOfOnePage),
      m_root(objects.Reserve()),
      m_document(objects.Reserve()),
      m_sections(Handle::newArray()),
      m_byTag(Handle::newArray()) {}

std::vector<std::string> PdfStructure::Add(const PdfPage& described, int page,
                                           Handle entries) {
    const int parent = m_isOfOnePage ? m_document : m_objects.Reserve();
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
        elements[tag] =
            PdfObjects::Reference(m_objects.Write(Spoken(item, parent, page, tag)));
        children.appendItem(elements[tag]);
    }
    if (m_isOfOnePage) {
        m_sections = children;
    } else {
        Handle section = Structure("/Sect", m_document);
        section.replaceKey("/K", children);
        m_objects.Write(parent, section);
        m_sections.appendItem(PdfObjects::Reference(parent));
    }
    const Handle number = Handle::newInteger(m_pages++);
    m_byTag.appendItem(number);
    m_byTag.appendItem(
        PdfObjects::Reference(m_objects.Write(Handle::newArray(elements))));
    entries.replaceKey("/StructParents", number);
    entries.replaceKey("/Tabs", Handle::newName("/S"));
    return tags;
}

void PdfStructure::Finish(Handle catalogue) {
    Handle document = Structure("/Document", m_root);
    document.replaceKey("/K", m_sections);
    m_objects.Write(m_document, document);
    Handle tree = Handle::newDictionary();
    tree.replaceKey("/Nums", m_byTag);
    Handle root = Handle::newDictionary();
    root.replaceKey("/Type", Handle::newName("/StructTreeRoot"));
    root.replaceKey("/K", PdfObjects::Reference(m_document));
    root.replaceKey("/ParentTree", PdfObjects::Reference(m_objects.Write(tree)));
    root.replaceKey("/ParentTreeNextKey", Handle::newInteger(m_pages));
    m_objects.Write(m_root, root);
    catalogue.replaceKey("/StructTreeRoot", PdfObjects::Reference(m_root));
    catalogue.replaceKey("/MarkInfo", Handle::parse("<< /Marked true >>"));
}

}  // namespace host
