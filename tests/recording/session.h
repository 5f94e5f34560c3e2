#pragma once

#include <gdiplus.h>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "recording/recording.h"

namespace recording {

/// What is known of a native object.
struct Object {
    std::string kind;
    std::string look = "null";  ///< as lines.h writes it
    std::string content;        ///< a path's, a family's name
    Gdiplus::ARGB color = 0;
    float size = 0.0f;  ///< a pen's width, a font's em size
    int style = 0;      ///< a pen's dash style, a font's style, a format's flags
    std::string cap;
    int timesMade = 0;            ///< more than 1 for a family that GDI+ hands out again
    std::unique_ptr<char> token;  ///< what stands for the object where GDI+ made none
};

/// The state of a thread's recording, and its live objects at any time.
struct Session {
    bool active = false;
    int depth = 0;   ///< within a flat call already: GDI+ calling itself
    int atWork = 0;  ///< within a function of the recorder's
    Mode mode = Mode::Forward;
    std::vector<Call> calls;
    int count = 0;
    std::vector<Gdiplus::Rect> bounds;
    std::size_t nextBounds = 0;
    std::function<Gdiplus::Rect(const std::string&)> boundsOf;
    std::optional<std::pair<unsigned int, unsigned int>> imageSize;
    int failAt = 0;
    Gdiplus::Status failStatus = Gdiplus::GenericError;
    std::optional<std::string> failPrefix;
    std::unordered_map<const void*, Object> objects;

    bool Forwards() const { return !active || mode == Mode::Forward; }
    bool Writes() const { return active && mode != Mode::Silent; }

    /// Counts a call and tells the status it must fail with; Ok to go on.
    Gdiplus::Status Enter(const char* function);

    /// What is known of an object; of null and of one made elsewhere, nothing.
    const Object& Of(const void* native) const;
};

Session& ThisThread();

/// Calls the system's functions; what they call in turn is not recorded.
template <typename RealCall>
Gdiplus::GpStatus Forward(RealCall real) {
    ++ThisThread().depth;
    const Gdiplus::GpStatus status = real();
    --ThisThread().depth;
    return status;
}

}  // namespace recording
