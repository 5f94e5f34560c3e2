#include "page/output/pdf/pdf_finish.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <qpdf/QPDFObjectHandle.hh>
#include <stdexcept>
#include <string>
#include <vector>

#include "map_surround/version.h"
#include "page/output/pdf/pdf_archive.h"
#include "page/output/pdf/pdf_bookmarks.h"
#include "page/output/pdf/pdf_content.h"
#include "page/output/pdf/pdf_draft.h"
#include "page/output/pdf/pdf_structure.h"
#include "page/output/pdf/pdf_viewports.h"
#include "page/output/pdf/xmp_packet.h"
#include "system/number_text.h"

namespace host {
namespace {

using Handle = QPDFObjectHandle;

/// The date of the file; nothing unless the environment sets one.
std::optional<std::tm> Moment() {
    const char* const set = std::getenv("SOURCE_DATE_EPOCH");
    if (set == nullptr || *set == '\0') {
        return std::nullopt;
    }
    constexpr double kLatest = 253402300799.0;  // the end of the year 9999
    double seconds = 0.0;
    std::tm moment{};
    if (ParseNumber(set, seconds) && seconds >= 0.0 && seconds <= kLatest) {
        const auto whole = static_cast<std::time_t>(seconds);
        if (gmtime_r(&whole, &moment) != nullptr) {
            return moment;
        }
    }
    throw std::runtime_error("SOURCE_DATE_EPOCH is not a number of seconds");
}

std::string Written(const std::optional<std::tm>& moment, const char* format) {
    std::array<char, 64> text{};
    if (moment) {
        std::strftime(text.data(), text.size(), format, &*moment);
    }
    return text.data();
}

Handle InfoOf(const PageAbout& about, const FileFacts& facts,
              const std::optional<std::tm>& moment) {
    Handle info = Handle::newDictionary();
    const auto set = [&info](const char* key, const std::string& text) {
        if (!text.empty()) {
            info.replaceKey(key, Handle::newUnicodeString(text));
        }
    };
    set("/Title", about.title);
    set("/Author", about.author);
    set("/Subject", about.subject);
    set("/Keywords", about.keywords);
    set("/Producer", facts.producer);
    set("/Creator", facts.creator);
    set("/CreationDate", Written(moment, "D:%Y%m%d%H%M%SZ"));
    set("/ModDate", Written(moment, "D:%Y%m%d%H%M%SZ"));
    return info;
}

/// Describes the file in both of the places where programs look.
/// @return the number of the one that the catalogue does not name
int Describe(PdfObjects& objects, const PageAbout& about, const std::string& producer,
             PdfStandard standard, Handle catalogue) {
    const std::optional<std::tm> moment = Moment();
    const FileFacts facts = {producer, "map_surround " MAP_SURROUND_VERSION_STRING,
                             Written(moment, "%Y-%m-%dT%H:%M:%SZ"),
                             standard == PdfStandard::A2u};
    const int packet = objects.WritePlain(
        Handle::parse("<< /Type /Metadata /Subtype /XML >>"), XmpPacket(about, facts));
    catalogue.replaceKey("/Metadata", PdfObjects::Reference(packet));
    catalogue.replaceKey("/Lang", Handle::newUnicodeString(about.language));
    catalogue.replaceKey("/ViewerPreferences",
                         Handle::parse("<< /DisplayDocTitle true >>"));
    return objects.Write(InfoOf(about, facts, moment));
}

/// Copies the pages that stay, each with its description.
class Pages {
public:
    Pages(PdfDraft& draft, PdfObjects& objects, const std::vector<PdfPage>& drawn)
        : m_draft(draft),
          m_objects(objects),
          m_structure(objects, std::count_if(drawn.begin(), drawn.end(),
                                             [](const PdfPage& page) {
                                                 return !page.isDropped;
                                             }) == 1),
          m_tree(objects.Reserve()) {}

    void Copy(std::size_t index, const PdfPage& drawn) {
        PdfDraft::PageCopy page = m_draft.CopyOf(index);
        const int number = m_objects.Reserve();
        const std::vector<std::string> tags =
            m_structure.Add(drawn, number, page.entries);
        const int content = m_objects.WritePacked(Handle::newDictionary(),
                                                  TaggedContent(page.content, tags));
        page.entries.replaceKey("/Contents", PdfObjects::Reference(content));
        page.entries.replaceKey("/Parent", PdfObjects::Reference(m_tree));
        m_measures |= AddViewports(m_objects, page.entries, drawn.maps, drawn.dpi);
        m_objects.Write(number, page.entries);
        m_written.push_back({&drawn, number});
        m_draft.Forget(index);
    }

    void Finish(Handle catalogue) {
        Handle tree = Handle::parse("<< /Type /Pages >>");
        Handle children = Handle::newArray();
        for (const PlacedPage& page : m_written) {
            children.appendItem(PdfObjects::Reference(page.number));
        }
        tree.replaceKey("/Kids", children);
        tree.replaceKey("/Count", Handle::newInteger(children.getArrayNItems()));
        m_objects.Write(m_tree, tree);
        catalogue.replaceKey("/Pages", PdfObjects::Reference(m_tree));
        m_structure.Finish(catalogue);
        AddBookmarks(m_objects, m_written, catalogue);
        if (m_measures) {
            // Geospatial measuring came after PDF 1.7.
            catalogue.replaceKey(
                "/Extensions",
                Handle::parse("<< /ADBE << /BaseVersion /1.7 /ExtensionLevel 3 >> >>"));
        }
    }

private:
    PdfDraft& m_draft;
    PdfObjects& m_objects;
    PdfStructure m_structure;
    int m_tree;
    std::vector<PlacedPage> m_written;
    bool m_measures = false;
};

}  // namespace

void FinishPdf(int draftFile, const PageAbout& about, const std::vector<PdfPage>& drawn,
               PdfStandard standard, const PdfObjects::Sink& write) {
    PdfObjects objects(write);
    PdfDraft draft(draftFile, objects, standard);
    if (draft.PageCount() != drawn.size()) {
        throw std::runtime_error("the PDF file lacks pages");
    }
    Pages pages(draft, objects, drawn);
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        if (!drawn[i].isDropped) {
            pages.Copy(i, drawn[i]);
        }
    }
    Handle catalogue = Handle::parse("<< /Type /Catalog >>");
    pages.Finish(catalogue);
    const int info = Describe(objects, about, draft.Producer(), standard, catalogue);
    if (standard == PdfStandard::A2u) {
        AddColours(objects, catalogue);
    }
    objects.Finish(objects.Write(catalogue), info);
}

}  // namespace host
