#pragma once

#include "system/helper_process.h"

namespace editor_tests {

/// Jobs of the tests' helper that end in every way (see helper_process_test.cpp).
host::Jobs TestJobs();

}  // namespace editor_tests
