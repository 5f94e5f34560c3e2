#include <new>
#include <utility>

#include "element/numbers.h"
#include "element/rotation.h"
#include "map_surround/picture.h"

using map_surround::Length;
using map_surround::ToDevice;
using map_surround::Truncate;

namespace {

/// A size on the page for an image, from its pixels: large images are scaled down, small
/// ones stay legible.
int SizeOf(unsigned int width, unsigned int height) {
    unsigned int size = height / 5;
    if (height > 768 && width > 768) {
        size = height / 10;
    }
    if (height > 1920 && width > 1920) {
        size = height / 20;
    }
    if (height < 768 && width < 768) {
        size = height / 3;
    }
    return ToDevice(size);
}

}  // namespace

CDrawPicture::CDrawPicture() { SetItemType(SurroundPicture); }

// Not the default, which would copy the base before the step that can fail. Assigning to
// itself changes nothing.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,modernize-use-equals-default)
CDrawPicture& CDrawPicture::operator=(const CDrawPicture& other) {
    m_path = other.m_path;  // first: the only step that can fail
    CMapSurround::operator=(other);
    m_imageAspectRatio = other.m_imageAspectRatio;
    m_image = other.m_image;
    m_newHeight = other.m_newHeight;
    return *this;
}

CDrawPicture::CDrawPicture(CDrawPicture&& other) noexcept
    : CMapSurround(other),
      m_imageAspectRatio(other.m_imageAspectRatio),
      m_path(std::move(other.m_path)),
      m_image(std::exchange(other.m_image, nullptr)),
      m_newHeight(other.m_newHeight) {}

CDrawPicture& CDrawPicture::operator=(CDrawPicture&& other) noexcept {
    if (this != &other) {
        CMapSurround::operator=(other);
        m_imageAspectRatio = other.m_imageAspectRatio;
        m_path = std::move(other.m_path);
        ::delete m_image;
        m_image = std::exchange(other.m_image, nullptr);
        m_newHeight = other.m_newHeight;
    }
    return *this;
}

// The global operators, above, here and in Open, so that new and delete match whatever
// allocation functions GDI+'s classes declare.
CDrawPicture::~CDrawPicture() { ::delete m_image; }

bool CDrawPicture::Open(const wchar_t* path) {
    m_path = path == nullptr ? L"" : path;
    ::delete m_image;
    m_image = nullptr;
    m_image = ::new (std::nothrow) Gdiplus::Image(m_path.c_str());
    if (m_image == nullptr) {
        return false;
    }
    const unsigned int height = m_image->GetHeight();
    const unsigned int width = m_image->GetWidth();
    SetSize(SizeOf(width, height));
    m_imageAspectRatio = static_cast<float>(width) / static_cast<float>(height);
    SetAspectRatio(m_imageAspectRatio);
    return true;
}

void CDrawPicture::ResetAspectRatio() {
    const int height = GetSize();
    const int width = Truncate(static_cast<float>(height) * m_imageAspectRatio);

    Gdiplus::GraphicsPath box(Gdiplus::FillModeAlternate);
    box.AddRectangle(Gdiplus::Rect(0, 0, width, height));
    const int centreX = width / 2;
    const int centreY = height / 2;
    Gdiplus::Matrix turn;
    map_surround::TurnAbout(turn, static_cast<float>(centreX),
                            static_cast<float>(centreY), GetAngle());
    box.Transform(&turn);
    Gdiplus::Rect bounds;
    box.GetBounds(&bounds, nullptr, nullptr);

    m_newHeight = bounds.Height;
    SetAspectRatio(static_cast<float>(bounds.Width) / static_cast<float>(bounds.Height));
}

void CDrawPicture::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (m_image == nullptr || graphics == nullptr) {
        return;
    }
    const int height = Truncate(GetSize() * scale);
    const int halfHeight = Truncate(height * 0.5);
    const int halfWidth = Truncate(static_cast<float>(height) * GetAspectRatio() * 0.5);

    map_surround::TurnAbout(*graphics, static_cast<float>(centre.x),
                            static_cast<float>(centre.y), GetAngle());
    graphics->DrawImage(m_image, ToDevice(Length{centre.x} - halfWidth),
                        ToDevice(Length{centre.y} - halfHeight),
                        ToDevice(2 * Length{halfWidth}),
                        ToDevice(2 * Length{halfHeight}));
    graphics->ResetTransform();
}
