#include "flat_calls.h"

std::shared_ptr<void> HoldFlatCalls() { return nullptr; }
