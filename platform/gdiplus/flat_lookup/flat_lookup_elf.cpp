#include "flat_lookup/flat_lookup.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

void* map_surround::FlatFunction(const char* name) {
    void* function = dlsym(RTLD_NEXT, name);
    if (function == nullptr) {
        std::fprintf(stderr, "GDI+ has no %s\n", name);
        std::abort();
    }
    return function;
}
