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
    std::string bytes;
    const std::size_t limit = maxBytes + 1;
    // Room for the whole file at once, so that a large one is not copied from buffer to
    // growing buffer as it comes in.
    if (info.st_size > 0)
        bytes.reserve(std::min(static_cast<std::size_t>(info.st_size), limit));
    char buffer[65536];
    while (bytes.size() < limit) {
        const std::size_t want = std::min(sizeof buffer, limit - bytes.size());
        const ssize_t got = ::read(fd, buffer, want);
        if (got < 0) {
            if (errno == EINTR)
                continue;
            const int code = errno;
            ::close(fd);
            return failure(error, code);
        }
        if (got == 0)
            break;
        bytes.append(buffer, static_cast<std::size_t>(got));
    }
    ::close(fd);
    return bytes;
}
