#pragma once

#include <memory>

/// Settles, for as long as it is held, how GDI+'s flat calls are carried out: by the
/// system's GDI+, or not at all, which leaves the time of the library alone. Each program
/// links one of the two.
std::shared_ptr<void> HoldFlatCalls();
