#include "ui/ZOLDocumentController.h"

#include "platform/ZOLAlerts.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLRecentFiles.h"
#include "ui/ZOLRecoveryStore.h"

#include <QApplication>
#include <QFileInfo>

ZOLDocumentController::ZOLDocumentController(QObject* parent)
    : QObject(parent), recentFiles_(new ZOLRecentFiles(this)),
      recoveryStore_(std::make_unique<ZOLRecoveryStore>()) {
    connect(recentFiles_, &ZOLRecentFiles::openRequested, this, [this](const QString& path) {
        if (!openDocument(path) && !QFileInfo::exists(path))
            recentFiles_->remove(path);
    });
}

ZOLDocumentController::~ZOLDocumentController() = default;

void ZOLDocumentController::setRecoveryDirectory(const QString& directory) {
    recoveryStore_ = std::make_unique<ZOLRecoveryStore>(directory);
}

int ZOLDocumentController::nextUntitledNumber() {
    // The lowest number no untitled window uses, as users know it from other programs.
    int number = 1;
    for (;;) {
        bool taken = false;
        for (ZOLDocument* document : documents())
            if (document->filePath().isEmpty() &&
                document->displayName() ==
                    (number == 1 ? tr("Untitled") : tr("Untitled %1").arg(number)))
                taken = true;
        if (!taken)
            return number;
        ++number;
    }
}

ZOLDocument* ZOLDocumentController::track(ZOLDocument* document) {
    documents_.append(document);
    connect(document, &QObject::destroyed, this, [this] { documents_.removeAll(nullptr); });
    return document;
}

QList<ZOLDocument*> ZOLDocumentController::documents() const {
    QList<ZOLDocument*> live;
    for (const auto& document : documents_)
        if (document)
            live.append(document);
    return live;
}

ZOLDocument* ZOLDocumentController::newDocument() {
    auto* document = track(new ZOLDocument(this));
    document->show();
    return document;
}

ZOLDocument* ZOLDocumentController::openDocument(const QString& path) {
    const QString canonical = QFileInfo(path).absoluteFilePath();
    for (ZOLDocument* document : documents())
        if (!document->filePath().isEmpty() &&
            QFileInfo(document->filePath()) == QFileInfo(canonical)) {
            document->show();
            document->raise();
            document->activateWindow();
            return document;
        }
    auto* document = new ZOLDocument(this);
    if (!document->readFromFile(canonical)) {
        // Nothing of the failed file is shown.
        document->setAttribute(Qt::WA_DeleteOnClose, false);
        delete document;
        return nullptr;
    }
    track(document);
    document->show();
    return document;
}

QList<ZOLDocument*> ZOLDocumentController::openDocuments(const QStringList& paths) {
    QList<ZOLDocument*> opened;
    for (const QString& path : paths)
        if (ZOLDocument* document = openDocument(path))
            opened.append(document);
    return opened;
}

void ZOLDocumentController::openWithPanel(QWidget* parent) {
    openDocuments(ZOLFilePanels::openFiles(parent, tr("Open Workbook"), "zol"));
}

int ZOLDocumentController::offerRecovery() {
    auto orphans = recoveryStore_->orphans();
    if (orphans.empty())
        return 0;
    const std::string message =
        orphans.size() == 1
            ? "Zol Estimator quit unexpectedly while an untitled workbook had unsaved changes."
            : "Zol Estimator quit unexpectedly while " + std::to_string(orphans.size()) +
                  " untitled workbooks had unsaved changes.";
    const char* advice = orphans.size() == 1 ? "Reopen it to keep your work, or discard it."
                                             : "Reopen them to keep your work, or discard them.";
    const int answer = ZOLAlerts::run(message, advice, {"Reopen", "Discard"});
    if (answer != 0)
        return 0; // the slots remove their files as they go
    int reopened = 0;
    for (auto& slot : orphans) {
        auto* document = new ZOLDocument(this);
        if (!document->restoreFromRecovery(std::move(slot))) {
            document->setAttribute(Qt::WA_DeleteOnClose, false);
            delete document;
            continue;
        }
        track(document)->show();
        ++reopened;
    }
    return reopened;
}

bool ZOLDocumentController::closeAll() {
    for (ZOLDocument* document : documents())
        if (!document->close())
            return false;
    return true;
}

void ZOLDocumentController::quit() {
    if (closeAll())
        QApplication::quit();
}
