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
    };
}

}  // namespace host::tables
