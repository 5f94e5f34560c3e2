#include "system/utf8.h"

#include <cpl_conv.h>
#include <cpl_string.h>

#include <cstdint>
#include <memory>

namespace host {
namespace {

constexpr std::uint32_t kLastCharacter = 0x10FFFF;
constexpr std::uint32_t kReplacement = 0xFFFD;

/// A character as one to four bytes.
void Append(std::string& utf8, std::uint32_t character) {
    struct Length {
        std::uint32_t highest;
        std::uint32_t firstByte;
        int more;
    };
    constexpr Length kLengths[] = {
        {0x7F, 0x00, 0}, {0x7FF, 0xC0, 1}, {0xFFFF, 0xE0, 2}, {kLastCharacter, 0xF0, 3}};
    for (const Length& length : kLengths) {
        if (character <= length.highest) {
            utf8 +=
                static_cast<char>(length.firstByte | (character >> (6 * length.more)));
            for (int i = length.more - 1; i >= 0; --i) {
                utf8 += static_cast<char>(0x80 | ((character >> (6 * i)) & 0x3F));
            }
            return;
        }
    }
}

}  // namespace

bool Widen(const std::string& utf8, std::wstring& wide) {
    if (CPLIsUTF8(utf8.data(), static_cast<int>(utf8.size())) == 0) {
        return false;
    }
    const std::unique_ptr<wchar_t, decltype(&VSIFree)> text(
        CPLRecodeToWChar(utf8.c_str(), CPL_ENC_UTF8, "WCHAR_T"), VSIFree);
    if (text == nullptr) {
        return false;
    }
    wide = text.get();
    return true;
}

std::string Narrow(const std::wstring& wide) {
    std::string utf8;
    for (const wchar_t given : wide) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): has 32 bits
        const auto value = static_cast<std::uint32_t>(given);
        const bool isCharacter =
            value <= kLastCharacter && !(value >= 0xD800 && value <= 0xDFFF);
        Append(utf8, isCharacter ? value : kReplacement);
    }
    return utf8;
}

}  // namespace host
