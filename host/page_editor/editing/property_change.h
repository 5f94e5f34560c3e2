#pragma once

#include "page/document/property.h"
#include "page/document/raster_store.h"

namespace page_editor {

/// Sets a property of an item and measures its element if that changes its size. A legend
/// drawn smaller than it measures keeps that ratio. Throws host::PageError that names the
/// property for a value that it cannot have.
/// @param reading called while a file takes long to read; may cancel the reading
void SetProperty(host::PageItem& item, const host::Property& property,
                 const host::PropertyValue& value, host::RasterStore& rasters,
                 const host::Progress& reading);

/// host::MeasureItem, except for pictures: rotated, they would take the proportions of
/// their bounding box.
void Measure(host::PageItem& item);

/// Turns an item by a quarter, clockwise, with its frame. What does not turn (maps,
/// legends, scale bars) is left alone.
void TurnByQuarter(host::PageItem& item, host::RasterStore& rasters);

}  // namespace page_editor
