#include <cmath>
#include <limits>

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

std::vector<Named> ExpectedLine(const BarRow& row) {
    const bool isLine = row.style == Style::Line || row.style == Style::Stepped;
    const bool isLine3 = row.style == Style::Line3;
    Trace trace(row, isLine ? 0.5 : 0.0, 0.0, false);
    const int H = trace.H;
    const int T = trace.T;
    const int B = trace.B;
    const int a = Trunc(H / 6.0);
    const int M = B - H / 6;

    int lastX = 0;
    int lastFoot = 0;
    int lastTop = 0;
    int lastMiddle = 0;
    for (int i = 0; i <= row.mainCount; ++i) {
        const int x = trace.x0 + i * trace.s;
        trace.Add("tick " + std::to_string(i), DrawLine(trace.pen, x, T, x, B));
        lastX = x;
        lastFoot = B;
        lastTop = T;
        lastMiddle = M;
        trace.AddLabel(i, x);
        if (i == row.mainCount || row.subCount < 0) {
            continue;
        }
        for (int j = 0; j <= row.subCount; ++j) {
            const int xs = Trunc(static_cast<double>(x) + j * trace.l);
            const int top = isLine ? T + a : isLine3 ? T : M - a / 2;
            const int foot = isLine ? B : isLine3 ? T + a : M + a / 2;
            trace.Add("sub tick " + std::to_string(i) + "." + std::to_string(j),
                      DrawLine(trace.pen, xs, top, xs, foot));
        }
    }
    const int x0 = trace.x0;
    if (isLine) {
        trace.Add("base line", DrawLine(trace.pen, x0, B, lastX, lastFoot));
        trace.AddUnitName(lastX + H / 10, lastFoot - H / 3);
    } else if (isLine3) {
        trace.Add("base line", DrawLine(trace.pen, x0, T, lastX, lastTop));
        trace.AddUnitName(lastX + H / 10, lastTop);
    } else {
        trace.Add("base line", DrawLine(trace.pen, x0, M, lastX, lastMiddle));
        trace.AddUnitName(lastX + H / 10, lastMiddle - H / 6);
    }
    return trace.calls;
}

std::vector<Named> ExpectedAlternate(const BarRow& row) {
    Trace trace(row, 0.0, 0.0, true);
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
    return trace.calls;
}

std::vector<Named> ExpectedEquAlternate(const BarRow& row) {
    Trace trace(row, 0.0, 0.5, false);
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
    return trace.calls;
}

}  // namespace

std::vector<Named> ExpectedDrawing(const BarRow& row) {
    if (std::fabs(row.paperToData - 0.0) < 1e-8) {
        return {};
    }
    switch (row.style) {
        case Style::Line:
        case Style::Stepped:
        case Style::Line2:
        case Style::Line3:
            return ExpectedLine(row);
        case Style::Alternate:
            return ExpectedAlternate(row);
        case Style::EquAlternate:
            return ExpectedEquAlternate(row);
    }
    return {};
}

}  // namespace scale_bar_test
