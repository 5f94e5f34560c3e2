#include "flat_lookup/flat_lookup.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>

void* map_surround::FlatFunction(const char* name) {
    static const HMODULE library = LoadLibraryW(L"gdiplus.dll");
    const FARPROC function = library == nullptr ? nullptr : GetProcAddress(library, name);
    if (function == nullptr) {
        std::fprintf(stderr, "gdiplus.dll has no %s\n", name);
        std::abort();
    }
    return reinterpret_cast<void*>(function);
}
