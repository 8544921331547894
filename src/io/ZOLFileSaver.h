#pragma once
#include <string>
#include <string_view>

// The three kinds of file the program writes, each with its own reader.
enum class ZOLFileKind { Workbook, PriceList, Template };

// Saving a workbook, price file or template so that a readable file is never replaced by one
// that cannot be opened again: the bytes are written to a temporary file, read back from it by
// the reader of their kind (the open check included, no alert shown), and only then renamed
// over the old file.
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
