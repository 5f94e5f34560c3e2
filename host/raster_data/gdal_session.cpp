#include "raster_data/gdal_session.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>
#include <gdal.h>

#include <algorithm>
#include <cwchar>
#include <memory>
#include <mutex>

namespace host {

namespace {

// Each row of blocks is read once, in order, so a larger cache would only keep what is
// not needed again.
constexpr GIntBig kCacheBytes = GIntBig{64} << 20;

constexpr std::size_t kLongestReason = 120;

void CPL_STDCALL KeepFailure(CPLErr severity, CPLErrorNum /*number*/,
                             const char* message) {
    if (severity >= CE_Failure) {
        *static_cast<std::string*>(CPLGetErrorHandlerUserData()) = message;
    }
}

void Erase(std::string& text, const std::string& part) {
    if (part.empty()) {
        return;
    }
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part)) {
        text.erase(at, part.size());
    }
}

/// Cuts between characters, not inside one.
void CutUtf8(std::string& text, std::size_t length) {
    if (text.size() <= length) {
        return;
    }
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
        --length;
    }
    text.erase(length);
    text += "...";
}

}  // namespace

void StartGdal() {
    static std::once_flag once;
    std::call_once(once, [] {
        GDALAllRegister();
        if (CPLGetConfigOption("GDAL_CACHEMAX", nullptr) == nullptr) {
            GDALSetCacheMax64(kCacheBytes);
        }
    });
}

QuietGdal::QuietGdal() { CPLPushErrorHandlerEx(KeepFailure, &m_failure); }

QuietGdal::~QuietGdal() { CPLPopErrorHandler(); }

std::string QuietGdal::Reason(const std::string& path) const {
    std::string reason = m_failure;
    for (const std::string& name : {path, std::string(CPLGetFilename(path.c_str()))}) {
        for (const std::string& quoted : {"`" + name + "'", "'" + name + "'",
                                          "\"" + name + "\"", name + ", ", name}) {
            Erase(reason, name.empty() ? name : quoted);
        }
    }
    std::replace_if(
        reason.begin(), reason.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    reason.erase(0, reason.find_first_not_of(" :,"));
    reason.erase(reason.find_last_not_of(" .:") + 1);
    CutUtf8(reason, kLongestReason);
    return reason;
}

std::wstring WideText(const std::string& utf8) {
    const std::unique_ptr<wchar_t, decltype(&VSIFree)> wide(
        CPLRecodeToWChar(utf8.c_str(), CPL_ENC_UTF8, "WCHAR_T"), &VSIFree);
    return wide == nullptr ? std::wstring() : std::wstring(wide.get());
}

}  // namespace host
