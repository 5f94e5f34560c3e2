#include <benchmark/benchmark.h>
#include <gdiplus.h>

#include "tables.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    bench::TablePrinter printer({bench::AddAgainstLimit(), bench::AddOwnShare(),
                                 bench::AddGrowth(), bench::AddGrowthAlone(),
                                 bench::AddTwoThreads()});
    benchmark::RunSpecifiedBenchmarks(&printer);
    // Else the registered benchmarks would outlive GDI+, and with them what they draw.
    benchmark::ClearRegisteredBenchmarks();
    Gdiplus::GdiplusShutdown(token);
    return printer.AllPassed() ? 0 : 1;
}
