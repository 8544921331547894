#pragma once
#include <QString>
#include <QStringList>

#include <functional>

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

    using Script = std::function<QStringList(const Request&)>;
    static void setScript(Script script);

    static QString filterFor(const QString& suffix);
};
