#pragma once

#include "gdiplus/types.h"

namespace Gdiplus::detail {

/// The base of every class around a native object: keeps the last failure, and cannot be
/// copied.
class StatusKeeper {
public:
    /// The last status that was not Ok since the previous call; resets it to Ok.
    Status GetLastStatus() const {
        const Status status = lastStatus_;
        lastStatus_ = Ok;
        return status;
    }

    StatusKeeper(const StatusKeeper&) = delete;
    StatusKeeper& operator=(const StatusKeeper&) = delete;

protected:
    StatusKeeper() = default;
    ~StatusKeeper() = default;

    Status SetStatus(Status status) const {
        if (status != Ok) {
            lastStatus_ = status;
        }
        return status;
    }

    /// The value of a flat query; 0 when it fails, and the failure is kept.
    template <typename Value, typename Native>
    Value Query(Status (*flat)(Native*, Value*), Native* native) const {
        Value value = Value();
        SetStatus(flat(native, &value));
        return value;
    }

private:
    mutable Status lastStatus_ = Ok;
};

/// The native object of a wrapper; null for a null wrapper.
template <typename Wrapper>
auto Native(const Wrapper* wrapper) -> decltype(wrapper->NativeObject()) {
    return wrapper == nullptr ? nullptr : wrapper->NativeObject();
}

}  // namespace Gdiplus::detail
