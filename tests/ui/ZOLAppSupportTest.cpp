// The application's plumbing around the documents: recovery files, the Open Recent list, the
// preferences kept in QSettings, and the alert presenter's dialogs.
#include "ui/ZOLQtAlertPresenter.h"
#include "ui/ZOLRecentFiles.h"
#include "ui/ZOLRecoveryStore.h"
#include "ui/ZOLSettingsPreferences.h"

#include "UiTestSupport.h"

class ZOLAppSupportTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { useTestSettings("ZOLAppSupportTest"); }
    void init() { QSettings().clear(); }

    void recoveryFilesOutliveOnlyACrash() {
        QTemporaryDir dir;
        const QDir folder(dir.path());
        ZOLRecoveryStore store(dir.path());
        QString kept;
        {
            auto slot = store.createSlot();
            QVERIFY(slot->write("<Workbook/>"));
            kept = slot->path();
            QVERIFY(QFile::exists(kept));
            // This process owns it: it is no leftover.
            QVERIFY(store.orphans().empty());
        }
        // Closed normally: gone.
        QVERIFY(!QFile::exists(kept));

        // A crash leaves the file and a lock whose process no longer runs.
        writeAll(folder.filePath("recovery-crashed.zol"), "<Workbook/>");
        writeAll(folder.filePath("recovery-crashed.zol.lock"),
                 "2147483000\nzol-estimator\n" + QSysInfo::machineHostName().toUtf8() + "\n");
        writeAll(folder.filePath("recovery-nolock.zol"), "<Workbook></Workbook>");
        writeAll(folder.filePath("notes.txt"), "not a recovery file");

        auto orphans = store.orphans();
        QStringList paths;
        for (const auto& slot : orphans)
            paths << QFileInfo(slot->path()).fileName();
        paths.sort();
        QCOMPARE(paths, QStringList({"recovery-crashed.zol", "recovery-nolock.zol"}));
        QCOMPARE(orphans[0]->read().isEmpty(), false);
        // Taken over by this process, they are not offered twice.
        QVERIFY(store.orphans().empty());
        orphans.clear();
        QCOMPARE(folder.entryList(QDir::Files), QStringList{"notes.txt"});
    }

    void recentFilesListMostRecentFirstWithoutRepeats() {
        ZOLRecentFiles recent;
        QSignalSpy changed(&recent, &ZOLRecentFiles::changed);
        for (int i = 0; i < ZOLRecentFiles::kMaximum + 3; ++i)
            recent.add(QStringLiteral("/jobs/job%1.zol").arg(i));
        recent.add("/jobs/job5.zol");
        const QStringList files = recent.files();
        QCOMPARE(files.size(), ZOLRecentFiles::kMaximum);
        QCOMPARE(files.front(), QString("/jobs/job5.zol"));
        QCOMPARE(files.count("/jobs/job5.zol"), 1);
        QCOMPARE(files[1], QString("/jobs/job12.zol"));
        QVERIFY(!files.contains("/jobs/job0.zol"));
        QCOMPARE(changed.count(), ZOLRecentFiles::kMaximum + 4);

        // The menu numbers its entries and ends with Clear Menu; a file name's ampersand is
        // shown, not taken for a shortcut.
        recent.add("/jobs/Smith & Sons.zol");
        QMenu menu;
        recent.populate(&menu);
        QCOMPARE(menu.actions().front()->text(), QString("&1 Smith && Sons.zol"));
        QSignalSpy open(&recent, &ZOLRecentFiles::openRequested);
        menu.actions().front()->trigger();
        QCOMPARE(open.count(), 1);
        QCOMPARE(open.front().front().toString(), QString("/jobs/Smith & Sons.zol"));
        menu.actions().back()->trigger();
        QVERIFY(recent.files().isEmpty());
        recent.populate(&menu);
        QCOMPARE(menu.actions().size(), 1);
        QVERIFY(!menu.actions().front()->isEnabled());
    }

    void preferencesAndSettingsSurviveInQSettings() {
        ZOLSettingsPreferences preferences;
        QVERIFY(!preferences.boolForKey("PrintWall"));
        preferences.setBoolForKey("PrintWall", true);
        QVERIFY(ZOLSettingsPreferences().boolForKey("PrintWall"));

        QVERIFY(ZOLSettingsKeys::technicalBulletinsURL().startsWith("https://"));
        QSettings().setValue(ZOLSettingsKeys::kTechnicalBulletins, "https://example.org/tb");
        QCOMPARE(ZOLSettingsKeys::technicalBulletinsURL(), QString("https://example.org/tb"));
        QCOMPARE(ZOLSettingsKeys::autosaveDelaySeconds(), 15);
        QSettings().setValue(ZOLSettingsKeys::kAutosaveDelay, 0);
        QCOMPARE(ZOLSettingsKeys::autosaveDelaySeconds(), 15);
        QSettings().setValue(ZOLSettingsKeys::kAutosaveDelay, "3");
        QCOMPARE(ZOLSettingsKeys::autosaveDelaySeconds(), 3);
    }

    void presenterReturnsTheButtonChosenAndTheFieldsText() {
        ZOLQtAlertPresenter presenter;
        whenModalShows([](QWidget* box) {
            QVERIFY(qobject_cast<QMessageBox*>(box));
            QCOMPARE(static_cast<QMessageBox*>(box)->text(),
                     QString("Are you sure you want to delete this worksheet?"));
            titled<QPushButton>(box, "Cancel")->click();
        });
        QCOMPARE(presenter.present(
                     {"Are you sure you want to delete this worksheet?", "", {"OK", "Cancel"}}),
                 1);

        // Escape backs out through Cancel, wherever it stands.
        whenModalShows([](QWidget* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(presenter.present({"Save?", "", {"Save", "Don't Save", "Cancel"}}), 2);
        whenModalShows([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
        QCOMPARE(presenter.present({"Save?", "", {"Save", "Don't Save", "Cancel"}}), 0);

        // Fields hand back their text.
        std::string name = "Worksheet 1";
        whenModalShows([](QWidget* dialog) {
            auto* field = control<QLineEdit>(dialog, "alertField");
            QCOMPARE(field->text(), QString("Worksheet 1"));
            field->setText("Garage");
            QTest::keyClick(field, Qt::Key_Return);
        });
        QCOMPARE(presenter.presentWithField(
                     {"Enter a new name for this worksheet", "", {"OK", "Cancel"}}, name,
                     ZOLFieldAlertPresenter::Field::Line),
                 0);
        QCOMPARE(name, std::string("Garage"));

        std::string notes = "Pour on Monday";
        whenModalShows([](QWidget* dialog) {
            auto* text = control<QPlainTextEdit>(dialog, "alertText");
            QVERIFY(text->width() >= 400 && text->height() >= 400);
            text->setPlainText("Pour on Tuesday\nCall the pump");
            titled<QPushButton>(dialog, "Done")->click();
        });
        QCOMPARE(presenter.presentWithField({"Project Notes", "", {"Done", "Cancel"}}, notes,
                                            ZOLFieldAlertPresenter::Field::Text),
                 0);
        QCOMPARE(notes, std::string("Pour on Tuesday\nCall the pump"));

        whenModalShows([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        QCOMPARE(presenter.presentWithField({"Project Notes", "", {"Done", "Cancel"}}, notes,
                                            ZOLFieldAlertPresenter::Field::Text),
                 1);
    }
};

QTEST_MAIN(ZOLAppSupportTest)
#include "ZOLAppSupportTest.moc"
