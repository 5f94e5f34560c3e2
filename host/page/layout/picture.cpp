#include <algorithm>
#include <cmath>
#include <optional>

#include "map_surround/picture.h"
#include "page/layout/steps.h"

namespace host {
namespace {

std::unique_ptr<CDrawPicture> OpenPicture(const PageDesign& design) {
    if (design.picture.path.empty()) {
        return nullptr;
    }
    auto picture = std::make_unique<CDrawPicture>();
    picture->Open(design.picture.path.c_str());
    const double ratio = picture->GetAspectRatio();
    return std::isfinite(ratio) && ratio > 0.0 ? std::move(picture) : nullptr;
}

}  // namespace

bool HasPicture(const PageDesign& design) { return OpenPicture(design) != nullptr; }

std::unique_ptr<PlacedFrame> PlacePicture(const PageDesign& design,
                                          const Measures& measures, const Box& cell) {
    auto picture = OpenPicture(design);
    if (picture == nullptr) {
        return nullptr;
    }
    const double ratio = picture->GetAspectRatio();
    const double space =
        std::min(measures.space, std::min(cell.Width(), cell.Height()) / 4.0);
    const double height =
        std::min(cell.Height() - 2.0 * space, (cell.Width() - 2.0 * space) / ratio);
    picture->SetSize(static_cast<int>(std::max(1.0, std::floor(height))));
    picture->ResetAspectRatio();
    auto frame = std::make_unique<PlacedFrame>(std::move(picture));
    Decorate(*frame, cell, design.frames, measures);
    frame->SetName("picture");
    return frame;
}

}  // namespace host
