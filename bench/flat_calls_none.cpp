#include "flat_calls.h"
#include "recording/recording.h"

std::shared_ptr<void> HoldFlatCalls() {
    return std::make_shared<recording::Recording>(recording::Mode::Silent);
}
