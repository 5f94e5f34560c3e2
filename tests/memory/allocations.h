#pragma once

/// The C++ allocations of a thread, in a program whose allocation functions are these.
/// What the recorder allocates for itself is left out.
namespace allocations {

/// While it lives, this thread's allocations are counted; at most one watch at a time.
class Watch {
public:
    /// @param failing the allocation that fails, the first being 1; 0 for none
    explicit Watch(int failing = 0);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    int Count() const;
};

/// How many of the allocations that were watched have not been freed.
int Alive();

}  // namespace allocations
