#pragma once

#include <optional>
#include <string>
#include <vector>

#include "recording/recording.h"

namespace subjects {

/// Flat calls that fail: one of them, or all of a function.
struct Fault {
    int call = 0;          ///< counted from 1; 0 for all of the function
    std::string function;  ///< its name, or none for every function there is
    Gdiplus::Status status = Gdiplus::GenericError;
};

/// How a stage of a subject's life is recorded.
struct Setting {
    recording::Mode mode = recording::Mode::RecordOnly;
    bool ink = true;  ///< texts have an outline to measure
    std::optional<Fault> fault;
};

using Trace = std::vector<recording::Call>;

/// A recording in which texts and images have the same sizes on every machine.
class Stage {
public:
    explicit Stage(const Setting& setting = {});

    Trace Calls() const { return m_recording.Calls(); }

private:
    recording::Recording m_recording;
};

}  // namespace subjects
