#pragma once

#include <gdiplus.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Every element, frame and style, for tests that put all of them to the same trial.
namespace subjects {

/// An element or a frame with its properties set, as a host holds it.
class Subject {
public:
    virtual ~Subject() = default;

    /// Opens what there is to open and works the proportions out.
    virtual void Measure() = 0;

    virtual void Draw(Gdiplus::Graphics* graphics) = 0;
};

/// One set of properties. Those of a family together reach every branch of its drawing.
struct Row {
    std::string family;
    std::string name;
    bool turns;  ///< its drawing resets the world transform, or else never touches it
    std::function<std::unique_ptr<Subject>()> make;
};

const std::vector<Row>& Rows();

/// The families, each once.
std::vector<std::string> Families();

/// A text that no string holds without memory of its own, and no conversion for GDI+.
extern const wchar_t kLongText[];

/// The path of an image file, which is there as long as the program runs.
const std::wstring& ImagePath();

}  // namespace subjects
