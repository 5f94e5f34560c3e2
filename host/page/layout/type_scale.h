#pragma once

#include <vector>

namespace host {

/// Type that a page sets by itself is never smaller, in points.
constexpr double kLeastSetPoints = 6.0;

/// The sizes in which a page sets type by itself, in points, from 6 to 288: so that two
/// texts are of one size, or clearly of two.
const std::vector<double>& TypeScale();

/// The size of the scale that is nearest, in points: 10 for 10.2.
double OnTypeScale(double points);

/// Which of them that is, from 0.
int StepOf(double points);

/// The size that is so many steps smaller, or with a negative number larger.
double StepsDown(double points, int steps);

}  // namespace host
