#include "north_arrow/arrow_models.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "page/catalogue.h"
#include "recording/lines.h"

namespace north_arrow_test {
namespace {

using namespace recording;
using std::int64_t;

int Clamped(int64_t value) {
    return static_cast<int>(std::clamp<int64_t>(value, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

int64_t IntegerPart(double value) {
    return std::isnan(value) ? 0
                             : static_cast<int64_t>(std::clamp(
                                   std::trunc(value), -2147483648.0, 2147483647.0));
}

Gdiplus::Point At(int64_t x, int64_t y) { return {Clamped(x), Clamped(y)}; }

float Whole(int64_t value) { return static_cast<float>(Clamped(value)); }

Named Letter(const std::string& letter, float emSize, float left, float top,
             Gdiplus::ARGB color) {
    return {"letter " + letter,
            DrawString(letter, LetterFontLook(emSize), left, top, BrushLook(color))};
}

std::vector<Named> OneAngleShapes(const Setting& s) {
    const int64_t x = s.centre.x;
    const int64_t y = s.centre.y;
    const int64_t n = IntegerPart(s.size * s.scale + 0.5);
    const int64_t m = n + n;
    const float nf = static_cast<float>(n);
    const float width = static_cast<float>(s.size) * static_cast<float>(s.scale) / 100;
    return {
        Letter("N", nf * 4 / 15, Whole(x - m / 15), Whole(y), s.color),
        {"shaft",
         DrawLine(PenLook(0xFF000000, width, 0, ArrowCapLook(nf / 10, nf / 20, true)),
                  Clamped(x), Clamped(y - m / 25), Clamped(x), Clamped(y - m / 5))},
    };
}

std::vector<Named> TwoAngleShapes(const Setting& s) {
    const int64_t x = s.centre.x;
    const int64_t y = s.centre.y;
    const int64_t n = IntegerPart(s.size * s.scale + 0.5);
    const int64_t b = n / 5;
    const int64_t c = (2 * n) / 5;
    const int64_t t = (17 * n) / 50;
    const double top = static_cast<double>(y) - static_cast<double>(n) * 1.5 / 5.0 -
                       static_cast<double>(b);
    const std::vector<Gdiplus::Point> right{At(x + b, y + c), At(x, y + b), At(x, y - t)};
    const std::vector<Gdiplus::Point> left{At(x + (b - c), y + c), At(x, y - t),
                                           At(x, y + b)};
    return {
        Letter("N", static_cast<float>(n) * 2 / 15, Whole(x - ((n / 6) * 2) / 5),
               static_cast<float>(top), s.color),
        {"right half, outline", DrawPolygon(PenLook(s.color, 1), right)},
        {"right half, fill", FillPolygon(BrushLook(s.color), right)},
        {"left half, outline", DrawPolygon(PenLook(s.color, 1), left)},
    };
}

std::vector<Named> FourAngleShapes(const Setting& s) {
    const int64_t x = s.centre.x;
    const int64_t y = s.centre.y;
    const int64_t n = IntegerPart(s.size * s.scale * 0.85 + 0.5);
    const int64_t a = (2 * n) / 5;
    const int64_t b = a / 5;
    const Gdiplus::Point c = At(x, y + b);
    const Gdiplus::Point north = At(x, y + b - a);
    const Gdiplus::Point east = At(x + a, y + b);
    const Gdiplus::Point south = At(x, y + b + a);
    const Gdiplus::Point west = At(x - a, y + b);
    const Gdiplus::Point ne = At(x + b, y);
    const Gdiplus::Point se = At(x + b, y + 2 * b);
    const Gdiplus::Point sw = At(x - b, y + 2 * b);
    const Gdiplus::Point nw = At(x - b, y);
    const std::string brush = BrushLook(s.color);
    const std::string pen = PenLook(s.color, 1);
    return {
        Letter("N", static_cast<float>(n) / 5, Whole(x - n / 10), Whole(y - n / 2),
               s.color),
        {"W-NW", FillPolygon(brush, {c, west, nw, c})},
        {"NW-N", DrawPath(pen, LinesPath({c, nw, north, c}))},
        {"N-NE", FillPolygon(brush, {c, north, ne, c})},
        {"NE-E", DrawPath(pen, LinesPath({c, ne, east, c}))},
        {"E-SE", FillPolygon(brush, {c, east, se, c})},
        {"SE-S", DrawPath(pen, LinesPath({c, se, south, c}))},
        {"S-SW", FillPolygon(brush, {c, south, sw, c})},
        {"SW-W", DrawPath(pen, LinesPath({c, sw, west, c}))},
    };
}

std::vector<Named> EightAngleShapes(const Setting& s) {
    const int64_t x = s.centre.x;
    const int64_t y = s.centre.y;
    const int64_t n = IntegerPart(s.size * s.scale + 0.5);
    const int64_t a = (2 * n) / 5;
    const int64_t L = x - a;
    const int64_t T = y - a;
    const int64_t w = 2 * a;
    const Gdiplus::Point C = At(x, y);
    const Gdiplus::Point W = At(x - a, y);
    const Gdiplus::Point NW = At(L + w / 5, T + w / 5);
    const Gdiplus::Point N = At(x, y - a);
    const Gdiplus::Point NE = At(L + (4 * w) / 5, T + w / 5);
    const Gdiplus::Point E = At(x + a, y);
    const Gdiplus::Point SE = At(L + (4 * w) / 5, T + (4 * w) / 5);
    const Gdiplus::Point S = At(x, y + a);
    const Gdiplus::Point SW = At(L + w / 5, T + (4 * w) / 5);
    const Gdiplus::Point i1 = At(L + w / 3, T + (2 * w) / 5);
    const Gdiplus::Point i2 = At(L + (2 * w) / 5, T + w / 3);
    const Gdiplus::Point i3 = At(L + (3 * w) / 5, T + w / 3);
    const Gdiplus::Point i4 = At(L + (2 * w) / 3, T + (2 * w) / 5);
    const Gdiplus::Point i5 = At(L + (2 * w) / 3, T + (3 * w) / 5);
    const Gdiplus::Point i6 = At(L + (3 * w) / 5, T + (2 * w) / 3);
    const Gdiplus::Point i7 = At(L + (2 * w) / 5, T + (2 * w) / 3);
    const Gdiplus::Point i8 = At(L + w / 3, T + (3 * w) / 5);

    const float em = static_cast<float>(n) / 10;
    const auto nd = static_cast<double>(n);
    std::vector<Named> shapes{
        Letter("N", em, Whole(x - n / 18),
               static_cast<float>(static_cast<double>(y - a) - nd * 1.5 / 15.0), s.color),
        Letter("W", em, static_cast<float>(static_cast<double>(x) - nd * 2.6 / 5.0),
               Whole(y - n / 17), s.color),
        Letter("S", em, Whole(x - n / 18), Whole(y + a), s.color),
        Letter("E", em, Whole(x + a), Whole(y - n / 16), s.color),
    };
    const std::vector<std::vector<Gdiplus::Point>> sectors{
        {W, i1, C},  {NW, C, i1}, {NW, i2, C}, {i2, N, C},  {N, i3, C},  {i3, NE, C},
        {NE, C, i4}, {E, C, i4},  {C, i5, E},  {SE, i5, C}, {SE, i6, C}, {S, i6, C},
        {i7, S, C},  {SW, i7, C}, {i8, SW, C}, {W, i8, C}};
    for (std::size_t step = 1; step <= sectors.size(); ++step) {
        const std::string name = "sector " + std::to_string(step);
        const std::vector<Gdiplus::Point>& sector = sectors[step - 1];
        shapes.push_back({name + ", outline", DrawPolygon(PenLook(s.color, 1), sector)});
        if (step % 2 == 1) {
            shapes.push_back({name + ", fill", FillPolygon(BrushLook(s.color), sector)});
        }
    }
    return shapes;
}

template <typename Arrow>
Style StyleOf(NorthArrowType type, float aspectRatio,
              std::vector<Named> (*shapes)(const Setting&)) {
    using Owner = std::unique_ptr<CNorthArrowBase>;
    return {host::StyleOf<Arrow>()->className + 1,
            type,
            aspectRatio,
            []() -> Owner { return std::make_unique<Arrow>(); },
            [](const CNorthArrowBase& arrow) -> Owner {
                return std::make_unique<Arrow>(dynamic_cast<const Arrow&>(arrow));
            },
            [](const CNorthArrowBase& arrow) -> Owner {
                auto target = std::make_unique<Arrow>();
                Arrow& result = *target = dynamic_cast<const Arrow&>(arrow);
                EXPECT_EQ(&result, target.get());
                return target;
            },
            shapes};
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Setting& setting) {
    return out << "size " << setting.size << ", scale " << setting.scale << ", angle "
               << setting.angle << ", colour " << Hex(setting.color) << ", centre ("
               << setting.centre.x << ", " << setting.centre.y << ")";
}

std::ostream& operator<<(std::ostream& out, const Style& style) {
    return out << style.name;
}

const std::vector<Style>& Styles() {
    static const std::vector<Style> styles{
        StyleOf<CNorthArrowOneAngle>(NorthArrowOne, 1.0f, OneAngleShapes),
        StyleOf<CNorthArrowTwoAngle>(NorthArrowTwo, 1.0f, TwoAngleShapes),
        StyleOf<CNorthArrowFourAngle>(NorthArrowFour, 0.8f, FourAngleShapes),
        StyleOf<CNorthArrowEightAngle>(NorthArrowEight, 1.0f, EightAngleShapes),
    };
    return styles;
}

std::vector<Named> Turned(const Setting& setting, const std::vector<Named>& shapes) {
    const auto x = static_cast<float>(setting.centre.x);
    const auto y = static_cast<float>(setting.centre.y);
    std::vector<Named> drawing{
        {"to the centre", TranslateWorld(x, y)},
        {"turn", RotateWorld(std::isfinite(setting.angle) ? setting.angle : 0)},
        {"from the centre", TranslateWorld(-x, -y)}};
    drawing.insert(drawing.end(), shapes.begin(), shapes.end());
    drawing.push_back({"reset", ResetWorld()});
    return drawing;
}

std::string LetterFontLook(float emSize) {
    return emSize > 0 ? FontLook("Arial", emSize, 0) : "null";
}

void Draw(CNorthArrowBase& arrow, const Setting& setting, Gdiplus::Graphics* graphics) {
    arrow.SetSize(setting.size);
    arrow.SetAngle(setting.angle);
    arrow.SetFrontColor(Gdiplus::Color(setting.color));
    arrow.Draw(graphics, setting.centre, setting.scale);
}

}  // namespace north_arrow_test
