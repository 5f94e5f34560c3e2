#pragma once

#include <string>

namespace gallery {

/// An image file of a landscape, 360 by 240 pixels, in the folder for temporary files;
/// it is deleted with this object.
class SampleImage {
public:
    SampleImage();
    ~SampleImage();
    SampleImage(const SampleImage&) = delete;
    SampleImage& operator=(const SampleImage&) = delete;

    const wchar_t* File() const { return m_file.c_str(); }

private:
    std::wstring m_file;
};

}  // namespace gallery
