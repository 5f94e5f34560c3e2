#include "page/output/pdf/pdf_content.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <qpdf/Buffer.hh>
#include <stdexcept>

namespace host {
namespace {

using Handle = QPDFObjectHandle;

constexpr const char* kPainting[] = {"f", "F",  "f*", "B",  "B*", "b", "b*", "S",
                                     "s", "Do", "sh", "Tj", "TJ", "'", "\"", "EI"};

/// Walks through a content stream and copies it, tag by tag.
class Retagging : public Handle::ParserCallbacks {
public:
    Retagging(const std::string& content, const std::vector<std::string>& tags)
        : m_content(content), m_tags(tags) {}

    void handleObject(Handle object, std::size_t offset, std::size_t length) override {
        if (!object.isOperator()) {
            m_operands = std::min(m_operands, offset);
            m_isNumbered = object.isDictionary() && object.hasKey("/MCID");
            return;
        }
        const std::string name = object.getOperatorValue();
        if (name == "BDC" && !m_isNumbered) {
            ++m_spans;  // a text's span, within a tag
        } else if (name == "EMC" && m_spans > 0) {
            --m_spans;
        } else if (name == "BDC") {
            Copy(std::min(m_operands, offset), true);
            m_text += TagAt(m_count) + " <</MCID " + std::to_string(m_count) + ">> BDC\n";
            ++m_count;
            m_copied = offset + length;
        } else if (name == "EMC") {
            Copy(offset + length, false);
            m_text += '\n';
        } else {
            m_paints = m_paints || std::find(std::begin(kPainting), std::end(kPainting),
                                             name) != std::end(kPainting);
        }
        m_operands = std::string::npos;
    }

    void handleEOF() override { Copy(m_content.size(), true); }

    const std::string& Text() const {
        if (m_count != m_tags.size()) {
            throw std::runtime_error("the PDF file cannot be tagged");
        }
        return m_text;
    }

private:
    std::string TagAt(std::size_t index) const {
        return index < m_tags.size() ? m_tags[index] : "/Span";
    }

    /// Copies up to an offset, as decoration if anything is painted there.
    void Copy(std::size_t end, bool isDecoration) {
        const bool marks = isDecoration && m_paints;
        m_text += (marks ? "/Artifact BMC\n" : "") +
                  m_content.substr(m_copied, end - m_copied) + (marks ? "\nEMC\n" : "");
        m_copied = end;
        m_paints = false;
    }

    const std::string& m_content;
    const std::vector<std::string>& m_tags;
    std::string m_text;
    std::size_t m_copied = 0;                    // up to here in the content
    std::size_t m_operands = std::string::npos;  // where an operator's operands begin
    bool m_isNumbered = false;                   // whether the last operand was
    std::size_t m_spans = 0;                     // open spans
    std::size_t m_count = 0;                     // tags so far
    bool m_paints = false;                       // since the last one
};

}  // namespace

std::string TaggedContent(Handle drawn, const std::vector<std::string>& tags) {
    const std::shared_ptr<Buffer> buffer = drawn.getStreamData(qpdf_dl_generalized);
    const std::string content(reinterpret_cast<const char*>(buffer->getBuffer()),
                              buffer->getSize());
    Retagging retagging(content, tags);
    Handle::parseContentStream(drawn, &retagging);
    return retagging.Text();
}

}  // namespace host
