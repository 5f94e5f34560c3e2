#include "map_page/quiet.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "system/one_line.h"

namespace map_page {

Quiet::Quiet(std::string place)
    : m_place(place.empty() ? "" : std::move(place) + ": "),
      m_standardError(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3)) {
    if (m_standardError >= 0) {
        std::fflush(stderr);
        close(STDERR_FILENO);
        open("/dev/null", O_WRONLY);  // takes its number, when descriptors have run out
    }
}

Quiet::~Quiet() {
    if (m_standardError >= 0) {
        std::fflush(stderr);
        dup2(m_standardError, STDERR_FILENO);
        close(m_standardError);
    }
}

void Quiet::Warn(const std::string& what) const {
    dprintf(m_standardError, "map_page: warning: %s\n",
            host::OneLine(m_place + what).c_str());
}

}  // namespace map_page
