#include <algorithm>
#include <cmath>

#include "map_surround/picture.h"
#include "page/layout/steps.h"

namespace host {

std::unique_ptr<PlacedFrame> PlacePicture(const PageDesign& design,
                                          const Measures& measures, const Box& panel) {
    if (design.picture.path.empty()) {
        return nullptr;
    }
    auto picture = std::make_unique<CDrawPicture>();
    picture->Open(design.picture.path.c_str());
    const double ratio = picture->GetAspectRatio();
    if (!std::isfinite(ratio) || !(ratio > 0.0)) {
        return nullptr;
    }

    const double space = 0.6 * measures.module;
    const double most =
        std::min({panel.Width(), panel.Height(), measures.picture}) - 2.0 * space;
    const double height = std::max(1.0, std::floor(std::min(most, most / ratio)));
    picture->SetSize(static_cast<int>(height));
    picture->ResetAspectRatio();

    const double frameWidth = height * ratio + 2.0 * space;
    const double frameHeight = height + 2.0 * space;
    const Box extent = {panel.right - frameWidth, panel.bottom, panel.right,
                        panel.bottom + frameHeight};
    auto frame = std::make_unique<PlacedFrame>(std::move(picture));
    Decorate(*frame, extent, design.frames, measures);
    frame->SetName("picture");
    return frame;
}

}  // namespace host
