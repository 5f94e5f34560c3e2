#include "page/layout/type_scale.h"

#include <algorithm>
#include <cmath>

namespace host {

const std::vector<double>& TypeScale() {
    static const std::vector<double> scale = {kLeastSetPoints,
                                              7,
                                              8,
                                              9,
                                              10,
                                              11,
                                              12,
                                              14,
                                              16,
                                              18,
                                              20,
                                              22,
                                              24,
                                              28,
                                              32,
                                              36,
                                              40,
                                              44,
                                              48,
                                              56,
                                              64,
                                              72,
                                              80,
                                              96,
                                              112,
                                              128,
                                              144,
                                              176,
                                              208,
                                              240,
                                              288};
    return scale;
}

double OnTypeScale(double points) {
    const std::vector<double>& scale = TypeScale();
    return *std::min_element(scale.begin(), scale.end(), [points](double a, double b) {
        return std::fabs(a - points) < std::fabs(b - points);
    });
}

int StepOf(double points) {
    const std::vector<double>& scale = TypeScale();
    return static_cast<int>(
        std::lower_bound(scale.begin(), scale.end(), OnTypeScale(points)) -
        scale.begin());
}

double StepsDown(double points, int steps) {
    const std::vector<double>& scale = TypeScale();
    const int last = static_cast<int>(scale.size()) - 1;
    return scale[static_cast<std::size_t>(std::clamp(StepOf(points) - steps, 0, last))];
}

}  // namespace host
