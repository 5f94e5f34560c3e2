#include "system/child_process.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace host {

pid_t StartChild(const std::function<int()>& work) {
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process != 0) {
        return process;
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) {
        std::raise(SIGTERM);
    }
    _exit(work());  // the libraries' exit handlers take longer than the fork
}

int WaitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

}  // namespace host
