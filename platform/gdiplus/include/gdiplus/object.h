#pragma once

#include "gdiplus/types.h"

namespace Gdiplus::detail {

/// What every class around a native object shares: it keeps the last failure, and is
/// not copied.
class StatusKeeper {
public:
    /// The last status that was not Ok since the last call, then Ok.
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

    /// A flat query's value, 0 when the query fails. The failure is kept.
    template <typename Value, typename Native>
    Value Query(Status (*flat)(Native*, Value*), Native* native) const {
        Value value = Value();
        SetStatus(flat(native, &value));
        return value;
    }

private:
    mutable Status lastStatus_ = Ok;
};

/// The native object behind a wrapper, null for no wrapper.
template <typename Wrapper>
auto Native(const Wrapper* wrapper) -> decltype(wrapper->NativeObject()) {
    return wrapper == nullptr ? nullptr : wrapper->NativeObject();
}

}  // namespace Gdiplus::detail
