#pragma once
// What the window tests share: files, modal windows answered once they show, typing and choosing
// as a user does, and an alert recorder that also answers the alerts with a text field.
#include "support/AlertRecorder.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLFieldAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLInfoPopup.h"
#include "ui/ZOLReportRenderer.h"

#include <QtTest>
#include <QtWidgets>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

// Settings and standard folders of the test's own, never the user's.
inline void useTestSettings(const char* application) {
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setOrganizationName("Zol Blocks Test");
    QApplication::setApplicationName(application);
}

inline QByteArray readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeAll(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// Runs `act` on the next modal window once it shows (the next one of that name, if given).
inline void whenModalShows(std::function<void(QWidget*)> act, const QString& name = {}) {
    auto* timer = new QTimer(qApp);
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, act, name] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || (!name.isEmpty() && modal->objectName() != name))
            return;
        timer->stop();
        timer->deleteLater();
        act(modal);
    });
    timer->start();
}

// The button or menu command that reads `title`.
template <typename T> T* titled(const QObject* parent, const QString& title) {
    for (auto* child : parent->findChildren<T*>())
        if (child->text() == title)
            return child;
    return nullptr;
}

// The illustration the information pop-up opened by `act` asked for ("none" without one).
inline QString illustrationAfter(const std::function<void()>& act) {
    QString shown = "not opened";
    whenModalShows([&shown](QWidget* modal) {
        auto* popup = qobject_cast<ZOLInfoPopup*>(modal);
        shown = popup && popup->imageName() ? QString::fromStdString(*popup->imageName())
                                            : QString("none");
        modal->close();
    });
    act();
    return shown;
}

template <typename T> T* control(const QObject* parent, const QString& name) {
    T* widget = parent->findChild<T*>(name);
    if (!widget)
        qFatal("no control %s", qPrintable(name));
    return widget;
}

// Checks the texts of named fields, given as "name=text|name=text", naming the one that differs.
inline void expectTexts(const QObject* parent, const QString& texts) {
    for (const QString& expected : texts.split('|')) {
        const QString name = expected.section('=', 0, 0);
        QCOMPARE(name + "=" + control<QLineEdit>(parent, name)->text(), expected);
    }
}

// Replaces a field's text by typing, one keystroke at a time, as a user would.
inline void type(QLineEdit* edit, const QString& keys) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, keys);
}

// What the combo box's pop-up does when the user picks an item.
inline void choose(QComboBox* combo, int index) {
    combo->setCurrentIndex(index);
    emit combo->activated(index);
}

// What a table cell holds in `role`, as the view paints it.
inline QVariant cellData(const QTableView* table, int row, int column, int role = Qt::DisplayRole) {
    return table->model()->index(row, column).data(role);
}

inline QString cellText(const QTableView* table, int row, int column) {
    return cellData(table, row, column).toString();
}

inline Qt::ItemFlags cellFlags(const QTableView* table, int row, int column) {
    return table->model()->flags(table->model()->index(row, column));
}

inline int rowCount(const QTableView* table) {
    return table->model()->rowCount();
}

// Edits a table cell as a user does: open the editor, type, press Return.
inline void typeInCell(QTableView* table, int row, int column, const QString& keys) {
    const QModelIndex cell = table->model()->index(row, column);
    table->setCurrentIndex(cell);
    table->edit(cell);
    QLineEdit* editor = nullptr;
    for (auto* candidate : table->viewport()->findChildren<QLineEdit*>())
        if (candidate->isVisible())
            editor = candidate; // an earlier cell's editor may still wait to be deleted
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, keys);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents(); // the table commits the edit from its event queue
}

inline Qt::CheckState cellCheckState(const QTableView* table, int row, int column) {
    return static_cast<Qt::CheckState>(cellData(table, row, column, Qt::CheckStateRole).toInt());
}

// Ticks or clears a table cell's box as a click on it does.
inline void setCellCheckState(QTableView* table, int row, int column, Qt::CheckState state) {
    table->model()->setData(table->model()->index(row, column), state, Qt::CheckStateRole);
}

