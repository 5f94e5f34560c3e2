#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "recording/recording.h"

namespace recording {

/// A call that a drawing must hold, under the name that its geometry gives it.
struct Named {
    std::string name;  ///< "tick 3"
    std::string line;  ///< as lines.h writes it
};

/// Compares a trace with what it must be, call by call: the first that differs is told as
/// `tick 3: expected … (126, 20), drawn … (125, 20)`.
::testing::AssertionResult Equal(const std::vector<Named>& expected,
                                 const std::vector<std::string>& drawn);

/// Succeeds when no native object of this thread is alive, else lists those that are.
::testing::AssertionResult NothingAlive();

/// A white bitmap and its surface, made and deleted outside of any trace: what GDI+ makes
/// for them within itself is not recorded.
class Surface {
public:
    explicit Surface(int width = 400, int height = 300);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    Gdiplus::Graphics* Graphics() { return m_graphics.get(); }
    Gdiplus::Bitmap& Bitmap() { return *m_bitmap; }

    /// The six elements of the world transform; {1, 0, 0, 1, 0, 0} is the identity.
    /// Asking for it leaves no trace.
    std::vector<float> WorldTransform();

private:
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;
    std::unique_ptr<Gdiplus::Graphics> m_graphics;
};

}  // namespace recording
