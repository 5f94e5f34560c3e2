#include "map_surround/map_surround.h"
#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"
#include "page/numeric_scale.h"

namespace host::tables {
namespace {

/// The catalogue's families, with their numbers in the library.
Choices FamilyChoices() {
    static const std::vector<Choice> families = [] {
        std::map<std::int32_t, const char*> names = {{SurroundNone, "none"}};
        for (const CatalogueEntry& entry : kCatalogue) {
            names.emplace(entry.family, FamilyName(entry.family));
        }
        return ByNumber(names);
    }();
    return {families.data(), families.size()};
}

template <double CPoint2D::*Side>
Property OfOffset(const char* name, const char* about) {
    Property property = Named<double>(name, about, PropertyKind::Number);
    property.range = kPositions;
    property.read = [](const PageItem& item) {
        return PropertyValue(SubjectOf<PlacedFrame>(item).ElementOffset().*Side);
    };
    property.write = [](PageItem& item, const PropertyValue& value) {
        auto& frame = SubjectOf<PlacedFrame>(item);
        CPoint2D offset = frame.ElementOffset();
        offset.*Side = std::get<double>(value);
        frame.SetElementOffset(offset.x, offset.y);
    };
    return property;
}

void OpenPicture(PageItem& item, const PropertyValue& value) {
    std::wstring path;
    Widen(std::get<std::string>(value), path);
    SubjectOf<CDrawPicture>(item).Open(path.c_str());
}

/// The type in which a line of text is set.
std::vector<Property> TypeProperties() {
    return {
        Of<&CMapTitle::GetFontStyle, &CMapTitle::SetFontStyle>("font", "Font family",
                                                               PropertyKind::Font),
        Within(Of<&CMapTitle::GetFontSize, &CMapTitle::SetFontSize>(
                   "fontSize", "Em size, page units", PropertyKind::Number),
               kLengths),
        OneOf(Of<&CMapTitle::GetFontProcess, &CMapTitle::SetFontProcess>(
                  "fontStyle", "Style of the font", PropertyKind::Choice),
              kFontStyles),
    };
}

}  // namespace

std::vector<Property> PlacedFrameProperties() {
    return {
        Of<&PlacedFrame::Name, &PlacedFrame::SetName>("name", "Its name; not drawn",
                                                      PropertyKind::Text),
        Of<&PlacedFrame::AlternativeText, &PlacedFrame::SetAlternativeText>(
            "alternativeText", kAlternativeText, PropertyKind::Text),
        OfOffset<&CPoint2D::x>(
            "offsetX",
            "Offset of the element to the right of the frame's middle, page units"),
        OfOffset<&CPoint2D::y>(
            "offsetY", "Offset of the element above the frame's middle, page units"),
    };
}

std::vector<Property> ElementProperties() {
    return {
        Measured(Within(Of<&CMapSurround::GetSize, &CMapSurround::SetSize>(
                            "size", "Height, page units", PropertyKind::Integer),
                        kSizes)),
        Measured(Within(Of<&CMapSurround::GetAspectRatio, &CMapSurround::SetAspectRatio>(
                            "aspectRatio", "Width divided by height; null while unknown",
                            PropertyKind::Ratio),
                        kRatios)),
        Within(Of<&CMapSurround::GetAngle, &CMapSurround::SetAngle>(
                   "angle", "Degrees clockwise; legends and scale bars do not turn",
                   PropertyKind::Angle),
               kTurns),
        Of<&CMapSurround::GetFrontColor, &CMapSurround::SetFrontColor>(
            "color", "Main colour; legends have none", PropertyKind::Colour),
        OneOf(Of<&CMapSurround::GetItemType, &CMapSurround::SetItemType>(
                  "itemType", "Kind that the element reports", PropertyKind::Choice),
              FamilyChoices()),
    };
}

std::vector<Property> TitleProperties() {
    return Join(
        {{WithLines(Of<&CMapTitle::GetFontValue, &CMapTitle::SetFontValue>(
              "text", "The text", PropertyKind::Text)),
          OneOf(Of<&CMapTitle::GetLineAlignment, &CMapTitle::SetLineAlignment>(
                    "lineAlignment", "Alignment of its lines", PropertyKind::Choice),
                kLineAlignments)},
         TypeProperties()});
}

std::vector<Property> NumericScaleProperties() {
    return Join({{Within(Of<&NumericScale::Denominator, &NumericScale::SetDenominator>(
                             "denominator",
                             "25000 for 1 : 25 000; follows the map where there is one",
                             PropertyKind::Number),
                         {1.0, 1.0e15})},
                 TypeProperties()});
}

std::vector<Property> PictureProperties() {
    Property path = Named<std::wstring>("path", "Image file", PropertyKind::File);
    path.read = [](const PageItem& item) {
        return PropertyValue(Narrow(SubjectOf<CDrawPicture>(item).GetPath()));
    };
    path.write = OpenPicture;
    return {path};
}

std::vector<Property> NorthArrowProperties() {
    return {
        Of<&NorthArrowFrame::TrueNorth, &NorthArrowFrame::SetTrueNorth>(
            "trueNorth", "Whether it is turned to true north in the middle of the map",
            PropertyKind::Switch),
        Of<&NorthArrowFrame::IsExact, &NorthArrowFrame::SetExact>(
            "exact", "Whether a one-angle arrow looks the same at every resolution",
            PropertyKind::Switch),
        OneOf(
            Of<&CNorthArrowBase::GetNorthArrowType, &CNorthArrowBase::SetNorthArrowType>(
                "northArrowType", "Style that the arrow reports", PropertyKind::Choice),
            TypeChoices<&CNorthArrowBase::GetNorthArrowType>())};
}

}  // namespace host::tables
