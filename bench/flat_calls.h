#pragma once

/// How GDI+'s flat calls are carried out while it lives: by the system's GDI+, or not at
/// all, which leaves the time of the library alone. Each program links one of the two.
class FlatCalls {
public:
    FlatCalls();
    ~FlatCalls();
    FlatCalls(const FlatCalls&) = delete;
    FlatCalls& operator=(const FlatCalls&) = delete;
};
