#pragma once

namespace engine {

/// Whether GDI+ is running. Nothing is created otherwise.
bool IsRunning();

/// How often GDI+ was shut down for good: what a thread has cached from before is stale.
unsigned Generation();

}  // namespace engine
