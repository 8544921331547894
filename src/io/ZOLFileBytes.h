#pragma once
#include <cstddef>
#include <optional>
#include <string>

// Reads a file whole, as the document and the file windows hand it to the readers.
class ZOLFileBytes {
public:
    ZOLFileBytes() = delete;

    // The file's bytes, or nothing with the system's reason in `error` ("No such file or
    // directory"). At most maxBytes + 1 bytes are read, so a file too large for the readers is
    // recognised as such without being loaded whole.
    static std::optional<std::string> read(const std::string& path, std::size_t maxBytes,
                                           std::string* error = nullptr);
};
