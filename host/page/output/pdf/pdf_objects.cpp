#include "page/output/pdf/pdf_objects.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/Pl_Flate.hh>
#include <qpdf/Pl_String.hh>
#include <qpdf/QPDFCryptoProvider.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <stdexcept>

namespace host {
namespace {

using Handle = QPDFObjectHandle;

constexpr std::size_t kMostPacked = 100;

Handle Integer(std::size_t number) {
    return Handle::newInteger(static_cast<long long>(number));
}

/// The low bytes of a number, the highest first.
std::string HighestFirst(std::uint64_t number, std::size_t count) {
    std::string bytes(count, '\0');
    for (std::size_t i = count; i-- > 0; number >>= 8U) {
        bytes[i] = static_cast<char>(number & 0xFFU);
    }
    return bytes;
}

constexpr std::size_t kWhereBytes = 6;
constexpr std::size_t kIndexBytes = 2;

}  // namespace

/// Passes on the file in larger pieces, since libqpdf writes a few bytes at a time, and
/// keeps its length and checksum.
class PdfObjects::Output : public Pipeline {
public:
    explicit Output(const Sink& sink)
        : Pipeline("file", nullptr), m_sink(sink), m_sum(QPDFCryptoProvider::getImpl()) {
        m_piece.reserve(kPiece);
        m_sum->SHA2_init(256);
    }

    void write(const unsigned char* data, std::size_t length) override {
        m_piece.insert(m_piece.end(), data, data + length);
        m_length += length;
        if (m_piece.size() >= kPiece) {
            Flush();
        }
    }

    void finish() override {}  // of a part of the file

    void Flush() {
        if (m_isSummed) {
            m_sum->SHA2_update(m_piece.data(), m_piece.size());
        }
        m_sink(m_piece);
        m_piece.clear();
    }

    std::uint64_t Length() const { return m_length; }

    /// A string of 16 bytes derived from everything written; asked for once.
    Handle Identifier() {
        Flush();
        m_sum->SHA2_finalize();
        m_isSummed = false;
        return Handle::newString(m_sum->SHA2_digest().substr(0, 16));
    }

private:
    static constexpr std::size_t kPiece = std::size_t{1} << 18U;
    const Sink& m_sink;
    std::shared_ptr<QPDFCryptoImpl> m_sum;
    bool m_isSummed = true;
    std::vector<std::uint8_t> m_piece;
    std::uint64_t m_length = 0;
};

PdfObjects::PdfObjects(const Sink& sink) : m_output(new Output(sink)) {
    *m_output << "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n";
}

PdfObjects::~PdfObjects() = default;

int PdfObjects::Reserve() {
    m_places.emplace_back();
    return static_cast<int>(m_places.size());
}

Handle PdfObjects::Reference(int number) {
    // libqpdf's own references belong to a file that it holds.
    return Handle::newOperator(std::to_string(number) + " 0 R");
}

void PdfObjects::Write(int number, Handle object) {
    if (m_pack == 0) {
        m_pack = Reserve();
    }
    At(number) = {static_cast<std::uint64_t>(m_pack),
                  static_cast<std::uint16_t>(m_packCount), true};
    m_packNumbers +=
        std::to_string(number) + ' ' + std::to_string(m_packObjects.size()) + ' ';
    m_packObjects += object.unparse() + '\n';
    ++m_packCount;
    if (m_packCount == kMostPacked) {
        WritePack();
    }
}

int PdfObjects::Write(const Handle& object) {
    const int number = Reserve();
    Write(number, object);
    return number;
}

int PdfObjects::WritePlain(const Handle& entries, const std::string& bytes) {
    return WriteRaw(entries, bytes.size(),
                    [&bytes](Pipeline& output) { output.writeString(bytes); });
}

int PdfObjects::WritePacked(const Handle& entries, const std::string& bytes) {
    const int number = Reserve();
    WritePacked(number, entries, bytes);
    return number;
}

int PdfObjects::WriteRaw(const Handle& entries, std::size_t length, const Fill& fill) {
    const int number = Reserve();
    WriteRaw(number, entries, length, fill);
    return number;
}

void PdfObjects::WritePacked(int number, Handle entries, const std::string& bytes) {
    std::string packed;
    Pl_String end("packed", nullptr, packed);
    Pl_Flate flate("flate", &end, Pl_Flate::a_deflate);
    flate.writeString(bytes);
    flate.finish();
    entries.replaceKey("/Filter", Handle::newName("/FlateDecode"));
    WriteRaw(number, entries, packed.size(),
             [&packed](Pipeline& output) { output.writeString(packed); });
}

void PdfObjects::WriteRaw(int number, Handle entries, std::size_t length,
                          const Fill& fill) {
    At(number) = {m_output->Length(), 0, false};
    entries.replaceKey("/Length", Integer(length));
    *m_output << std::to_string(number) << " 0 obj\n"
              << entries.unparse() << "\nstream\n";
    const std::uint64_t begin = m_output->Length();
    fill(*m_output);
    if (m_output->Length() - begin != length) {
        throw std::runtime_error("the PDF file cannot be copied");
    }
    *m_output << "\nendstream\nendobj\n";
}

void PdfObjects::WritePack() {
    if (m_pack == 0) {
        return;
    }
    Handle entries = Handle::parse("<< /Type /ObjStm >>");
    entries.replaceKey("/N", Integer(m_packCount));
    entries.replaceKey("/First", Integer(m_packNumbers.size()));
    WritePacked(m_pack, entries, m_packNumbers + m_packObjects);
    m_pack = 0;
    m_packCount = 0;
    m_packNumbers.clear();
    m_packObjects.clear();
}

std::string PdfObjects::Places() const {
    std::string rows(1 + kWhereBytes, '\0');
    rows += HighestFirst(0xFFFF, kIndexBytes);  // for number 0, which is never used
    for (const Place& place : m_places) {
        rows += place.isPacked ? '\2' : '\1';
        rows += HighestFirst(place.where, kWhereBytes) +
                HighestFirst(place.index, kIndexBytes);
    }
    return rows;
}

void PdfObjects::Finish(int catalogue, int about) {
    WritePack();
    const int number = Reserve();
    const std::uint64_t begin = m_output->Length();
    At(number).where = begin;
    Handle entries = Handle::parse("<< /Type /XRef >>");
    entries.replaceKey(
        "/W", Handle::newArray({Integer(1), Integer(kWhereBytes), Integer(kIndexBytes)}));
    entries.replaceKey("/Size", Integer(m_places.size() + 1));
    entries.replaceKey("/Root", Reference(catalogue));
    entries.replaceKey("/Info", Reference(about));
    const Handle identifier = m_output->Identifier();
    entries.replaceKey("/ID", Handle::newArray({identifier, identifier}));
    WritePacked(number, entries, Places());
    *m_output << "startxref\n" << std::to_string(begin) << "\n%%EOF\n";
    m_output->Flush();
}

}  // namespace host
