#include "page/output/pdf/pdf_archive.h"

#include <lcms2.h>

#include <algorithm>
#include <memory>
#include <new>
#include <qpdf/QPDFObjectHandle.hh>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "page/texts.h"
#include "system/errors.h"

namespace host {
namespace {

/// The bytes of an ICC profile of sRGB, always the same.
std::string StandardColours() {
    constexpr double kVersion = 4.2;  // the latest that PDF/A-2 allows
    constexpr std::size_t kDate = 24;
    constexpr std::size_t kDateBytes = 12;
    const std::unique_ptr<std::remove_pointer_t<cmsHPROFILE>, int (*)(cmsHPROFILE)>
        profile(cmsCreate_sRGBProfile(), cmsCloseProfile);
    cmsUInt32Number size = 0;
    if (profile != nullptr) {
        cmsSetProfileVersion(profile.get(), kVersion);
    }
    if (profile == nullptr || cmsSaveProfileToMem(profile.get(), nullptr, &size) == 0) {
        throw std::runtime_error("no colour profile can be made");
    }
    std::string bytes(size, '\0');
    if (cmsSaveProfileToMem(profile.get(), bytes.data(), &size) == 0 ||
        size < kDate + kDateBytes) {
        throw std::runtime_error("no colour profile can be made");
    }
    // Dated the first of January 2000.
    const unsigned char date[kDateBytes] = {0x07, 0xD0, 0, 1, 0, 1};
    std::copy(std::begin(date), std::end(date), bytes.begin() + kDate);
    return bytes;
}

}  // namespace

void CheckForArchive(const Page& page) {
    const std::vector<std::string> missing = RemarksOfMissing(page);
    if (!missing.empty()) {
        throw NamedError(missing.front() + ", which PDF/A does not allow");
    }
}

void AddColours(PdfObjects& objects, QPDFObjectHandle catalogue) {
    const int profile =
        objects.WritePacked(QPDFObjectHandle::parse("<< /N 3 >>"), StandardColours());
    QPDFObjectHandle intent = QPDFObjectHandle::parse(
        "<< /Type /OutputIntent /S /GTS_PDFA1 /OutputConditionIdentifier (sRGB) "
        "/Info (sRGB IEC61966-2.1) >>");
    intent.replaceKey("/DestOutputProfile", PdfObjects::Reference(profile));
    catalogue.replaceKey(
        "/OutputIntents",
        QPDFObjectHandle::newArray({PdfObjects::Reference(objects.Write(intent))}));
}

}  // namespace host
