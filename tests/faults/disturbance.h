#pragma once

#include <gtest/gtest.h>

#include "subjects/stage.h"

/// What a failed flat call may change in the calls around it, and what it may not.
namespace faults {

using subjects::Fault;
using subjects::Trace;

/// The function of a call.
std::string NameOf(const recording::Call& call);

/// Whether the call, the first being 0, is one of those that the fault fails.
bool Fails(const Fault& fault, const Trace& trace, std::size_t index);

/// Every call is still made, in order, and the visible ones are as they were, except that
/// an object that could not be made is null, one that could not be changed is as it was
/// made, and the two calls that must not be made without an object are left out.
::testing::AssertionResult GoesOn(const Trace& undisturbed, const Trace& disturbed,
                                  const Fault& fault);

/// The visible calls are of the same functions, whatever they draw now.
::testing::AssertionResult DrawsTheSameKinds(const Trace& undisturbed,
                                             const Trace& disturbed);

/// Everything is as if no call had failed, except that an image that was not loaded
/// cannot be disposed of.
::testing::AssertionResult IsItselfAgain(const Trace& undisturbed, const Trace& later);

/// The status that the surface must tell after a drawing: that of the last visible call
/// that failed on order, or for an object that was not there.
Gdiplus::Status LastStatusOf(const Trace& drawing, const Fault* fault = nullptr);

}  // namespace faults
