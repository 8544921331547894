#include "ui/ZOLPrintJob.h"

#include <QPrinter>
#include <QSaveFile>
#include <QTemporaryFile>

#include <cups/cups.h>

#include <string>
#include <vector>

namespace {

bool fail(QString* error, const QString& why) {
    if (error)
        *error = why;
    return false;
}

bool writeFile(const QByteArray& pdf, const QString& path, QString* error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.commit())
        return fail(error, file.errorString());
    return true;
}

const char* sides(QPrinter::DuplexMode mode) {
    switch (mode) {
    case QPrinter::DuplexNone:
        return "one-sided";
    case QPrinter::DuplexLongSide:
        return "two-sided-long-edge";
    case QPrinter::DuplexShortSide:
        return "two-sided-short-edge";
    case QPrinter::DuplexAuto:
        break;
    }
    return nullptr; // the printer's own default
}

} // namespace

bool ZOLPrintJob::submit(const QByteArray& pdf, const QPrinter& printer, const QString& title,
                         QString* error) {
    if (printer.outputFormat() == QPrinter::PdfFormat || !printer.outputFileName().isEmpty())
        return writeFile(pdf, printer.outputFileName(), error);

    QTemporaryFile file;
    if (!file.open() || file.write(pdf) != pdf.size() || !file.flush())
        return fail(error, file.errorString());

    std::vector<std::pair<std::string, std::string>> settings = {
        {"copies", std::to_string(printer.copyCount())},
        {"collate", printer.collateCopies() ? "true" : "false"},
        {"document-format", "application/pdf"},
    };
    if (const char* side = sides(printer.duplex()))
        settings.emplace_back("sides", side);
    if (printer.colorMode() == QPrinter::GrayScale)
        settings.emplace_back("print-color-mode", "monochrome");
    cups_option_t* options = nullptr;
    int count = 0;
    for (const auto& [name, value] : settings)
        count = cupsAddOption(name.c_str(), value.c_str(), count, &options);
    QByteArray destination = printer.printerName().toUtf8();
    if (destination.isEmpty())
        destination = cupsGetDefault();
    if (destination.isEmpty()) {
        cupsFreeOptions(count, options);
        return fail(error, QStringLiteral("No printer is set up."));
    }
    const QByteArray path = file.fileName().toLocal8Bit();
    const QByteArray jobTitle = title.toUtf8();
    // The print system copies the file into its spool before this returns.
    const int job = cupsPrintFile(destination.constData(), path.constData(), jobTitle.constData(),
                                  count, options);
    cupsFreeOptions(count, options);
    if (job == 0)
        return fail(error, QString::fromUtf8(cupsLastErrorString()));
    return true;
}
