#include "recording/recording.h"

#include <new>
#include <stdexcept>
#include <utility>

#include "recording/session.h"

namespace recording {

Session& ThisThread() {
#ifdef __MINGW32__
    // A thread's variables are freed there before they are destroyed: this one never is.
    alignas(Session) thread_local unsigned char room[sizeof(Session)];
    thread_local Session* const session = new (room) Session;
    return *session;
#else
    thread_local Session session;
    return session;
#endif
}

Gdiplus::Status Session::Enter(const char* function) {
    ++count;
    if (failAt > 0 && --failAt == 0) {
        return failStatus;
    }
    if (failPrefix && (std::string(function) + " ").rfind(*failPrefix, 0) == 0) {
        return failStatus;
    }
    return Gdiplus::Ok;
}

const Object& Session::Of(const void* native) const {
    static const Object unknown;
    const auto found = objects.find(native);
    return found == objects.end() ? unknown : found->second;
}

Recording::Recording(Mode mode) {
    Session& session = ThisThread();
    if (session.active) {
        throw std::logic_error("a recording is under way in this thread");
    }
    session.active = true;
    session.mode = mode;
    session.failAt = 0;
    session.failPrefix.reset();
    session.bounds.clear();
    session.nextBounds = 0;
    session.boundsOf = nullptr;
    session.imageSize.reset();
    Clear();
}

Recording::~Recording() { ThisThread().active = false; }

const std::vector<Call>& Recording::Calls() const { return ThisThread().calls; }

std::vector<std::string> Recording::Lines() const {
    std::vector<std::string> lines;
    for (const Call& call : Calls()) {
        lines.push_back(call.line);
    }
    return lines;
}

std::vector<std::string> Recording::Drawing() const {
    std::vector<std::string> lines;
    for (const Call& call : Calls()) {
        if (call.visible) {
            lines.push_back(call.line);
        }
    }
    return lines;
}

int Recording::Count() const { return ThisThread().count; }

void Recording::Clear() {
    ThisThread().calls.clear();
    ThisThread().count = 0;
}

void Recording::ScriptBounds(std::vector<Gdiplus::Rect> bounds) {
    ThisThread().bounds = std::move(bounds);
    ThisThread().nextBounds = 0;
}

void Recording::ScriptBounds(std::function<Gdiplus::Rect(const std::string&)> bounds) {
    ThisThread().boundsOf = std::move(bounds);
}

void Recording::ScriptImageSize(unsigned int width, unsigned int height) {
    ThisThread().imageSize = std::make_pair(width, height);
}

void Recording::FailCall(int n, Gdiplus::Status status) {
    ThisThread().failAt = n;
    ThisThread().failStatus = status;
}

void Recording::FailCallsOf(const std::string& prefix, Gdiplus::Status status) {
    ThisThread().failPrefix = prefix;
    ThisThread().failStatus = status;
}

bool IsAtWork() { return ThisThread().atWork > 0; }

std::vector<std::string> LiveObjects() {
    std::vector<std::string> live;
    for (const auto& [native, object] : ThisThread().objects) {
        live.push_back(object.kind + " " + object.look);
    }
    return live;
}

}  // namespace recording
