#pragma once
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

enum class ZOLFileKind;

class QWidget;

// The open and save panels of the application, restricted to one file type and starting in the
// folder the user last used. Tests answer them through a script instead of a person.
class ZOLFilePanels {
public:
    ZOLFilePanels() = delete;

    enum class Kind { Open, OpenMany, Save };
    struct Request {
        Kind kind;
        QString title;
        QString suffix;        // "zol", "zp", "zci", "pdf"
        QString suggestedName; // save panels only
    };

    // The chosen paths; empty when the user cancelled.
    static QStringList openFiles(QWidget* parent, const QString& title, const QString& suffix);
    static QString openFile(QWidget* parent, const QString& title, const QString& suffix);
    // The save panel appends the suffix when the user typed a name without it.
    static QString saveFile(QWidget* parent, const QString& title, const QString& suffix,
                            const QString& suggestedName);

    // The bytes of a file chosen in an open panel. A file that cannot be read at all (a folder,
    // no permission) is as foreign as one of the wrong format: it gets that alert and gives
    // nothing. Whether the bytes are the right format is left to the file's reader.
    static std::optional<std::string> readChosenFile(const QString& path);

    // Writes a price list or template to a path chosen in a save panel. A failed write is not
    // reported; bytes that would not open again are not written at all, and the user is told
    // with `refusal` ("The price list could not be saved.").
    static void writeChosenFile(const QString& path, std::string_view bytes, ZOLFileKind kind,
                                const char* refusal);

    using Script = std::function<QStringList(const Request&)>;
    static void setScript(Script script);

    static QString filterFor(const QString& suffix);
};
