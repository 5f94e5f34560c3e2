#pragma once

/// @file
/// The picture element.

#include <gdiplus.h>

#include <cstdint>
#include <string>

#include "map_surround/element.h"
#include "map_surround/export.h"

/// An image file on the page: a logo, a photograph.
///
/// Copies share the image: the host must not let two copies destroy it. An assignment
/// that runs out of memory changes nothing.
/// @see [Picture](docs/elements/picture.md)
class MAP_SURROUND_API CDrawPicture : public CMapSurround {
public:
    CDrawPicture();
    /// Copies every property and the pointer to the image, which both then share.
    CDrawPicture(const CDrawPicture&) = default;
    CDrawPicture& operator=(const CDrawPicture& other);

    /// Moves the image along; the other picture then draws nothing until it is opened
    /// again. An image held before an assignment is deleted. So pictures may be kept in a
    /// vector.
    CDrawPicture(CDrawPicture&& other) noexcept;
    CDrawPicture& operator=(CDrawPicture&& other) noexcept;

    /// Deletes the image.
    ~CDrawPicture() override;

    /// Loads an image file in any format that GDI+ decodes, replacing the current one,
    /// and picks a size from its height H in pixels: H / 5; H / 10 when width and height
    /// are over 768; H / 20 when both are over 1920; H / 3 when both are under 768. An
    /// image of 1000 x 1000 pixels gets size 100. The aspect ratio becomes the image's.
    /// @param path a null pointer counts as an empty name, which never loads
    /// @return false only when there is no memory for the image object. It is true for a
    /// file that could not be loaded, which leaves size 0 and aspect ratio NaN (0/0): the
    /// host checks the file first.
    bool Open(const wchar_t* path);

    /// Sets the aspect ratio and the new height to those of the bounding box of the
    /// picture at its size, rotated by the angle. It starts from the image's own
    /// proportions each time, so repeated calls do not drift. A 200 x 100 image at size
    /// 50 rotated by 90 degrees gives a new height of 100 and an aspect ratio of 0.5.
    void ResetAspectRatio() override;

    /// Stretches the image into the element's rectangle, rotated by the angle about the
    /// centre; draws nothing before the first Open.
    ///
    /// The rectangle is as high as the size and has the current aspect ratio, which after
    /// ResetAspectRatio() is that of the rotated box: the 200 x 100 image rotated by 90
    /// degrees is stretched to 25 by 50 and then rotated. A host that wants the image's
    /// own proportions sets the aspect ratio back to them after reading the box's.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// The path given to the last Open.
    std::wstring GetPath() const { return m_path; }

    /// The height of the rotated picture's bounding box, in page units; 0 until
    /// ResetAspectRatio().
    int GetNewHeight() const { return m_newHeight; }

private:
    float m_imageAspectRatio = 0.0f;
    std::wstring m_path;
    Gdiplus::Image* m_image = nullptr;
    std::int32_t m_newHeight = 0;
};
