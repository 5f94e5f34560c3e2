#include "true_pages/turn.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace true_pages {
namespace {

constexpr double kPi = 3.14159265358979323846;

double Darkness(const Pixel& pixel) {
    return (765.0 - pixel.red - pixel.green - pixel.blue) / 765.0;
}

/// The ink around the middle of a drawing, a little blurred, so that it changes evenly
/// from pixel to pixel.
class Ink {
public:
    Ink(const Drawing& drawing, int reach)
        : m_side(2 * reach + 1), m_middle(reach), m_ink(Pixels()) {
        const Area area = drawing.picture.Clipped(drawing.area);
        const int left = static_cast<int>(std::floor(drawing.x)) - reach;
        const int top = static_cast<int>(std::floor(drawing.y)) - reach;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                if (IsInside(x - left, y - top)) {
                    m_ink[Index(x - left, y - top)] = Darkness(drawing.picture.At(x, y));
                }
            }
        }
        for (const int step : {1, m_side, 1, m_side}) {
            Blur(static_cast<std::size_t>(step));
        }
    }

    int Reach() const { return m_middle; }
    double At(int x, int y) const {
        return IsInside(x + m_middle, y + m_middle)
                   ? m_ink[Index(x + m_middle, y + m_middle)]
                   : 0.0;
    }
    /// Between pixels, too, from the middle.
    double Between(double x, double y) const {
        const double column = std::floor(x);
        const double row = std::floor(y);
        const int left = static_cast<int>(column);
        const int top = static_cast<int>(row);
        const double right = x - column;
        const double below = y - row;
        return (1.0 - below) *
                   ((1.0 - right) * At(left, top) + right * At(left + 1, top)) +
               below *
                   ((1.0 - right) * At(left, top + 1) + right * At(left + 1, top + 1));
    }

private:
    std::size_t Pixels() const {
        return static_cast<std::size_t>(m_side) * static_cast<std::size_t>(m_side);
    }
    bool IsInside(int column, int row) const {
        return column >= 0 && row >= 0 && column < m_side && row < m_side;
    }
    std::size_t Index(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_side) +
               static_cast<std::size_t>(column);
    }
    /// Each pixel with its two neighbours so many pixels away, a quarter of each.
    void Blur(std::size_t step) {
        const std::vector<double> sharp = m_ink;
        for (std::size_t i = step; i + step < sharp.size(); ++i) {
            m_ink[i] = (sharp[i - step] + 2.0 * sharp[i] + sharp[i + step]) / 4.0;
        }
    }

    int m_side;
    int m_middle;
    std::vector<double> m_ink;
};

/// A turn about the middle, clockwise, and a shift thereafter, and what they leave
/// between two inks.
struct Fit {
    double turn = 0.0;  ///< radians
    double right = 0.0;
    double down = 0.0;
    double misfit = 0.0;
};

using Sums = std::array<std::array<double, 4>, 3>;

/// The solution of three equations, by Gauss and Jordan.
std::array<double, 3> Solved(Sums sums) {
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t row = 0; row < 3; ++row) {
            const double factor = row == i ? 0.0 : sums[row][i] / sums[i][i];
            for (std::size_t column = i; column < 4; ++column) {
                sums[row][column] -= factor * sums[i][column];
            }
        }
    }
    return {sums[0][3] / sums[0][0], sums[1][3] / sums[1][1], sums[2][3] / sums[2][2]};
}

/// A step of Gauss and Newton's towards the turn and the shift that leave least, of every
/// so many pixels across and down.
Fit Nearer(const Ink& before, const Ink& after, const Fit& from, int every) {
    const double cosine = std::cos(from.turn);
    const double sine = std::sin(from.turn);
    Sums sums{};
    Fit fit = from;
    fit.misfit = 0.0;
    for (int row = -after.Reach(); row <= after.Reach(); row += every) {
        for (int column = -after.Reach(); column <= after.Reach(); column += every) {
            const double across = column - from.right;
            const double down = row - from.down;
            const double off =
                after.At(column, row) - before.Between(cosine * across + sine * down,
                                                       cosine * down - sine * across);
            const double right = after.At(column - 1, row) - after.At(column + 1, row);
            const double below = after.At(column, row - 1) - after.At(column, row + 1);
            const std::array<double, 3> slopes = {(below * across - right * down) / 2.0,
                                                  right / 2.0, below / 2.0};
            for (std::size_t i = 0; i < 3; ++i) {
                for (std::size_t k = 0; k < 3; ++k) {
                    sums[i][k] += slopes[i] * slopes[k];
                }
                sums[i][3] += slopes[i] * off;
            }
            fit.misfit += off * off;
        }
    }
    const std::array<double, 3> step = Solved(sums);
    fit.turn += step[0];
    fit.right += step[1];
    fit.down += step[2];
    return fit;
}

Fit Fitted(const Ink& before, const Ink& after, Fit fit, int every, int steps) {
    for (int i = 0; i < steps; ++i) {
        fit = Nearer(before, after, fit, every);
    }
    return fit;
}

}  // namespace

double TurnBetween(const Drawing& unturned, const Drawing& turned, double reach,
                   double near) {
    constexpr double kStarts = 8.0;  // a star looks alike from as many sides
    constexpr int kFew = 40;         // pixels from the middle, for which star it is
    const int pixels = static_cast<int>(std::ceil(reach));
    const Ink before(unturned, pixels);
    const Ink after(turned, pixels);
    Fit best;
    for (double i = 0.0; i < kStarts; ++i) {
        const Fit start = {near * kPi / 180.0 + i * 2.0 * kPi / kStarts, 0.0, 0.0, 0.0};
        const Fit fit = Fitted(before, after, start, std::max(1, pixels / kFew), 8);
        best = i == 0.0 || fit.misfit < best.misfit ? fit : best;
    }
    return Fitted(before, after, best, 1, 4).turn * 180.0 / kPi;
}

}  // namespace true_pages
