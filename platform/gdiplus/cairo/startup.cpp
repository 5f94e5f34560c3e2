#include <atomic>
#include <mutex>
#include <set>

#include "cairo/flat_functions.h"
#include "cairo/running.h"
#include "cairo/text/text_cache.h"

namespace engine {
namespace {

std::mutex g_mutex;
std::set<ULONG_PTR> g_tokens;
std::atomic<bool> g_running{false};
std::atomic<unsigned> g_generation{0};

}  // namespace

bool IsRunning() { return g_running.load(std::memory_order_relaxed); }
unsigned Generation() { return g_generation.load(std::memory_order_relaxed); }

}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                        GdiplusStartupOutput* output) {
    using namespace engine;
    return Guarded([&] {
        if (token == nullptr || input == nullptr ||
            (input->SuppressBackgroundThread != 0 && output == nullptr)) {
            return InvalidParameter;
        }
        if (input->GdiplusVersion < 1 || input->GdiplusVersion > 2) {
            return UnsupportedGdiplusVersion;
        }
        static ULONG_PTR last = 0;
        const std::lock_guard lock(g_mutex);
        g_tokens.insert(last + 1);
        *token = ++last;
        g_running = true;
        if (output != nullptr) {
            output->NotificationHook = [](ULONG_PTR* hook) {
                *hook = 1;
                return Ok;
            };
            output->NotificationUnhook = [](ULONG_PTR) {};
        }
        return Ok;
    });
}

VOID GdiplusShutdown(ULONG_PTR token) {
    using namespace engine;
    const std::lock_guard lock(g_mutex);
    if (g_tokens.erase(token) == 0 || !g_tokens.empty()) {
        return;
    }
    g_running = false;
    ++g_generation;
    ForgetTexts();
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
