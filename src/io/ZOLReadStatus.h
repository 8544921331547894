#pragma once

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
