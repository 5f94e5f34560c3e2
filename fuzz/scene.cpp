#include "scene.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include "page/catalogue.h"

namespace fuzz {
namespace {

constexpr int kEntries = static_cast<int>(host::kCatalogue.size());

/// Calls with the entry of the catalogue that a number stands for; an entry still knows
/// its class.
template <typename Visit>
void VisitEntry(int number, Visit visit) {
    host::VisitStyles<CMapSurround>([&](const auto& entry) {
        if (number-- == 0) {
            visit(entry);
        }
    });
}

// What an input plays with: one of two kinds of frame, or an element by itself. The
// frames are first, so that a style at the end of the catalogue leaves the corpus its
// meaning.
constexpr int kBareFrame = 0;
constexpr int kFramedElement = 1;
constexpr int kFirstEntry = 2;

void GiveUp(CMapSurround&) {}
void GiveUp(CDrawPicture& copy) {
    const CDrawPicture none;
    copy = none;  // assigned as a copy, which deletes nothing
}
void GiveUp(CFrameBase&) {}
void GiveUp(CSurroundFrame& copy) { copy.SetMapSurround(nullptr); }

/// Copies point to the same image or element: this one gives it up before both are
/// destroyed.
template <typename Thing>
struct SharingCopy {
    explicit SharingCopy(const Thing& thing) : copy(thing) {}
    SharingCopy(const SharingCopy&) = delete;
    SharingCopy& operator=(const SharingCopy&) = delete;
    ~SharingCopy() { GiveUp(copy); }

