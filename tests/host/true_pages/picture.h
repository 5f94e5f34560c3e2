#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What is read off a page's pixels, with nothing of the host's own code.
namespace true_pages {

struct Pixel {
    int red = 0;
    int green = 0;
    int blue = 0;
};

/// Part of a picture, its far edges not in it.
struct Area {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// An image file as it was written.
class Picture {
public:
    /// Fails the test when it is no image.
    explicit Picture(const std::string& path);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    Pixel At(int x, int y) const;
    Area Clipped(const Area& area) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint8_t> m_rgb;
};

/// Whether a pixel has a colour, within what smoothing does to it.
bool IsNear(const Pixel& pixel, const Pixel& colour, int tolerance);

/// The longest level run of pixels near a colour; first pixel, and one past the last.
struct Run {
    int first = 0;
    int end = 0;
    int y = 0;

    int Length() const { return end - first; }
};

Run LongestRun(const Picture& picture, const Area& area, const Pixel& colour,
               int tolerance);

/// Where two level runs of ink in one row end a longer one: the distance of their
/// middles, which no pen's width touches. 0 where there are none such.
double BetweenEndTicks(const Picture& picture, const Area& area, const Run& line,
                       const Pixel& colour, int tolerance);

}  // namespace true_pages
