#pragma once
#include <string_view>

// The check every opened file passes before its XML is parsed: the bytes must be something a
// text importer would take as a document, so that an image, an archive or an empty file is
// turned away as "the wrong format" instead of reaching the XML reader.
//
// Accepted: text in UTF-16 with a byte-order mark (an even number of bytes after it), or any
// other non-empty run of bytes free of NUL characters (UTF-8 with or without a byte-order
// mark, or an 8-bit encoding the XML declaration names). Whether the text is the right XML is
// left to the reader, which has its own alert for that. Every file the program writes passes.
class ZOLReadCheck {
public:
    ZOLReadCheck() = delete;

    static bool acceptsData(std::string_view bytes);

    // What every reader says when a file's XML cannot be read.
    static constexpr const char* kOpenErrorMessage = "There was an error opening the file.";
    // What the price list window and the job summary screen say when a file is refused.
    static constexpr const char* kWrongFormatMessage =
        "There was an error opening the file. The file may be corrupted or of the wrong format.";
};