// The number of sheets pdfinfo counts in a PDF file; -1 when it cannot tell.
inline int sheetCount(const QString& path) {
    QProcess pdfinfo;
    pdfinfo.start(QStringLiteral("pdfinfo"), {path});
    if (!pdfinfo.waitForFinished(30000) || pdfinfo.exitCode() != 0)
        return -1;
    const auto match = QRegularExpression(QStringLiteral("^Pages:\\s+(\\d+)$"),
                                          QRegularExpression::MultilineOption)
                           .match(QString::fromUtf8(pdfinfo.readAllStandardOutput()));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

// Answers the save and open panels with the paths given, in order, and records what they
// were asked for ("title *.suffix").
class ScriptedPanels {
public:
    explicit ScriptedPanels(QStringList answers) : answers_(std::move(answers)) {
        ZOLFilePanels::setScript([this](const ZOLFilePanels::Request& request) {
            requests.append(request.title + " *." + request.suffix);
            return answers_.isEmpty() ? QStringList() : QStringList{answers_.takeFirst()};
        });
    }
    ~ScriptedPanels() { ZOLFilePanels::setScript({}); }
    QStringList requests;

private:
    QStringList answers_;
};

// An alert in one line: "message [button|button] informative text".
inline QString alertText(const ZOLAlert& alert) {
    QStringList buttons;
    for (const auto& button : alert.buttons)
        buttons << QString::fromStdString(button);
    return QString::fromStdString(alert.message) + " [" + buttons.join('|') + "] " +
           QString::fromStdString(alert.informativeText);
}

// What a screen's test shares: the screen, made afresh by each test's init(), and its controls.
template <class Screen> class ScreenTest : public QObject {
protected:
    std::unique_ptr<Screen> screen;

    // The screen as the document shows it: made, handed its records by `hand`, loaded and shown.
    void showScreen(const std::function<void(Screen&)>& hand) {
        screen = std::make_unique<Screen>();
        hand(*screen);
        screen->loadValues();
        screen->show();
        if (!QTest::qWaitForWindowExposed(screen.get()))
            qFatal("the screen did not show");
    }
    template <typename T> T* control(const QString& name) const {
        return ::control<T>(screen.get(), name);
    }
    template <typename T> static T* control(const QObject* parent, const QString& name) {
        return ::control<T>(parent, name);
    }
    QLineEdit* field(const QString& name) const { return control<QLineEdit>(name); }
    QComboBox* box(const QString& name) const { return control<QComboBox>(name); }

    // Hands the screen `wall` and runs its pull command, which says it took the wall's facts.
    template <class Wall> void pullFrom(std::shared_ptr<Wall> wall, void (Screen::*pull)()) {
        ScopedAlertRecorder alerts;
        screen->setWallData(wall);
        (screen.get()->*pull)();
        QCOMPARE(alertText(alerts->alerts.back()), QString("Wall data retrieved. [OK] "));
    }
};

// Records every alert and answers with the scripted buttons; a field alert also records the text
// it was shown with and gets the scripted text typed into it.
class FieldAlertRecorder : public AlertRecorder, public ZOLFieldAlertPresenter {
public:
    int presentWithField(const ZOLAlert& alert, std::string& text, Field) override {
        shownTexts.push_back(text);
        if (!texts.empty()) {
            text = texts.front();
            texts.pop_front();
        }
        return present(alert);
    }
    // Answers the next alerts in order: a button index, and for a field alert the text typed.
    void answer(int button, std::optional<std::string> text = {}) {
        answers.push_back(button);
        if (text)
            texts.push_back(*text);
    }
    QString last() const { return alertText(alerts.back()); }
    std::deque<std::string> texts;
    std::vector<std::string> shownTexts;
};

// A test object's field alert recorder, installed while the object lives; renew() in init()
// starts each test with no alerts and no answers.
class FieldAlerts {
public:
    FieldAlerts() : previous_(ZOLAlerts::setPresenter(recorder_)) {}
    ~FieldAlerts() { ZOLAlerts::setPresenter(previous_); }
    FieldAlerts(const FieldAlerts&) = delete;
    FieldAlerts& operator=(const FieldAlerts&) = delete;
    void renew() { *recorder_ = FieldAlertRecorder(); }
    FieldAlertRecorder* operator->() { return recorder_.get(); }

private:
    std::shared_ptr<FieldAlertRecorder> recorder_ = std::make_shared<FieldAlertRecorder>();
    std::shared_ptr<ZOLAlertPresenter> previous_;
};

// A copy of the sample house at `path`, replacing an earlier one.
inline QString sampleHouseCopy(const QString& path) {
    QFile::remove(path);
    if (!QFile::copy(ZOL_SOURCE_DIR "/examples/sample-house.zol", path))
        qFatal("the sample could not be copied");
    return path;
}

// A document window opened on `path`, with this computer's snapshots kept beside the file.
inline std::unique_ptr<ZOLDocument> openedDocument(const QString& path) {
    auto document = std::make_unique<ZOLDocument>();
    document->setSnapshotDirectory(QFileInfo(path).dir().filePath("snapshots"));
    if (!document->readFromFile(path))
        qFatal("%s did not open", qPrintable(path));
    return document;
}

// The main of a test that renders reports: the web engine is set up before the application.
#define ZOL_RENDERER_TEST_MAIN(TestClass)                                                          \
    int main(int argc, char** argv) {                                                              \
        ZOLReportRenderer::prepareApplication();                                                   \
        QApplication app(argc, argv);                                                              \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
