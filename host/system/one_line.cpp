#include "system/one_line.h"

#include <cstdio>

#include "system/utf8.h"

namespace host {
namespace {

constexpr const char* kCut = "...";

std::string Escaped(unsigned character) {
    switch (character) {
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        default:
            char text[16];
            std::snprintf(text, sizeof text, character < 0x100 ? "\\x%02X" : "\\u%04X",
                          character);
            return text;
    }
}

bool IsControl(unsigned character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// Whether it ends a line, or makes what follows run from right to left.
bool TurnsLines(unsigned character) {
    return (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

std::string WithoutControls(const std::wstring& text) {
    std::string line;
    for (const wchar_t character : text) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): has 32 bits
        const auto code = static_cast<unsigned>(character);
        line += IsControl(code) || TurnsLines(code) ? Escaped(code) : Narrow({character});
    }
    return line;
}

std::string AsAscii(const std::string& bytes) {
    std::string line;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        line += IsControl(code) || code >= 0x80 ? Escaped(code) : std::string(1, byte);
    }
    return line;
}

bool ContinuesACharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::string OneLine(const std::string& text, std::size_t longest) {
    std::wstring wide;
    std::string line = Widen(text, wide) ? WithoutControls(wide) : AsAscii(text);
    if (line.size() <= longest) {
        return line;
    }
    std::size_t head = longest * 3 / 5;
    std::size_t tail = line.size() - (longest - head - std::string(kCut).size());
    while (ContinuesACharacter(line[head])) {
        --head;
    }
    while (tail < line.size() && ContinuesACharacter(line[tail])) {
        ++tail;
    }
    return line.substr(0, head) + kCut + line.substr(tail);
}

}  // namespace host
