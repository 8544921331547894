#include "io/ZOLAtomicFile.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool fail(std::string* error, int code) {
    if (error)
        *error = std::strerror(code);
    return false;
}

bool writeAll(int fd, std::string_view bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// The file a save replaces: a symbolic link is followed so that the link stays a link.
std::string destinationOf(const std::string& path) {
    std::error_code ec;
    if (std::filesystem::is_symlink(path, ec)) {
        auto target = std::filesystem::weakly_canonical(path, ec);
        if (!ec)
            return target.string();
    }
    return path;
}

// Temporary files are named ".NAME.tmp-PID-N" beside the file they replace.
std::string temporaryPrefix(const std::filesystem::path& target) {
    return "." + target.filename().string() + ".tmp-";
}

// Whether the process that wrote a temporary file is gone, so that nobody will rename it.
bool writerIsGone(std::string_view rest) {
    const auto dash = rest.find('-');
    if (dash == 0 || dash == std::string_view::npos || dash > 9)
        return false;
    pid_t pid = 0;
    for (const char c : rest.substr(0, dash)) {
        if (c < '0' || c > '9')
            return false;
        pid = pid * 10 + (c - '0');
    }
    if (pid <= 0 || pid == ::getpid())
        return false;
    return ::kill(pid, 0) != 0 && errno == ESRCH;
}

// Removes what saves of this file killed half-way left behind.
void removeLeftovers(const std::filesystem::path& folder, const std::filesystem::path& target) {
    const std::string prefix = temporaryPrefix(target);
    std::error_code ec;
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end;
         it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (name.size() <= prefix.size() || name.compare(0, prefix.size(), prefix) != 0)
            continue;
        std::error_code typeError;
        if (it->is_regular_file(typeError) &&
            writerIsGone(std::string_view(name).substr(prefix.size())))
            ::unlink(it->path().c_str());
    }
}

} // namespace

bool ZOLAtomicFile::write(const std::string& path, std::string_view bytes, std::string* error) {
    const std::string destination = destinationOf(path);
    const std::filesystem::path target(destination);
    const std::filesystem::path folder =
        target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
    if (target.filename().empty())
        return fail(error, EISDIR);

    struct stat existing {};
    const bool replacing = ::stat(destination.c_str(), &existing) == 0;
    if (replacing && S_ISDIR(existing.st_mode))
        return fail(error, EISDIR);

    removeLeftovers(folder, target);

    static std::atomic<unsigned> counter{0};
    std::string temporary;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        temporary = (folder / (temporaryPrefix(target) + std::to_string(::getpid()) + "-" +
                               std::to_string(counter++)))
                        .string();
        fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd < 0 && errno != EEXIST)
            return fail(error, errno);
    }
    if (fd < 0)
        return fail(error, EEXIST);

    int code = 0;
    if (!writeAll(fd, bytes))
        code = errno;
    else if (replacing && ::fchmod(fd, existing.st_mode & 07777) != 0)
        code = errno;
    else if (::fsync(fd) != 0)
        code = errno;
    if (::close(fd) != 0 && code == 0)
        code = errno;
    if (code == 0 && ::rename(temporary.c_str(), destination.c_str()) != 0)
        code = errno;
    if (code != 0) {
        ::unlink(temporary.c_str());
        return fail(error, code);
    }
    // Make the rename itself durable.
    const int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return true;
}
