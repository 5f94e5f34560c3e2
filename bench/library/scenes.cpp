#include "scenes.h"

#include <utility>

#include "elements.h"
#include "framed_page.h"

namespace bench {
namespace {

/// Whether the element's natural proportions are measured by GDI+.
bool IsMeasured(const CMapSurround& element) {
    const MapSurroundType type = element.GetItemType();
    return type == SurroundMapTitle || type == SurroundPicture || type == SurroundLegend;
}

}  // namespace

std::vector<std::shared_ptr<Scene>> Scenes(double scale) {
    constexpr int kWidth = 600;
    constexpr int kHeight = 450;
    const auto at = [scale](int length) { return static_cast<int>(length * scale); };
    const CPoint centre(at(kWidth / 2), at(kHeight / 2));
    const auto sharp = std::make_shared<Surface>(at(kWidth), at(kHeight));
    const auto smooth = std::make_shared<Surface>(at(kWidth), at(kHeight));
    smooth->Graphics().SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);

    std::vector<std::shared_ptr<Scene>> scenes;
    const auto add = [&](std::string name, std::shared_ptr<Surface> surface,
                         std::function<void()> run, bool draws) {
        scenes.push_back(std::make_shared<Scene>(
            Scene{std::move(name), std::move(surface), std::move(run), draws}));
    };
    for (Named& named : NewElements(scale)) {
        const std::shared_ptr<CMapSurround> element = std::move(named.element);
        const std::shared_ptr<Surface> surface =
            SmoothingOf(*element) == Gdiplus::SmoothingModeAntiAlias ? smooth : sharp;
        add(
            named.name, surface,
            [=] { element->Draw(&surface->Graphics(), centre, scale); }, true);
        if (IsMeasured(*element)) {
            add(
                named.name + ", measured", surface, [=] { element->ResetAspectRatio(); },
                false);
        }
    }

    const auto addFrame = [&](const char* name, const CFrameBase& frame) {
        const auto kept = std::make_shared<CFrameBase>(frame);
        const CRect rect(at(100), at(100), at(500), at(350));
        add(
            name, sharp, [=] { kept->DrawFrame(&sharp->Graphics(), rect); }, true);
    };
    addFrame("frame", DecoratedFrame());
    addFrame("frame, a dashed border", DashedFrame());

    const std::shared_ptr<FramedPage> page = FramedPage::OfEverything(scale);
    add(
        "a whole page", page->DrawnOn(), [=] { page->Draw(); }, true);
    return scenes;
}

}  // namespace bench
