#include <memory>

#include "flat_calls.h"
#include "recording/recording.h"

namespace {

std::unique_ptr<recording::Recording> silence;

}  // namespace

FlatCalls::FlatCalls() {
    silence = std::make_unique<recording::Recording>(recording::Mode::Silent);
}
FlatCalls::~FlatCalls() { silence.reset(); }
