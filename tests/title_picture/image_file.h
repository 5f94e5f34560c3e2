#pragma once

#include <filesystem>
#include <string>

/// A folder of its own for the image files of a test, deleted with what is in it.
class ImageFolder {
public:
    ImageFolder();
    ~ImageFolder();
    ImageFolder(const ImageFolder&) = delete;
    ImageFolder& operator=(const ImageFolder&) = delete;

    /// Writes a BMP file of one colour.
    /// @param name UTF-8
    /// @param rgb 0xRRGGBB
    /// @return its path
    std::wstring WriteBmp(const std::string& name, int width, int height,
                          unsigned int rgb) const;

    std::wstring PathOf(const std::string& name) const;

private:
    std::filesystem::path m_folder;
};
