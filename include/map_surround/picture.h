#pragma once

/// @file
/// The picture from an image file.

#include <gdiplus.h>

#include <cstdint>
#include <string>

#include "map_surround/element.h"
#include "map_surround/export.h"

/// An image file on the page: a logo, a photograph.
///
/// Copies share the image: the host must not let two copies destroy it. An assignment
/// for which there is not enough memory changes nothing.
class MAP_SURROUND_API CDrawPicture : public CMapSurround {
public:
    CDrawPicture();
    /// Copies every property and the pointer to the image, which both then share.
    CDrawPicture(const CDrawPicture&) = default;
    CDrawPicture& operator=(const CDrawPicture& other);

    /// Disposes of the image.
    ~CDrawPicture() override;

    /// Loads an image file in any format that GDI+ decodes, in place of the one held, and
    /// picks a size from its height H in pixels: H / 5; H / 10 when width and height are
    /// over 768; H / 20 when both are over 1920; H / 3 when both are under 768. An image
    /// of 1000 x 1000 pixels gets size 100. The aspect ratio becomes the image's.
    /// @param path a null pointer counts as an empty name, which no file has
    /// @return whether there is an image object: false where there is no memory for it.
    /// One whose file could not be loaded is one too, with size 0 and aspect ratio NaN
    /// (0/0): the host checks the file before.
    bool Open(const wchar_t* path);

    /// Sets the aspect ratio and the new height to those of the box around the picture at
    /// its size, turned by the angle. It starts from the image's own proportions each
    /// time, so it may be called again and again. A 200 x 100 image at size 50 turned by
    /// 90 degrees gives a new height of 100 and an aspect ratio of 0.5.
    void ResetAspectRatio() override;

    /// Stretches the image into the element's rectangle, turned by the angle about the
    /// centre; nothing before the first Open.
    ///
    /// The rectangle is as high as the size and has the aspect ratio as it stands. That
    /// is the turned box's after ResetAspectRatio(): the 200 x 100 image turned by 90
    /// degrees is then drawn 25 wide and 50 high before it is turned. A host that wants
    /// the image's own proportions sets the aspect ratio to those once it has read the
    /// box's.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// What the last Open was given.
    std::wstring GetPath() const { return m_path; }

    /// The height of the turned picture's box, in page units; 0 until ResetAspectRatio.
    int GetNewHeight() const { return m_newHeight; }

private:
    float m_imageAspectRatio = 0.0f;
    std::wstring m_path;
    Gdiplus::Image* m_image = nullptr;
    std::int32_t m_newHeight = 0;
};
