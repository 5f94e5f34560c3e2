#include "map_page/csv.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "map_page/error.h"
#include "system/utf8.h"

namespace map_page {
namespace {

class CsvReader {
public:
    explicit CsvReader(std::string_view text) : m_rest(text) {
        constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
        if (m_rest.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
            m_rest.remove_prefix(kByteOrderMark.size());
        }
    }

    std::vector<CsvRecord> Read() {
        CheckCharacters();
        std::vector<CsvRecord> records;
        while (!m_rest.empty()) {
            if (!TakeLineEnd()) {
                records.push_back(ReadRecord());
            }
        }
        return records;
    }

private:
    void CheckCharacters() const {
        std::size_t line = 1;
        for (std::size_t at = 0; at < m_rest.size(); ++line) {
            const std::size_t end = std::min(m_rest.find('\n', at), m_rest.size());
            const std::string text(m_rest.substr(at, end - at));
            std::wstring wide;
            if (text.find('\0') != std::string::npos) {
                Fail(line, "has a zero byte");
            }
            if (!host::Widen(text, wide)) {
                Fail(line, "is not valid UTF-8");
            }
            at = end + 1;
        }
    }

    CsvRecord ReadRecord() {
        CsvRecord record;
        record.line = m_line;
        do {
            record.fields.push_back(Take("\"") ? ReadQuoted() : ReadPlain());
        } while (Take(","));
        if (!m_rest.empty() && !TakeLineEnd()) {
            Fail(m_line, "has text beside quotes");
        }
        return record;
    }

    std::string ReadPlain() {
        std::string field(m_rest.substr(0, m_rest.find_first_of(",\n\"")));
        m_rest.remove_prefix(field.size());
        const bool endsLine = m_rest.empty() || m_rest.front() == '\n';
        if (endsLine && !field.empty() && field.back() == '\r') {
            field.pop_back();
        }
        return field;
    }

    /// Reads on after the opening quote.
    std::string ReadQuoted() {
        const std::size_t line = m_line;
        std::string field;
        for (;;) {
            const std::size_t quote = m_rest.find('"');
            if (quote == std::string_view::npos) {
                Fail(line, "has a quote that is not closed");
            }
            for (const char c : m_rest.substr(0, quote)) {
                field += c;
                m_line += c == '\n' ? 1 : 0;
            }
            m_rest.remove_prefix(quote + 1);
            if (!Take("\"")) {
                return field;
            }
            field += '"';
        }
    }

    bool Take(std::string_view text) {
        const bool found = m_rest.substr(0, text.size()) == text;
        m_rest.remove_prefix(found ? text.size() : 0);
        return found;
    }

    bool TakeLineEnd() {
        const bool found = Take("\r\n") || Take("\n");
        m_line += found ? 1 : 0;
        return found;
    }

    [[noreturn]] static void Fail(std::size_t line, const std::string& why) {
        throw Error("line " + std::to_string(line), why);
    }

    std::string_view m_rest;
    std::size_t m_line = 1;
};

}  // namespace

std::vector<CsvRecord> ReadCsv(const std::string& text) { return CsvReader(text).Read(); }

}  // namespace map_page
