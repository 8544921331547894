#pragma once
#include <QByteArray>
#include <QObject>
#include <QPageRanges>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <string>

class QPrinter;
class QWebEnginePage;
class QWebEngineProfile;

// Turns the report text into printed sheets: loads it into a page that is never shown, with the
// program's resources folder as its base address, and writes a PDF or prints through a
// QPrinter. The report inserts the user's texts (names, notes) as they were typed, so a workbook
// received from someone else may hold markup: the page runs no script, follows no link and
// loads nothing but the program's own resources; every other request is refused and logged.
//
// Used by zolest (through zolest-render) and by the desktop application's Print and Export PDF.
class ZOLReportRenderer : public QObject {
    Q_OBJECT

public:
    // Call once in main(), before the QApplication exists. Turns off the browser sandbox when
    // running as root (it refuses to start otherwise), asks for software drawing when there is
    // no display, and registers the address scheme the report is served from.
    static void prepareApplication();

    // resourcesDirectory: the folder whose files the report may load (its background).
    explicit ZOLReportRenderer(const QString& resourcesDirectory, QObject* parent = nullptr);
    ~ZOLReportRenderer() override;

    // The report as the page loads it: the report text unchanged, with print rules of the
    // renderer's own after it, so that each page div fills exactly one sheet and a long report
    // does not drift across sheets (a page div is 27.9 cm, a Letter sheet 27.94 cm).
    static QByteArray printableHtml(const std::string& reportHtml);
    // A printer for the report's sheets: US Letter with no margins, since the pages carry their
    // own. The print panel may still change it.
    static std::unique_ptr<QPrinter> letterPrinter(const QString& documentName);

    // Loads the report and makes a PDF of US Letter sheets with no margins, of the given pages
    // only (numbered from 1) when there are any. The callback gets the PDF, or an empty array and
    // a message when loading or printing failed or the user cancelled.
    void renderPdf(const std::string& reportHtml,
                   std::function<void(const QByteArray& pdf, const QString& error)> done,
                   const QPageRanges& pages = {});
    // Prints the very PDF that Export PDF writes on the printer the user chose, with its copies
    // and page range; Print to File writes that PDF.
    void print(const std::string& reportHtml, QPrinter* printer,
               std::function<void(bool ok, const QString& error)> done);

    // Stops the report under way: its callback is called at once as failed, and wasCancelled()
    // tells why until the next report starts.
    void cancel();
    bool wasCancelled() const;
    bool isBusy() const;

    // The same, waiting in a local event loop. writePdf replaces the file atomically: a failed
    // render leaves whatever was at the path.
    QByteArray renderPdfAndWait(const std::string& reportHtml, QString* error = nullptr);
    bool writePdf(const std::string& reportHtml, const QString& path, QString* error = nullptr);

    // Every address the page asked for and was refused, in order.
    QStringList blockedRequests() const;
    // The page that holds the report (for tests and for the desktop application's preview).
    QWebEnginePage* page() const;

private:
    void load(const std::string& reportHtml, std::function<void(bool ok)> loaded);

    struct Private;
    std::unique_ptr<Private> d;
};
