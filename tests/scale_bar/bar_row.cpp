#include "scale_bar/bar_row.h"

#include <sstream>

#include "recording/lines.h"

using namespace recording;

namespace scale_bar_test {

std::vector<Style> Styles() { return host::StylesOf(SurroundScaleBar); }

std::string Describe(const BarRow& row) {
    std::ostringstream text;
    text << row.style->name << ", paper to data " << row.paperToData << ", to screen "
         << row.paperToScreen << ", " << row.mainCount << " divisions, " << row.subCount
         << " sub-divisions, unit position " << row.unitPosition << ", size " << row.size
         << ", scale " << row.scale << ", aspect ratio " << row.aspectRatio << ", at ("
         << row.centre.x << ", " << row.centre.y << ")";
    return text.str();
}

std::unique_ptr<CScaleBarBase> NewBar(Style style) {
    return host::NewElement<CScaleBarBase>(*style);
}

void SetProperties(CScaleBarBase& bar, const BarRow& row) {
    bar.SetPaper2DataScale(row.paperToData);
    bar.SetPaper2ScreenScale(row.paperToScreen);
    bar.SetMainDivCount(row.mainCount);
    bar.SetSubDivCount(row.subCount);
    bar.SetUnitPos(static_cast<ScaleBarPostion>(row.unitPosition));
    bar.SetSize(row.size);
    bar.SetAspectRatio(row.aspectRatio);
    bar.SetFrontColor(Gdiplus::Color(row.color));
}

std::unique_ptr<CScaleBarBase> NewBar(const BarRow& row) {
    std::unique_ptr<CScaleBarBase> bar = NewBar(row.style);
    SetProperties(*bar, row);
    return bar;
}

std::vector<std::string> DrawingOf(const BarRow& row) {
    Surface surface(8, 8);  // its pixels are never touched
    Recording recording(Mode::RecordOnly);
    const std::unique_ptr<CScaleBarBase> bar = NewBar(row);
    bar->Draw(surface.Graphics(), row.centre, row.scale);
    return recording.Drawing();
}

std::string BlackPen(float width) { return PenLook(0xFF000000, width); }

std::string BlackBrush() { return BrushLook(0xFF000000); }

std::string Times(float emSize) { return FontLook("Times New Roman", emSize, 0); }

std::string BlackLabel(const std::string& text, float x, float y, float emSize) {
    return DrawString(text, Times(emSize), x, y, BlackBrush());
}

recording::Named BlackLine(const char* name, int x1, int y1, int x2, int y2) {
    return {name, DrawLine(BlackPen(), x1, y1, x2, y2)};
}

std::string DefaultUnitName(float x, float y, float emSize) {
    return DrawString("单位", Times(emSize), x, y, BlackBrush());
}

}  // namespace scale_bar_test
