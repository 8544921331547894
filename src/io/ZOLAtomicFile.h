#pragma once
#include <string>
#include <string_view>

// Saves a file so that it is either written whole or not at all: the bytes go to a temporary
// file in the same folder, are flushed to the disk, and the temporary file is then renamed over
// the destination. A failed save leaves the destination as it was and no temporary file behind.
// A save killed half-way (power loss, kill -9) leaves its temporary file; the next save of the
// same file removes it once the process that wrote it is gone.
class ZOLAtomicFile {
public:
    ZOLAtomicFile() = delete;

    // Writes `bytes` to `path`, replacing an existing file (which keeps its permissions; a new
    // file gets the usual ones for the user's umask). When `path` is a symbolic link the file it
    // points to is replaced. On failure returns false with the system's reason in `error`.
    static bool write(const std::string& path, std::string_view bytes,
                      std::string* error = nullptr);
};
