#pragma once
#include <cstdint>

// How reading a workbook, price or template file ended.
enum class ZOLReadStatus {
    // The file was read (its alerts, if any, have been shown).
    Read,
    // The bytes are not a text document at all; nothing was parsed.
    Refused,
    // The XML could not be parsed (or went beyond what a reader will hold); the reader has
    // shown the alert "There was an error opening the file.".
    ParseError,
};

// Where the parser stopped in a file it could not read: line and column, both counted from 1,
// or 0 when the file was turned away before its XML was parsed.
struct ZOLReadPosition {
    int32_t line = 0;
    int32_t column = 0;
    bool known() const { return line > 0; }
};
