// How long one keystroke takes from the key press to a repainted window: the document is built
// with the sample job, and keys are typed into a field of each entry tab and the project name.
// Prints the median, the 95th percentile and the slowest keystroke; a frame at 60 Hz is 16.7 ms.
#include "model/ZOLWorkbook.h"
#include "ui/ZOLDocument.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
struct Timing {
    double median, p95, worst;
};

// "changed": the event loop runs until the window has painted what the keystroke changed, as
// on screen; "whole": the whole window is then painted again as well, an upper bound.
Timing timeKeystrokes(ZOLDocument& document, QLineEdit* field, int rounds, bool wholeWindow) {
    std::vector<double> times;
    const QString keys = QStringLiteral("1234.5");
    for (int round = 0; round < rounds; ++round) {
        field->selectAll();
        for (QChar key : keys) {
            QElapsedTimer timer;
            timer.start();
            QTest::keyClick(field, key.toLatin1());
            QCoreApplication::processEvents();
            if (wholeWindow)
                document.repaint();
            times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times[times.size() * 95 / 100], times.back()};
}
} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ZOLDocument document;
    const QString sample = QStringLiteral(ZOL_SOURCE_DIR "/examples/sample-house.zol");
    if (!document.readFromFile(sample))
        std::fprintf(stderr, "typing: %s could not be read, timing a new workbook\n",
                     qPrintable(sample));
    document.resize(1280, 720);
    document.show();
    QCoreApplication::processEvents();

    struct Field {
        const char* label;
        const char* name;
        int tab;
        const char* screen;
    } fields[] = {
        {"wall length (Wall Entry tab)", "wallLength", 0, "ZOLWallEntryViewController"},
        {"footing length (Concrete tab)", "footingLength", 5, "ZOLConcreteEntryViewController"},
        {"wall length (Rebar tab)", "wallLength", 6, "ZOLRebarEntryViewController"},
        {"wall length (Tilt-Up tab)", "wallLength", 7, "ZOLTiltEntryViewController"},
        {"sq ft of wall (Man-Hours tab)", "sqftWall", 8, "ZOLManHoursEntryViewController"},
        {"project name (header)", "projectName", -1, ""}};
    for (const Field& entry : fields) {
        if (entry.tab >= 0)
            document.tabView()->setCurrentIndex(entry.tab);
        // The wall info tab shows the wall length too; the field typed into is the entry's.
        QWidget* screen = entry.tab >= 0 ? document.screenNamed(entry.screen) : &document;
        auto* field = screen ? screen->findChild<QLineEdit*>(entry.name) : nullptr;
        if (!field) {
            std::printf("%-32s  (no such field)\n", entry.label);
            continue;
        }
        field->setFocus();
        timeKeystrokes(document, field, 5, false); // warm up
        for (bool whole : {false, true}) {
            const Timing timing = timeKeystrokes(document, field, 50, whole);
            std::printf("%-30s %-8s median %6.3f ms   p95 %6.3f ms   slowest %6.3f ms\n",
                        entry.label, whole ? "whole" : "changed", timing.median, timing.p95,
                        timing.worst);
        }
        std::printf("%-30s field now shows \"%s\"\n", entry.label, qPrintable(field->text()));
    }
    return 0;
}
