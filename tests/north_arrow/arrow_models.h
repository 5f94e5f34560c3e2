#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "map_surround/north_arrow.h"
#include "recording/expect.h"

/// What each style must draw, worked out from its table of vertices.
namespace north_arrow_test {

/// How an arrow is drawn.
struct Setting {
    int size = 0;
    double scale = 1.0;
    float angle = 0.0f;
    Gdiplus::ARGB color = 0xFF000000;
    CPoint centre;
};

std::ostream& operator<<(std::ostream& out, const Setting& setting);

/// A style.
struct Style {
    std::string name;  ///< "NorthArrowOneAngle"
    NorthArrowType type;
    float aspectRatio;
    std::unique_ptr<CNorthArrowBase> (*make)();

    /// A copy of an arrow of this style, made by its constructor or by assignment.
    std::unique_ptr<CNorthArrowBase> (*copy)(const CNorthArrowBase& arrow);
    std::unique_ptr<CNorthArrowBase> (*assign)(const CNorthArrowBase& arrow);

    /// The visible operations between the turn and its reset.
    std::vector<recording::Named> (*shapes)(const Setting& setting);
};

std::ostream& operator<<(std::ostream& out, const Style& style);

const std::vector<Style>& Styles();

/// Shapes between the rotation about the centre and the reset of the world transform.
std::vector<recording::Named> Turned(const Setting& setting,
                                     const std::vector<recording::Named>& shapes);

/// The letter's font as the trace shows it; there is none without an em size.
std::string LetterFontLook(float emSize);

/// Sets an arrow up and draws it on a surface, or on one of its own.
void Draw(CNorthArrowBase& arrow, const Setting& setting, Gdiplus::Graphics* graphics);

}  // namespace north_arrow_test
