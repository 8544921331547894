// The job document without a window: autosave into the file and into a recovery slot, Revert,
// Don't Save, and the edited state that follows the job rather than the keystrokes.
#include "ui/ZOLJobDocument.h"
#include "UiTestSupport.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "ui/ZOLRecoveryStore.h"

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

    void autosaveRevertAndDontSaveKeepTheFileAsSaved() {
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

        setLength(document, 55.0);
        document.autosave();
        document.discardChanges();
        QCOMPARE(readAll(path), saved);
    }

    void untitledWorkIsAutosavedToItsRecoverySlot() {
        const ZOLRecoveryStore store(dir_.filePath("recovery"));
        ZOLJobDocument document;
        document.setRecoverySlotMaker([&store] { return store.createSlot(); });
        document.autosave(); // nothing edited, nothing written
        QVERIFY(QDir(store.directory()).entryList({"*.zol"}, QDir::Files).isEmpty());

        setLength(document, 12.0);
        document.workbook()->setNotes(std::string("Pour Monday"));
        document.autosave();
        const QStringList files = QDir(store.directory()).entryList({"*.zol"}, QDir::Files);
        QCOMPARE(files.size(), 1);

        // A second document adopts what the first left, as unsaved changes.
        const QString leftover = QDir(store.directory()).filePath(files.front());
        for (const char* suffix : {"", ".job"})
            QVERIFY(QFile::copy(leftover + suffix, dir_.filePath("copy.zol") + suffix));
        document.close();
        QVERIFY(QDir(store.directory()).entryList({"*.zol"}, QDir::Files).isEmpty());

        ZOLJobDocument restored;
        QVERIFY(restored.restoreFromRecovery(
            std::make_unique<ZOLRecoverySlot>(dir_.filePath("copy.zol"), nullptr)));
        QCOMPARE(length(restored), 12.0);
        QCOMPARE(restored.workbook()->notes().value_or(""), std::string("Pour Monday"));
        QVERIFY(restored.isDocumentEdited());
        QVERIFY(restored.filePath().isEmpty());
        QCOMPARE(restored.displayName(), QString("Untitled"));
    }
};

QTEST_MAIN(ZOLJobDocumentTest)
#include "ZOLJobDocumentTest.moc"