    Thing copy;
};

void Check(bool held) {
    if (!held) {
        std::abort();
    }
}

/// As a host might that keeps its flags in bytes.
void SetByte(bool& flag, int value) {
    const auto byte = static_cast<unsigned char>(value);
    std::memcpy(&flag, &byte, 1);
}

}  // namespace

void Scene::Play() {
    const int kind = m_input.Choice(kFirstEntry + kEntries);
    if (kind == kBareFrame) {
        CFrameBase frame;
        PlayFrame(frame);
    } else if (kind == kFramedElement) {
        CSurroundFrame frame;
        VisitEntry(m_input.Choice(kEntries), [&](const auto& entry) {
            auto element =
                std::make_unique<typename std::decay_t<decltype(entry)>::Class>();
            SetBaseProperty(*element);
            SetProperty(*element);
            element->ResetAspectRatio();
            frame.SetMapSurround(element.release());
        });
        PlayFrame(frame);
    } else {
        VisitEntry(kind - kFirstEntry, [&](const auto& entry) {
            PlayElement<typename std::decay_t<decltype(entry)>::Class>();
        });
    }
}

template <typename Element>
void Scene::PlayElement() {
    Element element;
    while (!m_input.IsEmpty()) {
        switch (m_input.Choice(8)) {
            case 0:
                element.ResetAspectRatio();
                break;
            case 1:
                Draw(element);
                break;
            case 2:
                Copy(element);
                break;
            case 3:
            case 4:
                SetBaseProperty(element);
                break;
            default:
                SetProperty(element);
                break;
        }
    }
    element.ResetAspectRatio();
    element.Draw(m_means.graphics, CPoint(70, 50), 1.25);
}

template <typename Frame>
void Scene::PlayFrame(Frame& frame) {
    while (!m_input.IsEmpty()) {
        switch (m_input.Choice(8)) {
            case 0:
                Ask(frame);
                break;
            case 1:
                DrawAny(frame);
                break;
            case 2:
                Copy(frame);
                break;
            default:
                SetField(frame);
                break;
        }
    }
    frame.DrawFrame(m_means.graphics, CRect(10, 20, 110, 70));
}

template <typename Thing>
void Scene::Copy(Thing& thing) {
    SharingCopy<Thing> sharing(thing);
    DrawAny(sharing.copy);
    thing = sharing.copy;
}

void Scene::Draw(CMapSurround& element) {
    const int size = element.GetSize();
    const CPoint centre = Point();
    element.Draw(m_means.graphics, centre, m_input.Real<double>());
    Check(element.GetSize() == size);
}

void Scene::DrawAny(CFrameBase& frame) {
    const CPoint corner = Point();
    const CPoint opposite = Point();
    frame.DrawFrame(m_means.graphics, CRect(corner.x, corner.y, opposite.x, opposite.y));
}

void Scene::DrawAny(CSurroundFrame& frame) {
    DrawAny(static_cast<CFrameBase&>(frame));
    const CPoint centre = Point();
    frame.Draw(m_means.graphics, centre, m_input.Real<double>());
}

void Scene::SetBaseProperty(CMapSurround& element) {
    switch (m_input.Choice(5)) {
        case 0:
            return element.SetFrontColor(Color());
        case 1:
            return element.SetSize(m_input.Whole());
        case 2:
            return element.SetAspectRatio(m_input.Real<float>());
        case 3:
            return element.SetAngle(m_input.Real<float>());
        default:
            return element.SetItemType(static_cast<MapSurroundType>(m_input.Whole()));
    }
}

void Scene::SetProperty(CMapTitle& title) {
    switch (m_input.Choice(5)) {
        case 0:
            return title.SetFontValue(m_input.Text());
        case 3:
            return title.SetLineAlignment(
                static_cast<Gdiplus::StringAlignment>(m_input.Choice(4)));
        case 1:
            return title.SetFontStyle(Family());
        case 2:
            return title.SetFontProcess(static_cast<FontProcess>(m_input.Whole()));
        default:
            return title.SetFontSize(m_input.Real<double>());
    }
}

void Scene::SetProperty(CDrawPicture& picture) {
    const auto& names = m_means.pictures;
    const auto chosen =
        static_cast<std::size_t>(m_input.Choice(static_cast<int>(names.size()) + 1));
    Check(picture.Open(chosen < names.size() ? names[chosen].c_str() : nullptr));
}

void Scene::SetProperty(CNorthArrowBase& arrow) {
    arrow.SetNorthArrowType(static_cast<NorthArrowType>(m_input.Whole()));
}

void Scene::SetProperty(CNorthArrowFourAngle& arrow) {
    Gdiplus::Point points[4];
    for (Gdiplus::Point& point : points) {
        point = Gdiplus::Point(m_input.Whole(), m_input.Whole());
    }
    arrow.FillSolidPath(m_means.graphics, points);
    arrow.DrawPath(m_means.graphics, points);
}

void Scene::SetProperty(CScaleBarBase& bar) {
    switch (m_input.Choice(10)) {
        case 0:
            return bar.SetPaper2DataScale(m_input.Real<double>());
        case 1:
            return bar.SetPaper2ScreenScale(m_input.Real<double>());
        case 2:
            return bar.SetScreen2PaperByOneScale(m_input.Real<double>());
        case 3:
            return bar.SetMainDivCount(Divisions());
        case 4:
            return bar.SetSubDivCount(Divisions());
        case 5:
            return bar.SetUnitPos(static_cast<ScaleBarPostion>(m_input.Whole()));
        case 6:
            return bar.SetScaleBarType(static_cast<ScaleBarType>(m_input.Whole()));
        case 7:
            return bar.SetDestUnitType(static_cast<CommonMeasureUnits>(m_input.Whole()));
        case 8:
            return bar.SetUnitsNameVerbatim(m_input.Text());
        default:
            return bar.SetUnitsName(m_input.Flag() ? L"Metre" : m_input.Text());
    }
}

void Scene::SetProperty(CMapLegend& legend) {
    switch (m_input.Choice(24)) {
        case 0:
            return legend.SetTitleValue(m_input.Text());
        case 1:
            return legend.SetTitle(Family());
        case 2:
            return legend.SetTitleSize(m_input.Real<float>());
        case 3:
            return legend.SetTitleStyle(
                static_cast<Gdiplus::FontStyle>(m_input.Choice(16)));
        case 4:
            return legend.SetTitleColor(Color());
        case 5:
            return legend.SetFileName(Family());
        case 6:
            return legend.SetFileNameSize(m_input.Real<float>());
        case 7:
            return legend.SetFileNameStyle(
                static_cast<Gdiplus::FontStyle>(m_input.Choice(16)));
        case 8:
            return legend.SetFileColor(Color());
        case 9:
            return legend.SetSizeAspect(m_input.Real<float>());
        case 10:
            return legend.SetSourceCaption(m_input.Text());
        case 11:
            return legend.SetBandCaption(m_input.Text());
        case 12:
            return legend.SetHighCaption(m_input.Text());
        case 13:
            return legend.SetLowCaption(m_input.Text());
        case 14:
            return legend.SetShownSources(
                {{m_input.Text(), m_input.Flag(),
                  std::vector(static_cast<std::size_t>(m_input.Choice(3)), Color())},
                 {m_input.Text(), m_input.Flag()}});
        case 15:
            return legend.SetGap(m_input.Real<float>());
        case 16:
            return legend.SetMostWidth(m_input.Real<float>());
        case 17:
            return legend.SetAlignedLabels(m_input.Flag());
        case 18:
            return legend.SetColumns(m_input.Whole());
        case 19:
            return legend.SetMostLines(m_input.Whole());
        default:
            return SetSources(legend);
    }
}

void Scene::SetSources(CMapLegend& legend) {
    std::vector<CGISDataSource*> sources;
    for (int i = m_input.Choice(4); i >= 0; --i) {
        if (m_input.Choice(8) == 0) {
            sources.push_back(nullptr);
            continue;
        }
        // Among the properties that it may change under the legend's hands is the list
        // that it stands in itself.
        sources.push_back(
            &m_sources.emplace_back(m_input, [this, &legend] { SetProperty(legend); }));
    }
    legend.SetDataSouce(sources);
}

void Scene::SetField(CFrameBase& frame) {
    using F = CFrameBase;
    static constexpr bool F::*kFlags[] = {&F::DrawBorder, &F::DrawFill, &F::DrawShadow};
    static constexpr int F::*kGaps[] = {&F::BorderGapX, &F::BorderGapY, &F::FillGapX,
                                        &F::FillGapY};
    const int field = m_input.Choice(16);
    if (field == 0) {
        frame.HitHandle = m_input.Whole();
    } else if (field == 1) {
        frame.DrawBorder = frame.DrawFill = frame.DrawShadow = true;
    } else if (field <= 4) {
        frame.*kFlags[field - 2] = m_input.Flag();
    } else if (field == 5) {
        SetByte(frame.DashedBorder, m_input.Choice(256));
    } else if (field == 6) {
        frame.BorderWidth = m_input.Real<float>();
    } else if (field == 7) {
        frame.BorderColor = Color();
    } else if (field == 8) {
        frame.FillColor = frame.ShadowColor = Color();
    } else if (field <= 12) {
        frame.*kGaps[field - 9] = m_input.Whole();
    } else if (field <= 14) {
        (field == 13 ? frame.ShadowRatioX : frame.ShadowRatioY) = m_input.Real<float>();
    } else {
        frame.SetExtent(CBoundingBox(m_input.Real<double>(), m_input.Real<double>(),
                                     m_input.Real<double>(), m_input.Real<double>()));
    }
}

void Scene::Ask(CFrameBase& frame) {
    frame.SetOffset(m_input.Real<double>(), m_input.Real<double>());
    const CPoint2D point(m_input.Real<double>(), m_input.Real<double>());
    const double tolerance = m_input.Real<double>();
    const SpatialTopoRelation relation = frame.HitTest(point, tolerance, m_input.Flag());
    Check(relation == TopoOnHandle ? frame.HitHandle >= 0 && frame.HitHandle < 8
                                   : frame.HitHandle == -1);
    Check(frame.GetExtent().IsContain(point) == (relation != TopoDisjoint));
}

int Scene::Divisions() {
    const int count = m_input.Whole();
    return count > m_means.mostDivisions ? m_means.mostDivisions : count;
}

std::wstring Scene::Family() {
    const int kind = m_input.Choice(8);
    return kind == 0 ? m_input.Text() : kind == 1 ? L"" : L"Arial";
}

CPoint Scene::Point() {
    const int x = m_input.Whole();
    return CPoint(x, m_input.Whole());
}

Gdiplus::Color Scene::Color() {
    return Gdiplus::Color(static_cast<Gdiplus::ARGB>(m_input.Whole()));
}

}  // namespace fuzz
