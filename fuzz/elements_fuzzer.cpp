// Elements and frames with whatever properties, over flat functions that draw nothing.

#include <gdiplus.h>

#include <cstdint>
#include <cstdlib>
#include <limits>

#include "flat_tokens.h"
#include "input.h"
#include "scene.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Gdiplus::Bitmap bitmap(100, 80);
    static Gdiplus::Graphics graphics(&bitmap);
    static const int before = fuzz::flat::LiveObjects();
    static const fuzz::Means means{
        &graphics, {L"picture.png", L""}, std::numeric_limits<int>::max()};

    fuzz::Input input(data, size);
    fuzz::flat::Begin(input);
    try {
        fuzz::Scene(input, means).Play();
        if (fuzz::flat::IsTurned()) {
            std::abort();
        }
    } catch (const fuzz::flat::EnoughDrawn&) {
    }
    if (fuzz::flat::LiveObjects() != before) {
        std::abort();
    }
    return 0;
}
