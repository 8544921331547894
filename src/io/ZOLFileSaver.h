#pragma once
#include <string>
#include <string_view>

// The three kinds of file the program writes, each with its own reader.
enum class ZOLFileKind { Workbook, PriceList, Template };

// Saving a workbook, price file or template so that a readable file is never replaced by one
// that cannot be opened again: the reader of their kind (the open check included, no alert
// shown) reads the bytes before they go to the disk, and only bytes it opens are written and
// renamed over the old file. Reading them back from the temporary file would give the same
// bytes out of the system's file cache, at the cost of one more copy of the whole file.
class ZOLFileSaver {
public:
    ZOLFileSaver() = delete;

    enum class Outcome {
        Saved,
        // The bytes would not open again: nothing was written, the old file is as it was.
        Unreadable,
        // The system refused the write (the reason is in `error`); the old file is as it was.
        WriteFailed,
    };

    static Outcome save(const std::string& path, std::string_view bytes, ZOLFileKind kind,
                        std::string* error = nullptr);

    // Whether the reader of `kind` opens the bytes as a file of that kind, with every alert
    // it would raise kept from the user.
    static bool readsBack(std::string_view bytes, ZOLFileKind kind);

    // What the user is told when a save was refused because the file would not open again.
    static constexpr const char* kUnreadableReason =
        "What would have been written could not be opened again, so the file was left as it "
        "was.";
};
