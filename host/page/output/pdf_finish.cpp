#include "page/output/pdf_finish.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>
#include <stdexcept>
#include <string>

#include "map_surround/version.h"
#include "page/output/pdf_structure.h"
#include "page/output/pdf_viewports.h"
#include "page/output/xmp_packet.h"
#include "system/number_text.h"

namespace host {
namespace {

using Handle = QPDFObjectHandle;

/// The moment that the file is of; none unless the environment says one.
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
    throw std::runtime_error("SOURCE_DATE_EPOCH is no number of seconds");
}

std::string Written(const std::optional<std::tm>& moment, const char* format) {
    std::array<char, 64> text{};
    if (moment) {
        std::strftime(text.data(), text.size(), format, &*moment);
    }
    return text.data();
}

/// Says what the file is in both of the ways in which programs look for it.
void Describe(QPDF& pdf, const PageAbout& about) {
    const std::optional<std::tm> moment = Moment();
    Handle draft = pdf.getTrailer().getKey("/Info").getKey("/Producer");
    const FileFacts facts = {draft.isString() ? draft.getUTF8Value() : "",
                             "map_surround " MAP_SURROUND_VERSION_STRING,
                             Written(moment, "%Y-%m-%dT%H:%M:%SZ")};
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
    pdf.getTrailer().replaceKey("/Info", pdf.makeIndirectObject(info));

    Handle packet = Handle::newStream(&pdf, XmpPacket(about, facts));
    packet.getDict().replaceKey("/Type", Handle::newName("/Metadata"));
    packet.getDict().replaceKey("/Subtype", Handle::newName("/XML"));
    Handle root = pdf.getRoot();
    root.replaceKey("/Metadata", packet);
    root.replaceKey("/Lang", Handle::newUnicodeString(about.language));
    root.replaceKey("/ViewerPreferences", Handle::parse("<< /DisplayDocTitle true >>"));
}

std::vector<std::uint8_t> BytesOf(QPDF& pdf) {
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setMinimumPDFVersion("1.7");
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setDeterministicID(true);
    writer.write();
    const std::shared_ptr<Buffer> file = writer.getBufferSharedPointer();
    return {file->getBuffer(), file->getBuffer() + file->getSize()};
}

}  // namespace

std::vector<std::uint8_t> FinishPdf(const std::vector<std::uint8_t>& draft,
                                    const std::vector<PdfPage>& pages) {
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.processMemoryFile("page", reinterpret_cast<const char*>(draft.data()),
                          draft.size());
    Describe(pdf, pages.front().about);
    WriteStructure(pdf, pages);
    std::vector<QPDFObjectHandle> drawn = pdf.getAllPages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        AddViewports(pdf, drawn[i], pages[i].maps, pages[i].dpi);
    }
    return BytesOf(pdf);
}

}  // namespace host
