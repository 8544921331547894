#pragma once
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

class QWidget;
class ZOLDocument;
class ZOLRecentFiles;
class ZOLRecoveryStore;

// The application's side of the documents: it makes new ones, opens files (each in a window of
// its own, or brings forward the window that already shows the file), keeps the Open Recent
// list, offers back the workbooks a crash left unsaved, and quits only when every window agrees.
class ZOLDocumentController : public QObject {
    Q_OBJECT

public:
    explicit ZOLDocumentController(QObject* parent = nullptr);
    ~ZOLDocumentController() override;

    ZOLDocument* newDocument();
    // The window of the file, or nullptr after the alert when it cannot be read.
    ZOLDocument* openDocument(const QString& path);
    QList<ZOLDocument*> openDocuments(const QStringList& paths);
    void openWithPanel(QWidget* parent);

    QList<ZOLDocument*> documents() const;
    ZOLRecentFiles* recentFiles() const { return recentFiles_; }
    ZOLRecoveryStore& recoveryStore() { return *recoveryStore_; }
    void setRecoveryDirectory(const QString& directory);
    int nextUntitledNumber();

    // Offers to reopen the untitled workbooks that a crash left behind; returns how many were
    // reopened.
    int offerRecovery();

public slots:
    // Closes every window, each asking about its unsaved changes; stops at the first Cancel.
    bool closeAll();
    void quit();

private:
    ZOLDocument* track(ZOLDocument* document);

    QList<QPointer<ZOLDocument>> documents_;
    ZOLRecentFiles* recentFiles_;
    std::unique_ptr<ZOLRecoveryStore> recoveryStore_;
};
