#include "ui/ZOLRecoveryStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>

namespace {
const char* kPrefix = "recovery-";
const char* kSuffix = ".zol";

QString lockPathFor(const QString& path) {
    return path + QStringLiteral(".lock");
}
} // namespace

ZOLRecoverySlot::ZOLRecoverySlot(QString path, std::unique_ptr<QLockFile> lock)
    : path_(std::move(path)), lock_(std::move(lock)) {}

ZOLRecoverySlot::~ZOLRecoverySlot() {
    discard();
}

namespace {
QString snapshotPathFor(const QString& path) {
    return path + QStringLiteral(".job");
}

bool writeWhole(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(bytes) != bytes.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

QByteArray readWhole(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}
} // namespace

bool ZOLRecoverySlot::write(const QByteArray& bytes, const QByteArray& snapshot) {
    QDir().mkpath(QFileInfo(path_).absolutePath());
    // The snapshot first: a crash between the two then leaves newer notes beside an older
    // workbook, never a workbook without its notes.
    if (!snapshot.isEmpty() && !writeWhole(snapshotPathFor(path_), snapshot))
        return false;
    return writeWhole(path_, bytes);
}

QByteArray ZOLRecoverySlot::read() const {
    return readWhole(path_);
}

QByteArray ZOLRecoverySlot::readSnapshot() const {
    return readWhole(snapshotPathFor(path_));
}

void ZOLRecoverySlot::discard() {
    if (path_.isEmpty())
        return;
    QFile::remove(path_);
    QFile::remove(snapshotPathFor(path_));
    if (lock_)
        lock_->unlock();
    lock_.reset();
    path_.clear();
}

ZOLRecoveryStore::ZOLRecoveryStore(QString directory) : directory_(std::move(directory)) {}

QString ZOLRecoveryStore::defaultDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/Recovery");
}

std::unique_ptr<ZOLRecoverySlot> ZOLRecoveryStore::createSlot() const {
    QDir().mkpath(directory_);
    const QString name = QString::fromLatin1(kPrefix) +
                         QUuid::createUuid().toString(QUuid::WithoutBraces) +
                         QString::fromLatin1(kSuffix);
    const QString path = QDir(directory_).filePath(name);
    auto lock = std::make_unique<QLockFile>(lockPathFor(path));
    // Without a lock the slot still works; a second copy of the program might then offer the
    // file back while this one runs, which is a nuisance, not a loss.
    if (!lock->tryLock(0))
        lock.reset();
    return std::make_unique<ZOLRecoverySlot>(path, std::move(lock));
}

std::vector<std::unique_ptr<ZOLRecoverySlot>> ZOLRecoveryStore::orphans() const {
    QDir dir(directory_);
    const QFileInfoList entries =
        dir.entryInfoList({QString::fromLatin1(kPrefix) + "*" + QString::fromLatin1(kSuffix)},
                          QDir::Files, QDir::Time | QDir::Reversed);
    std::vector<std::unique_ptr<ZOLRecoverySlot>> found;
    for (const QFileInfo& entry : entries) {
        auto lock = std::make_unique<QLockFile>(lockPathFor(entry.absoluteFilePath()));
        // A lock whose process is gone is stale and is taken over; a live one is another
        // running copy's.
        if (!lock->tryLock(0))
            continue;
        found.push_back(
            std::make_unique<ZOLRecoverySlot>(entry.absoluteFilePath(), std::move(lock)));
    }
    return found;
}
