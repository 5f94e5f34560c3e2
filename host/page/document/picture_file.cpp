#include "page/document/picture_file.h"

#include <gdiplus.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <optional>
#include <system_error>

#include "raster_data/image_size.h"
#include "system/utf8.h"

namespace host {
namespace {

// GDI+ reads no larger images, and holds one whole: here 800 MB.
constexpr std::int64_t kLongestPictureSide = 32767;
constexpr std::int64_t kMostPicturePixels = 100'000'000;

std::string WhyTooLarge(const ImageSize& size) {
    const std::string has = "has " + std::to_string(size.width) + " x " +
                            std::to_string(size.height) + " pixels; at most ";
    if (size.width > kLongestPictureSide || size.height > kLongestPictureSide) {
        return has + std::to_string(kLongestPictureSide) + " a side are drawn";
    }
    return size.width * size.height > kMostPicturePixels ? has + "100 million are drawn"
                                                         : "";
}

}  // namespace

std::string WhyNotOpened(const std::string& picture) {
    struct stat status = {};
    if (stat(picture.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) {
        return {};
    }
    if (!S_ISREG(status.st_mode)) {
        return "is not a plain file";  // reading a pipe may block for ever
    }
    const std::optional<ImageSize> size = SizeOfImage(picture);
    return size ? WhyTooLarge(*size) : "";
}

std::string CheckImageFile(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        return path + ": " + std::generic_category().message(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        return path + ": " + std::generic_category().message(EISDIR);
    }
    std::string why = WhyNotOpened(path);
    if (why.empty()) {
        std::wstring wide;
        Widen(path, wide);
        Gdiplus::Image image(wide.c_str());
        const ImageSize size = {image.GetWidth(), image.GetHeight()};
        why = image.GetLastStatus() != Gdiplus::Ok || size.width == 0 || size.height == 0
                  ? "is not an image that can be read"
                  : WhyTooLarge(size);
    }
    return why.empty() ? "" : path + ": " + why;
}

}  // namespace host
