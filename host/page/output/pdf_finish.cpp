#include "page/output/pdf_finish.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>
#include <stdexcept>
#include <string>

#include "map_surround/version.h"
#include "page/output/pdf_archive.h"
#include "page/output/pdf_bookmarks.h"
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
void Describe(QPDF& pdf, const PageAbout& about, PdfStandard standard) {
    const std::optional<std::tm> moment = Moment();
    Handle draft = pdf.getTrailer().getKey("/Info").getKey("/Producer");
    const FileFacts facts = {draft.isString() ? draft.getUTF8Value() : "",
                             "map_surround " MAP_SURROUND_VERSION_STRING,
                             Written(moment, "%Y-%m-%dT%H:%M:%SZ"),
                             standard == PdfStandard::A2u};
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

/// Says of fonts what Cairo takes for granted: that characters are numbered as glyphs.
void NumberGlyphs(QPDF& pdf) {
    for (Handle font : pdf.getAllObjects()) {
        if (font.isDictionary() &&
            font.getKey("/Subtype").isNameAndEquals("/CIDFontType2")) {
            font.replaceKey("/CIDToGIDMap", Handle::newName("/Identity"));
        }
    }
}

/// Hands pieces of a file on: libqpdf writes a few bytes at a time.
class Pieces : public Pipeline {
public:
    explicit Pieces(const std::function<void(const std::vector<std::uint8_t>&)>& write)
        : Pipeline("file", nullptr), m_write(write) {
        m_piece.reserve(kSize);
    }

    void write(const unsigned char* data, std::size_t length) override {
        m_piece.insert(m_piece.end(), data, data + length);
        if (m_piece.size() >= kSize) {
            finish();
        }
    }

    void finish() override {
        m_write(m_piece);
        m_piece.clear();
    }

private:
    static constexpr std::size_t kSize = std::size_t{1} << 18;
    const std::function<void(const std::vector<std::uint8_t>&)>& m_write;
    std::vector<std::uint8_t> m_piece;
};

void Write(QPDF& pdf, Pieces& pieces) {
    QPDFWriter writer(pdf);
    writer.setOutputPipeline(&pieces);
    writer.setMinimumPDFVersion("1.7");
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setDeterministicID(true);
    writer.write();
    pieces.finish();
}

/// Takes out the pages that are not to be there, and gives the others.
std::vector<PdfPage> WithoutDropped(QPDF& pdf, const std::vector<PdfPage>& drawn) {
    const std::vector<QPDFObjectHandle> inFile = pdf.getAllPages();
    if (inFile.size() != drawn.size()) {
        throw std::runtime_error("the PDF file lacks pages");
    }
    std::vector<PdfPage> kept;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        if (drawn[i].isDropped) {
            pdf.removePage(inFile[i]);
        } else {
            kept.push_back(drawn[i]);
        }
    }
    return kept;
}

}  // namespace

void FinishPdf(int draft, const PageAbout& about, const std::vector<PdfPage>& drawn,
               PdfStandard standard,
               const std::function<void(const std::vector<std::uint8_t>&)>& write) {
    std::FILE* const file = fdopen(dup(draft), "rb");
    if (file == nullptr) {
        throw std::runtime_error("the PDF file cannot be read again");
    }
    std::rewind(file);
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    constexpr bool kClose = true;
    pdf.processFile("page", file, kClose);
    const std::vector<PdfPage> pages = WithoutDropped(pdf, drawn);
    Describe(pdf, about, standard);
    NumberGlyphs(pdf);
    WriteStructure(pdf, pages);
    AddBookmarks(pdf, pages);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        AddViewports(pdf, pdf.getAllPages()[i], pages[i].maps, pages[i].dpi);
    }
    if (standard == PdfStandard::A2u) {
        MakeArchive(pdf);
    }
    Pieces pieces(write);
    Write(pdf, pieces);
}

}  // namespace host
