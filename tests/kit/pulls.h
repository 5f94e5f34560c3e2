#pragma once

/// What becomes of an extent whose handles are pulled.
namespace kit_tests {

struct Edges {
    double left, bottom, right, top;
};

/// A handle of an extent of 120 by 60, from (300, 300) to (420, 360).
struct PullRow {
    int handle;
    Edges free;          // pulled by 30 to the right and 20 upwards
    Edges proportioned;  // the same where proportions are kept
};

// Free: the edges that the handle has follow. Kept: the larger of the two pulls, as a
// factor, and the opposite corner, or middle of an edge, stays.
constexpr PullRow kPulls[] = {
    {0, {330, 300, 420, 380}, {260, 300, 420, 380}},  // 80 / 60 high
    {1, {300, 300, 420, 380}, {280, 300, 440, 380}},
    {2, {300, 300, 450, 380}, {300, 300, 460, 380}},
    {3, {300, 300, 450, 360}, {300, 292.5, 450, 367.5}},  // 150 / 120 wide
    {4, {300, 320, 450, 360}, {300, 285, 450, 360}},
    {5, {300, 320, 420, 360}, {320, 320, 400, 360}},  // 40 / 60 high
    {6, {330, 320, 420, 360}, {330, 315, 420, 360}},  // 90 / 120 wide
    {7, {330, 300, 420, 360}, {330, 307.5, 420, 352.5}},
};

}  // namespace kit_tests
