#pragma once

// The sibling library's own header has it all.
#include "sibling/common_fun.h"
