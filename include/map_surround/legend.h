#pragma once

/// @file
/// The legend.

#include <gdiplus.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "host/raster_data.h"
#include "map_surround/element.h"
#include "map_surround/export.h"

/// How a legend shows one of its sources.
struct LegendSource {
    std::wstring name = {};  ///< in place of the file name; empty: the file name
    bool isShown = true;     ///< false leaves the source out, without asking it anything

    /// The colours of a ramp from the highest value of the source's first band to the
    /// lowest; the ramp is then its only entry, whatever its display type. Each colour
    /// takes an equal part of the ramp, opaque and unmixed: of two, the first is the
    /// upper half. When empty, the source has the entries of its display type.
    std::vector<Gdiplus::Color> ramp = {};
};

/// What the colours of the map mean: a title, then for every raster source its file name
/// and its entries, from top to bottom.
///
/// The entries depend on the source's display type:
/// - DisplayRGB: three swatches (red, green, blue), labelled U+6CE2 U+6BB5 ("band"), an
///   underscore and the band's number, counted from 1;
/// - DisplayGray: a grey ramp, labelled U+9AD8 ("high") and U+4F4E ("low"), each followed
///   by " : " and the first band's highest or lowest value, cut to a whole number;
/// - DisplayClassified: a swatch and a label for each class;
/// - any other: none.
///
/// The file name follows U+5F71 U+50CF U+540D U+FF1A ("image name:"). These captions are
/// Chinese until the host sets others; the labels of classes are the host's.
///
/// Null pointers, sources that are not available, sources that are not rasters and those
/// that SetShownSources() hides are left out. A class count below 1 or a missing
/// classification table lists nothing; a missing class leaves its row empty; a missing
/// band, or one without minimum and maximum, shows 0 for both.
///
/// Mind the accessors' names: the *title* is the title's font family and the *title
/// value* its text; the *file name* is the font family of the file-name lines. The file
/// names themselves come from the sources.
///
/// The legend is measured once, by ResetAspectRatio(), and drawn at any scale in the same
/// proportions; Draw never measures the layout. The host calls ResetAspectRatio() before
/// the first Draw and after each change of texts, fonts, sizes, size factor or sources.
/// Until then the size and every proportion are 0 and no text is visible.
///
/// The front colour and the angle have no effect.
/// @see [Legend](docs/elements/legend.md)
class MAP_SURROUND_API CMapLegend : public CMapSurround {
public:
    CMapLegend();

    /// Copies everything; the copy explains the same sources. An assignment that runs out
    /// of memory changes nothing.
    CMapLegend(const CMapLegend&) = default;
    CMapLegend& operator=(const CMapLegend& other);
    CMapLegend& operator=(CMapLegend&&) = default;

    /// Leaves the sources alive.
    ~CMapLegend() override;

    /// Measures the content in pixels and sets the size (the natural height), the aspect
    /// ratio and the proportions that Draw uses. A size set by the host is overwritten.
    ///
    /// The title size and the file-name size are first multiplied by the size factor, on
    /// every call: with factor 2 a title size of 20 is 40 after the first call and 80
    /// after the second. A host that wants to scale once sets the factor back to 1.
    ///
    /// Texts are measured by the ink of their outlines. A row is as high as the sample
    /// "Band_1", a swatch is 6/10 of that, every gap is 12 pixels, or what SetGap() says.
    /// With a title 20 high and rows 13 high (so swatches of 7), an RGB source and a grey
    /// one make 20 + 24 + (13 + 3 * 7 + 36) + (13 + 4 * 7 + 12) + 24 - 12 = 179. The
    /// width is the widest of the title, three samples, each bare file name or the name
    /// shown in its place, and each class label indented by two samples.
    ///
    /// The captions, the band labels and the values are not part of the width, and the
    /// last label is taller than its swatch: both may reach past the measured box.
    ///
    /// When memory runs out, or a source throws, nothing has changed.
    ///
    /// A font that does not exist measures 0 by 0, and the legend shrinks accordingly. A
    /// height beyond 32 bits is clamped to the limit.
    void ResetAspectRatio() override;

    /// Draws the legend with its centre on a device point, unrotated and unclipped, with
    /// no border and no background. Empty texts are passed to GDI+ like any other.
    ///
    /// Entries are always in "Arial", whatever the family of the file names. A grey
    /// source's low value sits a tenth of a row above its high value, so that the two
    /// overlap, in the last colour of the ramp; an empty classification table pushes what
    /// follows down by a gap that the measured height does not include. All of this is
    /// intended.
    ///
    /// The strips of a ramp may be thinner than a pixel. Anti-aliased they never reach
    /// black, so draw legends with GDI+'s default smoothing.
    ///
    /// Every source is queried again, so one that has changed since it was measured is
    /// drawn as it is now.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// The sources to explain, in order. The host owns them and keeps them alive while
    /// the legend or a copy of it is measured or drawn. A source whose type is
    /// DataSourceRaster must be a CRasterSource.
    void SetDataSouce(std::vector<CGISDataSource*> sources) {
        m_dataSources = std::move(sources);
    }

    /// How each source is shown, in the order of the sources: `{{L"Land cover"}, {{},
    /// false}}` gives the first a name and leaves out the second. Sources without an
    /// entry here, as all are by default, are shown by their file names; entries past the
    /// last source have no effect. They stay when SetDataSouce() replaces the sources.
    std::vector<LegendSource> GetShownSources() const { return m_shownSources; }
    void SetShownSources(std::vector<LegendSource> shown) {
        m_shownSources = std::move(shown);
    }

