#include "map_surround/legend.h"
#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"

namespace host::tables {

std::vector<Property> LegendProperties() {
    return {
        Of<&LegendFrame::RasterPaths, &LegendFrame::SetRasterPaths>(
            "rasters", "Files that it explains, in order; no others",
            PropertyKind::Rasters),
        WithLines(Of<&LegendFrame::Names, &LegendFrame::SetNames>(
            "names",
            "Names of the rasters, one per line; an empty line stands for the file's "
            "name",
            PropertyKind::Text)),
        Of<&LegendFrame::JoinsTiles, &LegendFrame::SetJoinsTiles>(
            "joinTiles",
            "Whether rasters side by side that are shown alike, with names that differ "
            "only in digits, are one entry",
            PropertyKind::Switch),
        Of<&LegendFrame::ExplainsRamps, &LegendFrame::SetExplainsRamps>(
            "paletteRamps",
            "Whether a palette that is a ramp is explained as a ramp, not by a class for "
            "each value",
            PropertyKind::Switch),
        Of<&CMapLegend::GetTitleValue, &CMapLegend::SetTitleValue>("title", "First line",
                                                                   PropertyKind::Text),
        Of<&CMapLegend::GetSourceCaption, &CMapLegend::SetSourceCaption>(
            "sourceCaption", "Caption before the name of a raster", PropertyKind::Text),
        Of<&CMapLegend::GetBandCaption, &CMapLegend::SetBandCaption>(
            "bandCaption", "Caption before the number of a band", PropertyKind::Text),
        Of<&CMapLegend::GetHighCaption, &CMapLegend::SetHighCaption>(
            "highCaption", "Caption before the highest value", PropertyKind::Text),
        Of<&CMapLegend::GetLowCaption, &CMapLegend::SetLowCaption>(
            "lowCaption", "Caption before the lowest value", PropertyKind::Text),
        Of<&CMapLegend::GetTitle, &CMapLegend::SetTitle>(
            "titleFont", "Font family of the first line", PropertyKind::Font),
        Within(Of<&CMapLegend::GetTitleSize, &CMapLegend::SetTitleSize>(
                   "titleSize", "Em size of the first line when it is measured",
                   PropertyKind::Number),
               kLengths),
        OneOf(Of<&CMapLegend::GetTitleStyle, &CMapLegend::SetTitleStyle>(
                  "titleStyle", "Font style of the first line", PropertyKind::Choice),
              kFontStyles),
        Of<&CMapLegend::GetTitleColor, &CMapLegend::SetTitleColor>(
            "titleColor", "Colour of the first line", PropertyKind::Colour),
        Of<&CMapLegend::GetFileName, &CMapLegend::SetFileName>(
            "fileNameFont", "Font family of the file names", PropertyKind::Font),
        Within(Of<&CMapLegend::GetFileNameSize, &CMapLegend::SetFileNameSize>(
                   "fileNameSize",
                   "Em size of file names and entries when they are measured",
                   PropertyKind::Number),
               kLengths),
        OneOf(Of<&CMapLegend::GetFileNameStyle, &CMapLegend::SetFileNameStyle>(
                  "fileNameStyle", "Font style of file names and entries",
                  PropertyKind::Choice),
              kFontStyles),
        Of<&CMapLegend::GetFileColor, &CMapLegend::SetFileColor>(
            "fileNameColor", "Colour of the file names", PropertyKind::Colour),
        Of<&CMapLegend::GetAlignedLabels, &CMapLegend::SetAlignedLabels>(
            "alignedLabels",
            "Whether labels are level with their swatches, and the values of a ramp with "
            "its ends and as precise as necessary",
            PropertyKind::Switch),
        Within(Of<&CMapLegend::GetGap, &CMapLegend::SetGap>(
                   "gap", "Gap between rows, in row heights; 0: 12 page units",
                   PropertyKind::Number),
               {0.0, 100.0}),
        Within(Of<&CMapLegend::GetMostWidth, &CMapLegend::SetMostWidth>(
                   "mostWidth",
                   "Greatest width of names and labels when measured, page units; wider "
                   "ones are broken or end in an ellipsis; 0: any",
                   PropertyKind::Number),
               kLengths),
        Within(Of<&CMapLegend::GetMostLines, &CMapLegend::SetMostLines>(
                   "mostLines",
                   "Greatest number of lines of a name or label that is wider than that",
                   PropertyKind::Integer),
               {1.0, 100.0}),
        Within(Of<&CMapLegend::GetColumns, &CMapLegend::SetColumns>(
                   "columns", "Number of columns", PropertyKind::Integer),
               {1.0, 64.0}),
        Within(Of<&LegendFrame::SizeFactor, &LegendFrame::SetSizeFactor>(
                   "sizeFactor", "Factor for both em sizes when it is measured",
                   PropertyKind::Number),
               {0.0, 1000.0}),
    };
}

}  // namespace host::tables
