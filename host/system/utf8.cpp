#include "system/utf8.h"

#include <cpl_conv.h>
#include <cpl_string.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace host {
namespace {

using CplText = std::unique_ptr<char, decltype(&VSIFree)>;

/// Lone surrogates, which GDAL lets through, and values beyond the last character.
bool IsNoCharacter(wchar_t c) { return (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF; }

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
    std::wstring characters = text.get();
    if (std::any_of(characters.begin(), characters.end(), IsNoCharacter)) {
        return false;
    }
    wide = std::move(characters);
    return true;
}

std::string Narrow(const std::wstring& wide) {
    std::wstring characters = wide;
    std::replace_if(characters.begin(), characters.end(), IsNoCharacter, L'\uFFFD');
    const CplText utf8(CPLRecodeFromWChar(characters.c_str(), "WCHAR_T", CPL_ENC_UTF8),
                       VSIFree);
    return utf8 == nullptr ? "" : utf8.get();
}

}  // namespace host
