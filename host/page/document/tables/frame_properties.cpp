#include <cmath>

#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"

namespace host::tables {
namespace {

/// A frame's box as page files have it. The frame stores edges and reports sizes, so the
/// far edge is chosen to give back exactly the size that was asked for.
struct Box {
    double left;
    double top;
    double width;
    double height;
};

Box BoxOf(const CFrameBase& frame) {
    const CBoundingBox extent = frame.GetExtent();
    return {extent.TopLeft().x, extent.TopLeft().y, extent.GetWidth(),
            extent.GetHeight()};
}

/// The edge at the far end of `length`, so that their difference is exactly the length
/// wherever doubles allow.
double FarEdge(double edge, double length) {
    const double far = edge + length;
    if (std::fabs(far - edge) == std::fabs(length)) {
        return far;
    }
    for (const double towards : {-HUGE_VAL, HUGE_VAL}) {
        const double neighbour = std::nextafter(far, towards);
        if (std::fabs(neighbour - edge) == std::fabs(length)) {
            return neighbour;
        }
    }
    return far;
}

void SetBox(CFrameBase& frame, const Box& box) {
    frame.SetExtent(
        {box.left, FarEdge(box.top, -box.height), FarEdge(box.left, box.width), box.top});
}

template <double Box::*Side>
Property OfBox(const char* name, const char* about) {
    Property property = Named<double>(name, about, PropertyKind::Number);
    property.read = [](const PageItem& item) {
        return PropertyValue(BoxOf(SubjectOf<CFrameBase>(item)).*Side);
    };
    property.write = [](PageItem& item, const PropertyValue& value) {
        auto& frame = SubjectOf<CFrameBase>(item);
        Box box = BoxOf(frame);
        box.*Side = std::get<double>(value);
        SetBox(frame, box);
    };
    return property;
}

template <std::int32_t CFrameBase::*Field>
Property OfReserved(const char* name) {
    return Within(OfField<Field>(name, "Kept; has no effect", PropertyKind::Integer),
                  kWords);
}

}  // namespace

// Left before width and top before height: moving an edge may cost the size its last
// digit.
std::vector<Property> FrameProperties() {
    constexpr auto kSwitch = PropertyKind::Switch;
    constexpr auto kInteger = PropertyKind::Integer;
    constexpr auto kNumber = PropertyKind::Number;
    constexpr auto kColour = PropertyKind::Colour;
    return {
        Within(OfBox<&Box::left>("left", "Left edge, page units from the sheet's left"),
               kPositions),
        Within(OfBox<&Box::top>("top", "Top edge, page units from the sheet's bottom"),
               kPositions),
        Within(OfBox<&Box::width>("width", "Width, page units"), kSizes),
        Within(OfBox<&Box::height>("height", "Height, page units"), kSizes),
        OfField<&CFrameBase::DrawBorder>("border", "Whether the border is drawn",
                                         kSwitch),
        Within(OfField<&CFrameBase::BorderWidth>(
                   "borderWidth", "Width of the border, page units", kNumber),
               {0.0, 10'000.0}),
        OfField<&CFrameBase::BorderColor>("borderColor", "Colour of the border", kColour),
        OfField<&CFrameBase::DashedBorder>("borderDashed", "Whether the border is dashed",
                                           kSwitch),
        Within(OfField<&CFrameBase::BorderGapX>("borderGapX",
                                                "Gap between the frame and its border "
                                                "and shadow, left and right, page units",
                                                kInteger),
               kPixels),
        Within(OfField<&CFrameBase::BorderGapY>("borderGapY",
                                                "Gap between the frame and its border "
                                                "and shadow, above and below, page units",
                                                kInteger),
               kPixels),
        OfField<&CFrameBase::DrawFill>("fill", "Whether the background is drawn",
                                       kSwitch),
        OfField<&CFrameBase::FillColor>("fillColor", "Colour of the background", kColour),
        Within(OfField<&CFrameBase::FillGapX>(
                   "fillGapX",
                   "How far the background extends left and right, page units", kInteger),
               kPixels),
        Within(
            OfField<&CFrameBase::FillGapY>(
                "fillGapY", "How far the background extends above and below, page units",
                kInteger),
            kPixels),
        OfField<&CFrameBase::DrawShadow>("shadow", "Whether the shadow is drawn",
                                         kSwitch),
        OfField<&CFrameBase::ShadowColor>("shadowColor", "Colour of the shadow", kColour),
        Within(OfField<&CFrameBase::ShadowRatioX>(
                   "shadowRatioX", "How far the shadow falls, in widths of the frame",
                   kNumber),
               kPositions),
        Within(OfField<&CFrameBase::ShadowRatioY>(
                   "shadowRatioY", "How far the shadow falls, in heights of the frame",
                   kNumber),
               kPositions),
        OfReserved<&CFrameBase::Reserved1>("reserved1"),
        OfReserved<&CFrameBase::Reserved2>("reserved2"),
        OfReserved<&CFrameBase::Reserved3>("reserved3"),
        OfReserved<&CFrameBase::Reserved4>("reserved4"),
        OfReserved<&CFrameBase::Reserved5>("reserved5"),
    };
}

}  // namespace host::tables
