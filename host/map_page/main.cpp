#include <cpl_error.h>
#include <gdiplus.h>

#include <cstdio>
#include <exception>
#include <new>
#include <optional>

#include "map_page/draw_page.h"
#include "map_page/error.h"
#include "map_page/options.h"
#include "page/output_file.h"

namespace {

constexpr int kDrawn = 0;
constexpr int kNotDrawn = 1;
constexpr int kWrongUsage = 2;

/// GDI+ for as long as it lives.
class GdiplusSession {
public:
    GdiplusSession() {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&m_token, &input, nullptr) != Gdiplus::Ok) {
            throw map_page::Error("GDI+", "cannot be started");
        }
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    ~GdiplusSession() { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

int Fail(int status, const char* line) {
    std::fprintf(stderr, "map_page: %s\n", line);
    return status;
}

void Run(int argc, const char* const* argv) {
    const std::optional<map_page::Options> options =
        map_page::ReadCommandLine(argc, argv);
    if (!options) {
        return;
    }
    CPLSetErrorHandler(CPLQuietErrorHandler);
    host::RemoveUnfinishedOutputOnSignals();
    const GdiplusSession session;
    map_page::DrawPage(*options);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        Run(argc, argv);
        return kDrawn;
    } catch (const map_page::UsageError& error) {
        return Fail(kWrongUsage, error.what());
    } catch (const std::bad_alloc&) {
        return Fail(kNotDrawn, "memory: the page needs more than there is");
    } catch (const std::exception& error) {
        return Fail(kNotDrawn, error.what());
    }
}
