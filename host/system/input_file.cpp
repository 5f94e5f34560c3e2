#include "system/input_file.h"

#include <sys/stat.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace host {

std::string ReadFile(const std::string& path, std::size_t most) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        throw std::runtime_error(std::generic_category().message(errno));
    }
    if (!S_ISREG(status.st_mode)) {
        throw std::runtime_error("is not a file");
    }
    if (static_cast<std::size_t>(status.st_size) > most) {
        throw std::runtime_error("is larger than " + std::to_string(most >> 20) + " MB");
    }
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file) {
        throw std::runtime_error("cannot be read");
    }
    return bytes;
}

}  // namespace host
