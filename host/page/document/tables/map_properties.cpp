#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"

namespace host::tables {

std::vector<Property> MapProperties() {
    return {
        OfField<&MapFrame::name>("name", "What people call it; drawn nowhere",
                                 PropertyKind::Text),
        OfField<&MapFrame::rasterPaths>("rasters", "Files on the map, the first on top",
                                        PropertyKind::Rasters),
        OfField<&MapFrame::extent>("extent",
                                   "The part shown, in map units; null for all of it",
                                   PropertyKind::MapExtent),
        Within(OfField<&MapFrame::scale>(
                   "scale",
                   "The denominator of the scale that the frame keeps, 25000 for "
                   "1 : 25 000; null for as much of the map as it holds",
                   PropertyKind::Ratio),
               {1.0, 1.0e12}),
    };
}

}  // namespace host::tables
