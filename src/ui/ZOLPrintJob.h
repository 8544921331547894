#pragma once
#include <QByteArray>
#include <QString>

class QPrinter;

// Hands a finished PDF to the printer the user chose in the print dialog, the way PDF viewers
// on this platform do: the print system takes PDF as it is, so the sheets stay vector text and
// artwork instead of page-sized bitmaps. Print to File writes the PDF itself.
class ZOLPrintJob {
public:
    ZOLPrintJob() = delete;

    // The copies, collation and sides of the printer go with the job (the page range is the
    // caller's: it is already applied to the PDF). False with the reason when the print system
    // or the file refused it.
    static bool submit(const QByteArray& pdf, const QPrinter& printer, const QString& title,
                       QString* error = nullptr);
};
