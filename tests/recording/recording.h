#pragma once

#include <gdiplus.h>

#include <functional>
#include <string>
#include <vector>

/// Records the flat GDI+ calls of a thread.
///
/// The test program defines the flat functions that the library uses; each forwards to
/// the system's GDI+ and, while a Recording lives, is written down with its arguments and
/// the attributes of the objects it uses. What GDI+ calls within itself is left out.
namespace recording {

/// One flat call, as lines.h writes it.
struct Call {
    std::string line;
    bool visible = false;  ///< draws, or changes the world transform
};

enum class Mode {
    Forward,     ///< every call reaches GDI+
    RecordOnly,  ///< none does: objects are tokens, drawing does nothing
    Silent,      ///< as RecordOnly, and nothing is written down: only counted
};

/// While it lives, this thread's calls are recorded; at most one at a time.
class Recording {
public:
    explicit Recording(Mode mode = Mode::Forward);
    ~Recording();
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    const std::vector<Call>& Calls() const;

    /// The lines of every call, creations and deletions included.
    std::vector<std::string> Lines() const;

    /// The lines of the visible operations.
    std::vector<std::string> Drawing() const;

    /// Calls so far, those that failed on order included.
    int Count() const;

    void Clear();

    /// Answers the next path bounds with these, in order; the last goes on answering.
    void ScriptBounds(std::vector<Gdiplus::Rect> bounds);

    /// Answers path bounds from what the path holds, as lines.h writes a path's content:
    /// `"Band_1" "Arial" 15` for a text, family and em size.
    void ScriptBounds(std::function<Gdiplus::Rect(const std::string& content)> bounds);

    /// Answers the size of every image.
    void ScriptImageSize(unsigned int width, unsigned int height);

    /// Fails the n-th call from now on, the first being 1, without carrying it out. An
    /// object's deletion is carried out and answers the failure all the same.
    void FailCall(int n, Gdiplus::Status status = Gdiplus::GenericError);

    /// Fails every call whose function's name begins so: "" for all, "GdipCreate". A
    /// name that ends in a blank is meant whole: "GdipCreateFont " is no font family.
    void FailCallsOf(const std::string& prefix,
                     Gdiplus::Status status = Gdiplus::GenericError);
};

/// Native objects of this thread that were made and not deleted, one line each.
std::vector<std::string> LiveObjects();

/// Whether this thread is within a flat function of the recorder's, so that what it
/// allocates is not the library's.
bool IsAtWork();

}  // namespace recording
