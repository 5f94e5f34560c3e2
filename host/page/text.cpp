#include "page/text.h"

#include <cpl_conv.h>
#include <cpl_string.h>

#include <memory>

namespace host {

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

}  // namespace host
