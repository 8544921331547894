#include "io/ZOLFileBytes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
std::optional<std::string> failure(std::string* error, int code) {
    if (error)
        *error = std::strerror(code);
    return std::nullopt;
}
} // namespace

std::optional<std::string> ZOLFileBytes::read(const std::string& path, std::size_t maxBytes,
                                              std::string* error) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return failure(error, errno);
    struct stat info {};
    if (::fstat(fd, &info) != 0 || S_ISDIR(info.st_mode)) {
        const int code = S_ISDIR(info.st_mode) ? EISDIR : errno;
        ::close(fd);
        return failure(error, code);
    }
    const std::size_t limit = maxBytes + 1;
    // Room for the whole file and one byte more, read straight into place: the end of the file
    // is then seen without the buffer growing, and a large file is not copied twice.
    std::string bytes(
        std::min(info.st_size > 0 ? static_cast<std::size_t>(info.st_size) + 1 : 65536, limit),
        '\0');
    std::size_t used = 0;
    while (used < limit) {
        if (used == bytes.size())
            bytes.resize(std::min(2 * bytes.size(), limit));
        const ssize_t got = ::read(fd, bytes.data() + used, bytes.size() - used);
        if (got < 0) {
            if (errno == EINTR)
                continue;
            const int code = errno;
            ::close(fd);
            return failure(error, code);
        }
        if (got == 0)
            break;
        used += static_cast<std::size_t>(got);
    }
    bytes.resize(used);
    ::close(fd);
    return bytes;
}
