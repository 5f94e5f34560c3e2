#include "memory/allocations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "recording/recording.h"

namespace {

struct Watched {
    bool watching = false;
    int count = 0;
    int failing = 0;
    int alive = 0;
    std::array<void*, 4096> blocks{};  // the first `alive` of them
};

thread_local Watched watched;

void Note(void* block) {
    if (watched.alive == static_cast<int>(watched.blocks.size())) {
        std::abort();  // a test that needs more room
    }
    watched.blocks[static_cast<std::size_t>(watched.alive++)] = block;
}

void Forget(void* block) {
    const auto end = watched.blocks.begin() + watched.alive;
    const auto found = std::find(watched.blocks.begin(), end, block);
    if (found != end) {
        *found = watched.blocks[static_cast<std::size_t>(--watched.alive)];
    }
}

void* Allocate(std::size_t size) noexcept {
    const bool counts = watched.watching && !recording::IsAtWork();
    if (counts && ++watched.count == watched.failing) {
        return nullptr;
    }
    void* const block = std::malloc(std::max<std::size_t>(size, 1));
    if (counts && block != nullptr) {
        Note(block);
    }
    return block;
}

void* AllocateOrThrow(std::size_t size) {
    void* const block = Allocate(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void Free(void* block) noexcept {
    if (watched.alive > 0) {
        Forget(block);
    }
    std::free(block);
}

}  // namespace

namespace allocations {

Watch::Watch(int failing) {
    recording::IsAtWork();  // which may allocate when a thread asks for the first time
    watched.watching = true;
    watched.count = 0;
    watched.failing = failing;
}

Watch::~Watch() { watched.watching = false; }

int Watch::Count() const { return watched.count; }

int Alive() { return watched.alive; }

}  // namespace allocations

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void operator delete(void* block) noexcept { Free(block); }
void operator delete[](void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete[](void* block, std::size_t) noexcept { Free(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Free(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Free(block); }
