#include <cmath>
#include <limits>
#include <stdexcept>

#include "host/common_functions.h"
#include "recording/lines.h"
#include "scale_bar/bar_row.h"

using namespace recording;

namespace scale_bar_test {
namespace {

int Trunc(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= 2147483647.0) {
        return std::numeric_limits<int>::max();
    }
    if (value <= -2147483648.0) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(value);
}

struct Factor {
    double f = 1.0;
    int decimals = 0;
};

/// For a scale of 1e-8 and more.
Factor FactorOf(double p, bool multiplyOne) {
    if (p < 1.0 || (multiplyOne && p <= 1.0)) {
        double t = p;
        int k = 0;
        do {
            t = t * 10.0;
            k = k + 1;
        } while (!(t >= 1.0));
        double n = std::trunc(t);
        for (int i = 0; i < k; ++i) {
            n = n / 10.0;
        }
        return {n / p, k};
    }
    if (p > 1.0) {
        double t = p;
        int k = 0;
        do {
            t = t / 10.0;
            k = k + 1;
        } while (!(t <= 1.0));
        double n = std::trunc(t * 10.0);
        for (int i = 0; i < k - 1; ++i) {
            n = n * 10.0;
        }
        return {n / p, 0};
    }
    return {};
}

/// The trace being built, with the quantities that are the same in every style.
struct Trace {
    const BarRow& row;
    Factor factor;
    int X, Y, H;
    int T, B, x0;
    double L, l;
    int s;
    std::string pen, brush;
    std::vector<Named> calls;

    Trace(const BarRow& bar, double addToHeight, double addToHalves, bool multiplyOne)
        : row(bar), factor(FactorOf(bar.paperToData, multiplyOne)) {
        const int h = Trunc(row.size * row.scale + addToHeight);
        const float w = static_cast<float>(h) * row.aspectRatio;
        const int hh = Trunc(h * 0.5 + addToHalves);
        const int hw = Trunc(static_cast<double>(w) * 0.5 + addToHalves);
        X = row.centre.x - hw;
        Y = row.centre.y - hh;
        H = 2 * hh;
        T = Y + (2 * H) / 3;
        B = Y + H;
        x0 = X + H / 8;
        if (row.unitPosition == 1) {
            x0 = x0 - Trunc(H * (-0.8));
        }
        L = factor.f * row.paperToScreen;
        l = L / (static_cast<double>(row.subCount) + 1.0);
        s = Trunc(L);
        pen = PenLook(row.color, static_cast<float>(row.scale));
        brush = BrushLook(row.color);
    }

    void Add(const std::string& name, const std::string& line) {
        calls.push_back({name, line});
    }

    /// A font of em size 0 is none.
    std::string Font(float emSize) const {
        return emSize > 0.0f ? Times(emSize) : "null";
    }

    void AddLabel(int i, int x) {
        const double value = (static_cast<double>(i) * row.paperToData) * factor.f;
        const std::wstring text = CommonFun::double2wstring(value, factor.decimals);
        const int emSize = H / 4;
        Add("label " + std::to_string(i),
            DrawString(std::string(text.begin(), text.end()),
                       Font(static_cast<float>(emSize)),
                       static_cast<float>(x - H * 0.125), static_cast<float>(Y), brush));
    }

