#pragma once

namespace engine {

/// Whether GDI+ was started and not yet shut down. Nothing is made before or after.
bool IsRunning();

/// How often GDI+ was shut down for good: what a thread has kept from before is stale.
unsigned Generation();

}  // namespace engine