    /// Whether labels are aligned with their swatches: all start 1.2 swatches from the
    /// left, those of bands and classes are a quarter of a row higher and so in the
    /// middle of the swatch, and the values of a ramp are at its ends, where they do not
    /// overlap: both black, the highest a fifth of a row above the top, level with it,
    /// the lowest nine tenths above the end, standing on it.
    ///
    /// The values are then rounded, not cut, to three digits of their difference: -0.314
    /// and 0.87 are -0.31 and 0.87, 3.75 and 255.9 are 4 and 256. Zeros that both end in
    /// are left out. False by default.
    bool GetAlignedLabels() const { return m_alignedLabels; }
    void SetAlignedLabels(bool aligned) { m_alignedLabels = aligned; }

    /// The gap between any two items, in rows, rounded to whole pixels of the
    /// measurement: at 0.8, rows 13 high are 10 apart. When not above 0, as by default,
    /// it is 12 pixels, whatever the rows. A gap beyond 32 bits is clamped.
    float GetGap() const { return m_gap; }
    void SetGap(float rows) { m_gap = rows; }

    /// The greatest width of names and class labels, in pixels of the measurement; a
    /// wider one ends in U+2026, and the row of a name is then measured with its caption.
    /// The labels are measured where the layout has them, two samples from the left: with
    /// samples 40 wide and a width of 200, they are cut to 120. When not above 0, as by
    /// default, any width will do.
    float GetMostWidth() const { return m_mostWidth; }
    void SetMostWidth(float width) { m_mostWidth = width; }

    /// The greatest number of lines for a name or label that is wider than SetMostWidth()
    /// allows; 1 by default, and when below 1. Lines end after spaces, '_', '/', '-' and
    /// '.' except within numbers, and between East Asian characters. A word that is wider
    /// than a line ends in U+2026, and so does the last line if it cannot hold the rest:
    /// "Broad-leaved forest" may become "Broad-leaved" above "forest", or "Broad-" above
    /// "leaved fo…" in two.
    ///
    /// Each further line makes the name's row, or the label's, 1.2 rows higher; a swatch
    /// is level with the first line. Above 1 and with a width set, everything written is
    /// measured as in several columns.
    int GetMostLines() const { return m_mostLines; }
    void SetMostLines(int lines) { m_mostLines = lines; }

    /// Whether ResetAspectRatio() found a name or label that ends in U+2026.
    bool HasCutTexts() const { return m_hasCutTexts; }

    /// The number of columns of entries, below a title that spans them all; 1 by default.
    /// Below 1 counts as 1 and above 64 as 64, and no column stays empty: there are no
    /// more columns than rows to begin them.
    ///
    /// The entries flow from the top of a column to its foot and on at the top of the
    /// next one. The highest column is as low as possible, and the columns are as equal
    /// as possible: ten classes stand in four columns as 3, 3, 2 and 2. A name stays with
    /// its first entry, three bands stay together, and so does a ramp; classes continue
    /// in the next column without their source's name, which would look like another
    /// source.
    ///
    /// All columns are as wide as the widest, and half a swatch apart. With more than
    /// one, everything written is measured as it is drawn: names with their captions,
    /// bands, values, all entries in "Arial" and where they are drawn, not two samples
    /// from the left; ResetAspectRatio() then asks for bands and values, too. With
    /// samples 40 wide and columns of 150, two columns are 150 + 20 + 150 = 320 wide. The
    /// height is that of the title, its gaps and the highest column.
    ///
    /// Draw begins a column at the row that ResetAspectRatio() found for it.
    int GetColumns() const { return m_columns; }
    void SetColumns(int columns) { m_columns = columns; }

    // The captions are written as they are, with nothing between them and what follows:
    // with L"Band " the third band is "Band 3", and with an empty text "3".

    /// The caption before the name of a source; L"\u5F71\u50CF\u540D\uFF1A".
    std::wstring GetSourceCaption() const { return m_sourceCaption; }
    void SetSourceCaption(std::wstring caption) { m_sourceCaption = std::move(caption); }

    /// The caption before the number of a band; L"\u6CE2\u6BB5_".
    std::wstring GetBandCaption() const { return m_bandCaption; }
    void SetBandCaption(std::wstring caption) { m_bandCaption = std::move(caption); }

    /// The caption before the highest value of a ramp; L"\u9AD8 : ".
    std::wstring GetHighCaption() const { return m_highCaption; }
    void SetHighCaption(std::wstring caption) { m_highCaption = std::move(caption); }

    /// The caption before the lowest value of a ramp; L"\u4F4E : ".
    std::wstring GetLowCaption() const { return m_lowCaption; }
    void SetLowCaption(std::wstring caption) { m_lowCaption = std::move(caption); }

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

    /// The style of the title; bold by default.
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
    bool IsMeasuredAsDrawn() const {
        return m_columns > 1 || (m_mostLines > 1 && m_mostWidth > 0.0f);
    }

    std::wstring m_titleText;

    // Fractions of the natural height.
    float m_rowHeightRatio = 0.0f;  // also the em size of all texts but the title
    float m_swatchHeightRatio = 0.0f;
    float m_swatchWidthRatio = 0.0f;
    float m_gapRatio = 0.0f;
    float m_columnStepRatio = 0.0f;

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
    bool m_alignedLabels = false;
    float m_gap = 0.0f;
    float m_mostWidth = 0.0f;
    int m_mostLines = 1;
    bool m_hasCutTexts = false;
    int m_columns = 1;
    std::vector<std::size_t> m_columnStarts;  // begin all columns but the first
    std::vector<LegendSource> m_shownSources;
    std::wstring m_sourceCaption = L"\u5F71\u50CF\u540D\uFF1A";
    std::wstring m_bandCaption = L"\u6CE2\u6BB5_";
    std::wstring m_highCaption = L"\u9AD8 : ";
    std::wstring m_lowCaption = L"\u4F4E : ";
};
