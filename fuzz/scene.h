#pragma once

#include <gdiplus.h>

#include <deque>
#include <string>
#include <vector>

#include "input.h"
#include "map_surround/map_surround.h"
#include "sources.h"

namespace fuzz {

/// What the interpretation of an input may use.
struct Means {
    Gdiplus::Graphics* graphics;
    std::vector<std::wstring> pictures;  ///< the names that pictures are opened by
    int mostDivisions;                   ///< of a scale bar, and of each of them
};

/// A host that does with an element or a frame whatever an input says: it sets
/// properties, has it measured and drawn, copies it, until the input is used up.
class Scene {
public:
    Scene(Input& input, const Means& means) : m_input(input), m_means(means) {}

    void Play();

private:
    template <typename Element>
    void PlayElement();
    template <typename Frame>
    void PlayFrame(Frame& frame);

    void Draw(CMapSurround& element);
    void DrawAny(CMapSurround& element) { Draw(element); }
    void DrawAny(CFrameBase& frame);
    void DrawAny(CSurroundFrame& frame);
    template <typename Thing>
    void Copy(Thing& thing);

    void SetBaseProperty(CMapSurround& element);
    void SetProperty(CMapTitle& title);
    void SetProperty(CDrawPicture& picture);
    void SetProperty(CMapLegend& legend);
    void SetProperty(CNorthArrowBase& arrow);
    void SetProperty(CNorthArrowFourAngle& arrow);
    void SetProperty(CScaleBarBase& bar);
    void SetField(CFrameBase& frame);
    void Ask(CFrameBase& frame);

    void SetSources(CMapLegend& legend);
    int Divisions();
    std::wstring Family();
    CPoint Point();
    Gdiplus::Color Color();

    Input& m_input;
    const Means& m_means;
    std::deque<Source> m_sources;
};

}  // namespace fuzz
