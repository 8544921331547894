// The job document without a window: autosave into the file, Revert, and the edited
// state that follows the job rather than the keystrokes. (Untitled work's recovery slot is
// pinned through the window's controller.)
#include "ui/ZOLJobDocument.h"
#include "UiTestSupport.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

#include <QSignalSpy>

class ZOLJobDocumentTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    static void setLength(ZOLJobDocument& document, double length) {
        document.workbook()->worksheets()[0]->wallData()->setWallLength(length);
        document.noteEdit();
    }
    static double length(const ZOLJobDocument& document) {
        return document.workbook()->worksheets()[0]->wallData()->wallLength();
    }

private slots:
    void initTestCase() { useTestSettings("ZOLJobDocumentTest"); }

    void autosaveAndRevertKeepTheFileAsSaved() {
        const QString path = dir_.filePath("house.zol");
        ZOLJobDocument document;
        document.setSnapshotDirectory(dir_.filePath("snapshots"));
        QSignalSpy edited(&document, &ZOLJobDocument::editedChanged);
        QVERIFY(document.saveToFile(path));
        const QByteArray saved = readAll(path);

        setLength(document, 33.0);
        QCOMPARE(edited.size(), 1);
        document.autosave();
        QVERIFY(readAll(path).contains("<WallLength>33.000000</WallLength>"));
        QVERIFY(document.isDocumentEdited());
        QCOMPARE(document.savedFileBytes(), saved);

        // Revert takes back a new workbook read from what the user saved.
        QSignalSpy replaced(&document, &ZOLJobDocument::workbookReplaced);
        QVERIFY(document.revertToSaved());
        QCOMPARE(replaced.size(), 1);
        QCOMPARE(length(document), 0.0);
        QCOMPARE(readAll(path), saved);
        QVERIFY(!document.isDocumentEdited());

        // Typing back to the saved value is no edit and puts the file back at once.
        setLength(document, 44.0);
        document.autosave();
        setLength(document, 0.0);
        QVERIFY(!document.isDocumentEdited());
        QCOMPARE(readAll(path), saved);
        // Don't Save puts the file back too: pinned through the window's question.
    }
};

QTEST_MAIN(ZOLJobDocumentTest)
#include "ZOLJobDocumentTest.moc"
