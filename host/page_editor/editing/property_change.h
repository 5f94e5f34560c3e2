#pragma once

#include "page/document/property.h"
#include "page/document/raster_store.h"

namespace page_editor {

/// Sets a property of an item and measures its element where that shows something else
/// then. A legend that is drawn smaller than it measures stays so much smaller. Throws
/// host::PageError, that names the property, for a value that it cannot have.
/// @param reading told that a file takes long; may give it up
void SetProperty(host::PageItem& item, const host::Property& property,
                 const host::PropertyValue& value, host::RasterStore& rasters,
                 const host::Progress& reading = {});

/// host::MeasureItem, but for pictures: turned, they would take the proportions of the
/// box around them.
void Measure(host::PageItem& item);

/// Turns an item by a quarter, clockwise, with its frame. What does not turn (maps,
/// legends, scale bars) stays as it is.
void TurnByQuarter(host::PageItem& item, host::RasterStore& rasters);

}  // namespace page_editor
