#pragma once
#include "io/ZOLReadStatus.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

enum class ZOLFileKind;

// The one place the application tells the user that a workbook, price list or template could
// not be opened or saved. The readers raise their own alert for XML they cannot read ("There was
// an error opening the file."), and the price and template readers for bytes that are no
// document at all; what is left to the application is said here, by the kind of file:
// - a workbook the system will not give, or whose bytes are no document, gets the system's
//   "The file … couldn’t be opened." with the reason;
// - a price list or template the system will not give is as foreign as one of the wrong format;
// - a price list or template that could not be written is reported with the reason.
class ZOLFileAlerts {
public:
    ZOLFileAlerts() = delete;

    // The bytes of the file, or nothing after the alert of its kind.
    static std::optional<std::string> readFile(const QString& path, ZOLFileKind kind);

    // Whether the read gave the file's content; when it did not, the user hears why (once:
    // nothing is added to an alert the reader has raised). `path` may also be the name the
    // user knows a file by ("house.zol as last saved").
    static bool accepted(const QString& path, ZOLFileKind kind, ZOLReadStatus status);

    // Saves a price list or template; a save that failed, or was refused because the file
    // would not open again, is reported as `failure` ("The price list could not be saved.")
    // with the reason.
    static bool writeFile(const QString& path, std::string_view bytes, ZOLFileKind kind,
                          const char* failure);

    // "The file “house.zol” couldn’t be opened."
    static QString cannotOpen(const QString& path);
};
