#pragma once

/// @file
/// The legend.

#include <gdiplus.h>

#include <string>
#include <utility>
#include <vector>

#include "host/raster_data.h"
#include "map_surround/element.h"
#include "map_surround/export.h"

/// What the colours of the map mean: a title, then for every raster source its file name
/// and its entries, from top to bottom.
///
/// The entries follow the source's display type: three swatches with band numbers for
/// DisplayRGB, a grey ramp with the first band's highest and lowest value for
/// DisplayGray, a swatch and a label a class for DisplayClassified, none for any other. A
/// source that is not available or not a raster is left out, and so is a null pointer. A
/// class count below 1 and a missing classification table list nothing; a missing class
/// leaves its row empty; a missing band, and one that cannot tell its values, has 0 for
/// both of them.
///
/// The names of the accessors are those of old: the *title* is the font family of the
/// title and the *title value* its text, the *file name* is the font family of the
/// file-name lines. The names shown come from the sources.
///
/// The legend is measured once, by ResetAspectRatio(), and drawn at any scale in the same
/// proportions; Draw never measures the layout. The host calls ResetAspectRatio() before
/// the first Draw and after each change of texts, fonts, sizes, size factor or sources.
/// Until then the base size and every proportion are 0 and no text can be seen.
///
/// The front colour and the angle have no effect.
class MAP_SURROUND_API CMapLegend : public CMapSurround {
public:
    CMapLegend();

    /// Copies everything; the copy explains the same sources. An assignment for which
    /// there is not enough memory changes nothing.
    CMapLegend(const CMapLegend&) = default;
    CMapLegend& operator=(const CMapLegend& other);
    CMapLegend& operator=(CMapLegend&&) = default;

    /// Leaves the sources alive.
    ~CMapLegend() override;

    /// Measures the content in pixels and sets from it the size (the natural height), the
    /// aspect ratio and the proportions that Draw uses. A size that the host set is lost.
    ///
    /// The title size and the file-name size are first multiplied by the size factor,
    /// each time anew: with factor 2 a title size of 20 is 40 after the first call and 80
    /// after the second. A host that scales once sets the factor back to 1.
    ///
    /// Texts are measured by the ink of their outlines. The height of a row is that of
    /// the sample "Band_1", a swatch is 6/10 of it, every gap is 12 pixels. With a title
    /// 20 high and rows 13 high (so swatches of 7), an RGB source and a grey one make 20
    /// + 24 + (13 + 3 * 7 + 36) + (13 + 4 * 7 + 12) + 24 - 12 = 179. The width is the
    /// widest of the title, three samples, each bare file name, and each class label set
    /// off by two samples.
    ///
    /// A measurement that memory runs out for, or that a source ends with an exception of
    /// its own, changes nothing.
    ///
    /// A font that does not exist measures 0 by 0, and the legend shrinks accordingly. A
    /// height beyond 32 bits is taken as the limit.
    void ResetAspectRatio() override;

    /// Draws the legend with its centre on a device point, unturned and unclipped, with
    /// neither border nor background; empty texts are handed on to be drawn all the same.
    ///
    /// Entries are always in "Arial", whatever the family of the file names. A grey
    /// source's low value stands a tenth of a row above its high value, so that the two
    /// overlap, in the last colour of the ramp; a table without classes moves what
    /// follows down by a gap that the measured height has not. All of that is meant.
    ///
    /// The strips of a ramp may be thinner than a pixel. With anti-aliasing on they never
    /// come to black, so a host draws legends with GDI+'s default smoothing.
    ///
    /// The sources are asked anew for everything, so one that changed since the layout
    /// was measured is drawn as it is now.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// The sources to explain, in order. The host owns them and keeps them alive while
    /// the legend or a copy of it is measured or drawn. One that answers DataSourceRaster
    /// is a CRasterSource.
    void SetDataSouce(std::vector<CGISDataSource*> sources) {
        m_dataSources = std::move(sources);
    }

    /// What ResetAspectRatio() multiplies both font sizes by.
    void SetSizeAspect(float factor) { m_sizeFactor = factor; }

    /// The text of the title.
    std::wstring GetTitleValue() const { return m_titleText; }
    void SetTitleValue(std::wstring text) { m_titleText = std::move(text); }

    /// The name of the title's font family.
    std::wstring GetTitle() const { return m_titleFamily; }
    void SetTitle(std::wstring family) { m_titleFamily = std::move(family); }

    /// The em size of the title, in pixels of the measurement.
    float GetTitleSize() const { return m_titleSize; }
    void SetTitleSize(float size) { m_titleSize = size; }

    /// The style of the title; bold until it is set.
    Gdiplus::FontStyle GetTitleStyle() const { return m_titleStyle; }
    void SetTitleStyle(Gdiplus::FontStyle style) { m_titleStyle = style; }

    /// The colour of the title.
    Gdiplus::Color GetTitleColor() const { return m_titleColor; }
    void SetTitleColor(Gdiplus::Color color) { m_titleColor = color; }

    /// The name of the font family of the file-name lines.
    std::wstring GetFileName() const { return m_fileNameFamily; }
    void SetFileName(std::wstring family) { m_fileNameFamily = std::move(family); }

    /// The em size of the file-name lines and the entries, in pixels of the measurement.
    float GetFileNameSize() const { return m_fileNameSize; }
    void SetFileNameSize(float size) { m_fileNameSize = size; }

    /// The style of the file-name lines and the entries.
    Gdiplus::FontStyle GetFileNameStyle() const { return m_fileNameStyle; }
    void SetFileNameStyle(Gdiplus::FontStyle style) { m_fileNameStyle = style; }

    /// The colour of the file-name lines.
    Gdiplus::Color GetFileColor() const { return m_fileColor; }
    void SetFileColor(Gdiplus::Color color) { m_fileColor = color; }

private:
    std::wstring m_titleText;

    // Fractions of the natural height.
    float m_rowHeightRatio = 0.0f;  // also the em size of all texts but the title
    float m_swatchHeightRatio = 0.0f;
    float m_swatchWidthRatio = 0.0f;
    float m_gapRatio = 0.0f;

    std::vector<CGISDataSource*> m_dataSources;  // not owned
    float m_sizeFactor = 1.0f;
    float m_titleSize = 20.0f;
    float m_fileNameSize = 15.0f;
    float m_titleHeightRatio = 0.0f;  // also the em size of the title
    Gdiplus::FontStyle m_titleStyle = Gdiplus::FontStyleBold;
    Gdiplus::FontStyle m_fileNameStyle = Gdiplus::FontStyleRegular;
    std::wstring m_titleFamily = L"Arial";
    std::wstring m_fileNameFamily = L"Arial";
    Gdiplus::Color m_titleColor{0xFF000000};
    Gdiplus::Color m_fileColor{0xFF000000};
};
