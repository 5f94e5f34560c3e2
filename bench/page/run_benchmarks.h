#pragma once

#include <benchmark/benchmark.h>
#include "system/gdiplus_session.h"

namespace bench {

/// Runs the benchmarks of a program as its command line asks, with GDI+ started.
/// @return the program's status
inline int RunBenchmarks(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    const host::GdiplusSession session;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace bench
