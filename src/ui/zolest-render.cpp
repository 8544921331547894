// zolest-render: the PDF half of `zolest report`. zolest builds the report text with the core
// alone and hands it to this helper, which lays it out and prints it to PDF with the same
// renderer as the desktop application. It never shows a window and needs no display.
//
//   zolest-render [--resources DIR] INPUT.html OUTPUT.pdf     ("-" reads stdin / writes stdout)
//
// Exit codes: 0 written, 1 the report could not be read, rendered or written, 2 usage.
#include "report/ZOLPrintData.h"
#include "ui/ZOLReportRenderer.h"

#include <QApplication>
#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// The browser engine reports its set-up (graphics back end, start-up flags, no GPU without a
// display) as information and warnings; a command-line helper keeps stderr for real trouble.
// ZOL_RENDER_DEBUG=1 shows everything.
void quietMessages(QtMsgType type, const QMessageLogContext&, const QString& message) {
    static const bool verbose = !qEnvironmentVariableIsEmpty("ZOL_RENDER_DEBUG");
    if (!verbose && (type == QtDebugMsg || type == QtInfoMsg || type == QtWarningMsg))
        return;
    std::fprintf(stderr, "zolest-render: %s\n", message.toLocal8Bit().constData());
}

int usage() {
    std::cerr << "usage: zolest-render [--resources DIR] INPUT.html OUTPUT.pdf\n"
                 "  '-' as INPUT reads the report from stdin, as OUTPUT writes the PDF to stdout\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    std::string resources = ZOLPrintData::resourcesDirectory();
    std::vector<std::string> files;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--resources" && i + 1 < args.size())
            resources = args[++i];
        else if (args[i] == "-h" || args[i] == "--help")
            return usage(), 0;
        else if (args[i].size() > 1 && args[i][0] == '-')
            return usage();
        else
            files.push_back(args[i]);
    }
    if (files.size() != 2)
        return usage();

    // With the PDF going to stdout, anything else that would print there (the engine, its
    // helper processes) goes to stderr instead, so that the PDF arrives clean.
    int pdfOut = -1;
    if (files[1] == "-") {
        pdfOut = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
        ::dup2(STDERR_FILENO, STDOUT_FILENO);
    }

    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietMessages);
    ZOLReportRenderer::prepareApplication();
    int qtArgc = 1;
    char* qtArgv[] = {argv[0], nullptr};
    QApplication app(qtArgc, qtArgv);

    QByteArray input;
    if (files[0] == "-") {
        std::string text((std::istreambuf_iterator<char>(std::cin)),
                         std::istreambuf_iterator<char>());
        input = QByteArray::fromStdString(text);
    } else {
        QFile file(QString::fromStdString(files[0]));
        if (!file.open(QIODevice::ReadOnly)) {
            std::cerr << "zolest-render: cannot read " << files[0] << ": "
                      << file.errorString().toStdString() << "\n";
            return 1;
        }
        input = file.readAll();
    }

    ZOLReportRenderer renderer(QString::fromStdString(resources));
    QString error;
    const QByteArray pdf = renderer.renderPdfAndWait(input.toStdString(), &error);
    if (pdf.isEmpty()) {
        std::cerr << "zolest-render: " << error.toStdString() << "\n";
        return 1;
    }
    if (pdfOut >= 0) {
        qsizetype done = 0;
        while (done < pdf.size()) {
            const ssize_t n = ::write(pdfOut, pdf.constData() + done,
                                      static_cast<std::size_t>(pdf.size() - done));
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0) {
                std::cerr << "zolest-render: cannot write the PDF: " << std::strerror(errno)
                          << "\n";
                return 1;
            }
            done += n;
        }
        ::close(pdfOut);
        return 0;
    }
    QSaveFile out(QString::fromStdString(files[1]));
    if (!out.open(QIODevice::WriteOnly) || out.write(pdf) != pdf.size() || !out.commit()) {
        std::cerr << "zolest-render: cannot write " << files[1] << ": "
                  << out.errorString().toStdString() << "\n";
        return 1;
    }
    return 0;
}