    void AddUnitName(int afterX, int y) {
        float unitX = 0.0f;
        float unitY = 0.0f;
        if (row.unitPosition == 0) {
            unitX = static_cast<float>(afterX);
            unitY = static_cast<float>(y);
        } else if (row.unitPosition == 1) {
            unitX = static_cast<float>(X);
            unitY = static_cast<float>(y);
        }
        Add("unit name",
            DrawString("单位", Font(static_cast<float>(row.size * row.scale / 3.0)),
                       unitX, unitY, brush));
    }
};

/// Of a style of ticks, from top to bottom: what differs between them.
struct Heights {
    int subTop;
    int subFoot;
    int baseLine;
    int unitRise;  ///< of the unit name over the base line
};

template <Heights (*heights)(const Trace&)>
void DrawTicks(Trace& trace) {
    const BarRow& row = trace.row;
    const Heights at = heights(trace);
    int lastX = 0;
    int lastBase = 0;
    for (int i = 0; i <= row.mainCount; ++i) {
        const int x = trace.x0 + i * trace.s;
        trace.Add("tick " + std::to_string(i),
                  DrawLine(trace.pen, x, trace.T, x, trace.B));
        lastX = x;
        lastBase = at.baseLine;
        trace.AddLabel(i, x);
        if (i == row.mainCount || row.subCount < 0) {
            continue;
        }
        for (int j = 0; j <= row.subCount; ++j) {
            const int xs = Trunc(static_cast<double>(x) + j * trace.l);
            trace.Add("sub tick " + std::to_string(i) + "." + std::to_string(j),
                      DrawLine(trace.pen, xs, at.subTop, xs, at.subFoot));
        }
    }
    trace.Add("base line", DrawLine(trace.pen, trace.x0, at.baseLine, lastX, lastBase));
    trace.AddUnitName(lastX + trace.H / 10, lastBase - at.unitRise);
}

Heights OnBase(const Trace& trace) {
    const int a = Trunc(trace.H / 6.0);
    return {trace.T + a, trace.B, trace.B, trace.H / 3};
}

Heights ThroughBase(const Trace& trace) {
    const int a = Trunc(trace.H / 6.0);
    const int M = trace.B - trace.H / 6;
    return {M - a / 2, M + a / 2, M, trace.H / 6};
}

Heights BelowBase(const Trace& trace) {
    return {trace.T, trace.T + Trunc(trace.H / 6.0), trace.T, 0};
}

void DrawAlternating(Trace& trace) {
    const BarRow& row = trace.row;
    const int T = trace.T;
    const int x0 = trace.x0;
    const int s = trace.s;
    const int bh = Trunc(trace.H / 3.0);
    const int stripEnd = x0 + s * row.mainCount;
    trace.Add("strip top", DrawLine(trace.pen, x0, T, stripEnd, T));
    trace.Add("strip bottom", DrawLine(trace.pen, x0, T + bh, stripEnd, T + bh));

    int counter = 0;
    int x = x0;
    int yb = 0;
    for (int i = 0; i < row.mainCount; ++i) {
        yb = trace.B;
        trace.AddLabel(i, x);
        if (i == 0) {
            const int w = Trunc(trace.l);
            int xj = x;
            for (int j = 0; j < row.subCount; ++j) {
                const std::string name = "sub-box " + std::to_string(j);
                trace.Add(name, DrawRectangle(trace.pen, xj, T, w, bh));
                counter = counter + 1;
                if (counter % 2 == 1) {
                    trace.Add(name + " filled",
                              FillRectangleI(trace.brush, xj, T, w, bh));
                }
                xj = xj + w;
            }
            const int xe = Trunc((static_cast<double>(row.subCount) + 1.0) * trace.l + x);
            trace.Add("closing line", DrawLine(trace.pen, xe, T, xe, T + bh));
        } else {
            const std::string name = "box " + std::to_string(i);
            trace.Add(name, DrawRectangle(trace.pen, x, T, s, bh));
            counter = counter + 1;
            if (counter % 2 == 0) {
                trace.Add(name + " filled", FillRectangleI(trace.brush, x, T, s, bh));
            }
        }
        x = x + s;
    }
    trace.AddLabel(row.mainCount, x);
    trace.AddUnitName(x + trace.H / 10, yb - trace.H / 3);
}

void DrawEqual(Trace& trace) {
    const BarRow& row = trace.row;
    const int bw = Trunc(row.paperToScreen);
    const int bh = Trunc(trace.H / 3.0);
    int counter = 0;
    int x = trace.x0;
    int yb = 0;
    for (int i = 0; i < row.mainCount; ++i) {
        yb = trace.B;
        trace.AddLabel(i, x);
        counter = counter + 1;
        const std::string name = "box " + std::to_string(i);
        trace.Add(name, DrawRectangle(trace.pen, x, trace.T, bw, bh));
        if (counter % 2 == 1) {
            trace.AddLabel(i, x);
            trace.Add(name + " filled", FillRectangleI(trace.brush, x, trace.T, bw, bh));
        }
        x = x + trace.s;
    }
    trace.AddLabel(row.mainCount, x);
    trace.AddUnitName(x + trace.H / 10, yb - trace.H / 3);
}

/// A style as the formulas have it.
struct Model {
    Style style;
    ScaleBarType type;
    double addToHeight;
    double addToHalves;
    bool multiplyOne;
    void (*draw)(Trace&);
};

const Model kModels[] = {
    {host::StyleOf<CScaleLine>(), ScaleBarLine, 0.5, 0.0, false, DrawTicks<OnBase>},
    {host::StyleOf<CSteppedScaleLine>(), ScaleBarLine, 0.5, 0.0, false,
     DrawTicks<OnBase>},
    {host::StyleOf<CScaleLine2>(), ScaleBarLine2, 0.0, 0.0, false,
     DrawTicks<ThroughBase>},
    {host::StyleOf<CScaleLine3>(), ScaleBarLine3, 0.0, 0.0, false, DrawTicks<BelowBase>},
    {host::StyleOf<CScaleAlternate>(), ScaleBarAlternate, 0.0, 0.0, true,
     DrawAlternating},
    {host::StyleOf<CScaleEquAltenate>(), ScaleBarEquAlternate, 0.0, 0.5, false,
     DrawEqual},
};

const Model& ModelOf(Style style) {
    for (const Model& model : kModels) {
        if (model.style == style) {
            return model;
        }
    }
    throw std::logic_error(std::string(style->name) + " has no model");
}

}  // namespace

std::vector<Named> ExpectedDrawing(const BarRow& row) {
    if (std::fabs(row.paperToData - 0.0) < 1e-8) {
        return {};
    }
    const Model& model = ModelOf(row.style);
    Trace trace(row, model.addToHeight, model.addToHalves, model.multiplyOne);
    model.draw(trace);
    return trace.calls;
}

ScaleBarType ExpectedType(Style style) { return ModelOf(style).type; }

}  // namespace scale_bar_test
