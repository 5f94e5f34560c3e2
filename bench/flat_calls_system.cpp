#include "flat_calls.h"

FlatCalls::FlatCalls() = default;
FlatCalls::~FlatCalls() = default;
