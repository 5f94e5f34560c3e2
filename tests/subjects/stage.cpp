#include "subjects/stage.h"

#include <sstream>

namespace subjects {
namespace {

/// The bounds of a path from what lines.h writes of it: of a rectangle its own, of a text
/// some that grow with it.
Gdiplus::Rect BoundsOf(const std::string& content) {
    const std::string rectangle = "rectangle ";
    if (content.rfind(rectangle, 0) == 0) {
        std::istringstream numbers(content.substr(rectangle.size()));
        Gdiplus::Rect bounds;
        numbers >> bounds.X >> bounds.Y >> bounds.Width >> bounds.Height;
        return bounds;
    }
    return {2, 5, 3 * static_cast<int>(content.size()), 20};
}

}  // namespace

Stage::Stage(const Setting& setting) : m_recording(setting.mode) {
    m_recording.ScriptImageSize(900, 800);
    m_recording.ScriptBounds([ink = setting.ink](const std::string& content) {
        return ink && !content.empty() ? BoundsOf(content) : Gdiplus::Rect();
    });
    if (!setting.fault) {
        return;
    }
    const Fault& fault = *setting.fault;
    if (fault.call > 0) {
        m_recording.FailCall(fault.call, fault.status);
    } else {
        m_recording.FailCallsOf(fault.function.empty() ? "" : fault.function + " ",
                                fault.status);
    }
}

}  // namespace subjects
