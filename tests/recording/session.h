#pragma once

#include <gdiplus.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "flat_lookup/flat_lookup.h"
#include "recording/recording.h"

#ifndef WINGDIPAPI
#define WINGDIPAPI
#endif

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
    bool Writes() const { return active && depth == 0 && mode != Mode::Silent; }

    /// Counts a call and tells the status it must fail with; Ok to go on.
    Gdiplus::Status Enter(const char* function);

    /// What is known of an object; of null and of one made elsewhere, nothing.
    const Object& Of(const void* native) const;
    std::string LookOf(const void* native) const { return Of(native).look; }
};

Session& ThisThread();

/// Stands in every flat function: what is allocated there is the recorder's, not the
/// library's.
class AtWork {
public:
    AtWork() { ++ThisThread().atWork; }
    ~AtWork() { --ThisThread().atWork; }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;
};

/// The system's function of the same name as one that this program defines.
template <typename Function>
Function Real(const char* name) {
    return reinterpret_cast<Function>(map_surround::FlatFunction(name));
}

enum class CallKind {
    Visible,   ///< draws, or changes the world transform
    Internal,  ///< makes, changes, measures
    Deletion,  ///< is carried out even when it is to fail
};

/// Calls the system's function; what it calls in turn is not recorded.
template <typename RealCall>
Gdiplus::GpStatus Forward(RealCall real) {
    ++ThisThread().depth;
    const Gdiplus::GpStatus status = real();
    --ThisThread().depth;
    return status;
}

/// Carries one flat call out: writes it down, fails it on order, forwards it.
/// @param describe its line without the function's name, or with it for a visible one
/// @param real the call of the system's function
/// @param tokenCall answers where nothing is forwarded
template <typename Describe, typename RealCall, typename TokenCall>
Gdiplus::GpStatus Run(const char* function, CallKind kind, Describe describe,
                      RealCall real, TokenCall tokenCall) {
    Session& session = ThisThread();
    if (session.depth > 0) {
        return real();
    }
    if (session.active) {
        const Gdiplus::Status failure = session.Enter(function);
        if (session.Writes()) {
            session.calls.push_back({describe(), kind == CallKind::Visible});
        }
        if (failure != Gdiplus::Ok && kind != CallKind::Deletion) {
            return failure;
        }
        const Gdiplus::GpStatus status = session.Forwards() ? Forward(real) : tokenCall();
        return failure != Gdiplus::Ok ? failure : status;
    }
    return Forward(real);
}

/// Where nothing is forwarded, a call on a null object fails as GDI+'s would.
template <typename... Natives>
Gdiplus::GpStatus NeedAll(const Natives*... natives) {
    return (... && (natives != nullptr)) ? Gdiplus::Ok : Gdiplus::InvalidParameter;
}

/// Makes a token that stands for an object.
template <typename Native>
Gdiplus::GpStatus MakeToken(Native** native) {
    auto token = std::make_unique<char>();
    *native = reinterpret_cast<Native*>(token.get());
    ThisThread().objects[*native].token = std::move(token);
    return Gdiplus::Ok;
}

/// Carries a creation out and notes the object made.
/// @param tokenStatus Ok, or how GDI+ refuses to make this object, for where it is not
/// asked
template <typename Describe, typename RealCall, typename Native>
Gdiplus::GpStatus RunCreation(const char* function, Describe describe, RealCall real,
                              Native** native, Object object,
                              Gdiplus::GpStatus tokenStatus = Gdiplus::Ok) {
    const bool outermost = ThisThread().depth == 0;
    const Gdiplus::GpStatus status =
        Run(function, CallKind::Internal, describe, real,
            [&] { return tokenStatus == Gdiplus::Ok ? MakeToken(native) : tokenStatus; });
    if (outermost && status == Gdiplus::Ok && *native != nullptr) {
        Object& made = ThisThread().objects[*native];
        object.timesMade = made.timesMade + 1;
        object.token = std::move(made.token);
        made = std::move(object);
    }
    return status;
}

/// Carries a deletion out and forgets an object that was deleted as often as it was made.
/// A token never reaches GDI+ and a real object always does, whatever is recorded when
/// they are deleted.
template <typename RealCall>
Gdiplus::GpStatus RunDeletion(const char* function, const void* native, RealCall real) {
    const bool outermost = ThisThread().depth == 0;
    const bool isToken = ThisThread().Of(native).token != nullptr;
    const auto deleteObject = [&] { return isToken ? Gdiplus::Ok : real(); };
    const Gdiplus::GpStatus status = Run(
        function, CallKind::Deletion,
        [&] { return std::string(function) + " " + ThisThread().LookOf(native); },
        deleteObject,
        [&] {
            return native == nullptr ? Gdiplus::InvalidParameter : Forward(deleteObject);
        });
    if (outermost && --ThisThread().objects[native].timesMade <= 0) {
        ThisThread().objects.erase(native);
    }
    return status;
}

}  // namespace recording
