#include "page/output/pdf/pdf_draft.h"

#include <unistd.h>

#include <cstdio>
#include <memory>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDFCryptoProvider.hh>
#include <stdexcept>

namespace host {
namespace {

using Handle = QPDFObjectHandle;

/// A checksum of what passes through.
class Sum : public Pipeline {
public:
    explicit Sum(const std::string& begin)
        : Pipeline("sum", nullptr), m_sum(QPDFCryptoProvider::getImpl()) {
        m_sum->SHA2_init(256);
        writeString(begin);
    }
    void write(const unsigned char* data, std::size_t length) override {
        m_sum->SHA2_update(data, length);
    }
    void finish() override {}
    std::string Value() {
        m_sum->SHA2_finalize();
        return m_sum->SHA2_digest();
    }

private:
    std::shared_ptr<QPDFCryptoImpl> m_sum;
};

void Pipe(Handle stream, Pipeline& to) {
    constexpr int kAsItIs = 0;
    bool isChanged = false;
    if (!stream.pipeStreamData(&to, &isChanged, kAsItIs, qpdf_dl_none)) {
        throw std::runtime_error("the PDF file cannot be read again");
    }
}

}  // namespace

PdfDraft::PdfDraft(int descriptor, PdfObjects& objects, PdfStandard standard)
    : m_objects(objects), m_isArchive(standard == PdfStandard::A2u) {
    std::FILE* const file = fdopen(dup(descriptor), "rb");
    if (file == nullptr) {
        throw std::runtime_error("the PDF file cannot be read again");
    }
    std::rewind(file);
    m_file.setSuppressWarnings(true);
    constexpr bool kClose = true;
    m_file.processFile("page", file, kClose);
    m_pages = m_file.getRoot().getKey("/Pages").getKey("/Kids").getArrayAsVector();
}

std::string PdfDraft::Producer() {
    Handle producer = m_file.getTrailer().getKey("/Info").getKey("/Producer");
    return producer.isString() ? producer.getUTF8Value() : "";
}

PdfDraft::PageCopy PdfDraft::CopyOf(std::size_t page) {
    Handle entries = Handle::newDictionary();
    Handle drawn = m_pages.at(page);
    if (!drawn.isDictionaryOfType("/Page")) {
        throw std::runtime_error("the PDF file lacks pages");
    }
    for (const char* const key : {"/Type", "/MediaBox", "/Group", "/Resources"}) {
        entries.replaceKey(key, Copied(drawn.getKey(key)));
    }
    return {drawn.getKey("/Contents"), entries};
}

void PdfDraft::Forget(std::size_t page) {
    for (const Handle& object : {m_pages[page].getKey("/Contents"), m_pages[page]}) {
        m_file.replaceObject(object.getObjGen(), Handle::newNull());
    }
}

// NOLINTBEGIN(misc-no-recursion): an object is as deep as Cairo makes it
Handle PdfDraft::Copied(Handle object) {
    if (!object.isIndirect()) {
        return Value(object);
    }
    const auto [copy, isNew] = m_copies.emplace(object.getObjectID(), 0);
    if (isNew) {
        copy->second =
            object.isStream() ? Written(object) : m_objects.Write(Value(object));
        m_file.replaceObject(object.getObjGen(), Handle::newNull());
    } else if (copy->second == 0) {
        throw std::runtime_error("the PDF file cannot be copied");  // contains itself
    }
    return PdfObjects::Reference(copy->second);
}

Handle PdfDraft::Value(Handle object) {
    if (object.isArray()) {
        Handle copy = Handle::newArray();
        for (const Handle& item : object.getArrayAsVector()) {
            copy.appendItem(Copied(item));
        }
        return copy;
    }
    if (!object.isDictionary()) {
        return object.unsafeShallowCopy();
    }
    Handle copy = Handle::newDictionary();
    for (const auto& [key, value] : object.getDictAsMap()) {
        copy.replaceKey(key, Copied(value));
    }
    if (copy.getKey("/Subtype").isNameAndEquals("/CIDFontType2")) {
        // Cairo assumes that characters have the numbers of their glyphs.
        copy.replaceKey("/CIDToGIDMap", Handle::newName("/Identity"));
    }
    return copy;
}

int PdfDraft::Written(Handle stream) {
    Handle drawn = stream.getDict().shallowCopy();
    const auto length = static_cast<std::size_t>(drawn.getKey("/Length").getUIntValue());
    drawn.removeKey("/Length");
    Handle entries = Value(drawn);
    if (m_isArchive) {
        entries.removeKey("/Interpolate");
    }
    Sum sum(entries.unparse());
    Pipe(stream, sum);
    const auto [copy, isNew] = m_streams.emplace(sum.Value(), 0);
    if (isNew) {
        copy->second = m_objects.WriteRaw(
            entries, length, [&stream](Pipeline& file) { Pipe(stream, file); });
    }
    return copy->second;
}
// NOLINTEND(misc-no-recursion)

}  // namespace host
