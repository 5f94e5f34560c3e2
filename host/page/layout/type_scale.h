#pragma once

#include <vector>

namespace host {

/// The smallest type that a page sets by itself, in points.
constexpr double kLeastSetPoints = 6.0;

/// The sizes in which a page sets type by itself, in points, from 6 to 288: so that two
/// texts have the same size, or clearly different ones.
const std::vector<double>& TypeScale();

/// The nearest size of the scale, in points: 10 for 10.2.
double OnTypeScale(double points);

/// The index of that size, from 0.
int StepOf(double points);

/// The size that is some steps smaller, or larger for a negative number.
double StepsDown(double points, int steps);

}  // namespace host
