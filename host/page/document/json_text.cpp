#include "page/document/json_text.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "page/document/page_error.h"
#include "system/one_line.h"

namespace host {
namespace {

using nlohmann::json;

constexpr std::size_t kDeepest = 16;
constexpr std::size_t kLongestKeyShown = 60;

/// "line 3, column 7" of the byte at a position, counted from 1; columns are bytes.
std::string LineAndColumn(const std::string& text, std::size_t position) {
    const std::size_t before = std::min(position == 0 ? 0 : position - 1, text.size());
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(before);
    const auto line = std::count(text.begin(), end, '\n') + 1;
    const std::size_t lastBreak =
        before == 0 ? std::string::npos : text.rfind('\n', before - 1);
    const std::size_t column =
        lastBreak == std::string::npos ? before + 1 : before - lastBreak;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// The reason from the parser's message, without its number, the position, and what it
/// read last, which may be anything.
std::string ReasonIn(const std::string& message) {
    if (message.find("ill-formed UTF-8") != std::string::npos) {
        return "is not valid UTF-8";
    }
    const std::size_t dash = message.find(" - ");
    if (dash == std::string::npos) {
        return "is not valid JSON";
    }
    const std::string reason = message.substr(dash + 3);
    return "is not valid JSON: " + reason.substr(0, reason.find("; last read"));
}

/// Follows the parser and refuses what it would accept: a key given twice, and unlimited
/// nesting.
class Watch {
public:
    bool operator()(json::parse_event_t event, const json& parsed) {
        switch (event) {
            case json::parse_event_t::object_start:
            case json::parse_event_t::array_start:
                Count();
                if (m_open.size() == kDeepest) {
                    throw PageError(
                        Place(), "nests more than " + std::to_string(kDeepest) + " deep");
                }
                m_open.push_back({event == json::parse_event_t::array_start, 0, {}, {}});
                break;
            case json::parse_event_t::key:
                Note(parsed.get_ref<const std::string&>());
                break;
            case json::parse_event_t::value:
                Count();
                break;
            case json::parse_event_t::object_end:
            case json::parse_event_t::array_end:
                m_open.pop_back();
                break;
        }
        return true;
    }

    /// The place of the value where the parser failed.
    std::string PlaceOfNext() {
        Count();
        return Place();
    }

private:
    struct Open {
        bool isArray;
        std::size_t count;
        std::string key;
        std::set<std::string> keys;
    };

    void Count() {
        if (!m_open.empty()) {
            ++m_open.back().count;
        }
    }

    void Note(const std::string& key) {
        m_open.back().key = key;
        if (!m_open.back().keys.insert(key).second) {
            throw PageError(Place(), "is given twice");
        }
    }

    std::string Place() const {
        std::string place;
        for (const Open& open : m_open) {
            if (open.isArray) {
                place.append("[").append(std::to_string(open.count - 1)).append("]");
            } else {
                place = PlaceOf(place, open.key);
            }
        }
        return place;
    }

    std::vector<Open> m_open;
};

std::string Shown(const std::string& key) { return OneLine(key, kLongestKeyShown); }

}  // namespace

std::string PlaceOf(const std::string& parent, const std::string& key) {
    return parent.empty() ? Shown(key) : parent + "." + Shown(key);
}

json ParseJson(const std::string& text) {
    if (text.size() > kMostJsonBytes) {
        throw PageError("", "has over 16 MB");
    }
    // The parser would take it for the end of the text.
    const std::size_t zero = text.find('\0');
    if (zero != std::string::npos) {
        throw PageError(LineAndColumn(text, zero + 1), "is a zero byte");
    }
    Watch watch;
    try {
        return json::parse(text, [&watch](int, json::parse_event_t event, json& parsed) {
            return watch(event, parsed);
        });
    } catch (const json::parse_error& error) {
        throw PageError(LineAndColumn(text, error.byte), ReasonIn(error.what()));
    } catch (const json::out_of_range&) {
        throw PageError(watch.PlaceOfNext(), "is a number beyond the range of a double");
    }
}

}  // namespace host
