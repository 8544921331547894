#include "ui/ZOLSnapshotStore.h"

#include "io/ZOLAtomicFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace {
QByteArray sha256(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QString canonical(const QString& path) {
    const QString resolved = QFileInfo(path).canonicalFilePath();
    return resolved.isEmpty() ? QFileInfo(path).absoluteFilePath() : resolved;
}

// A snapshot is small; anything larger in its place is not one.
constexpr qint64 kMaxSnapshotBytes = 64 * 1024 * 1024;
} // namespace

ZOLSnapshotStore::ZOLSnapshotStore(QString directory) : directory_(std::move(directory)) {}

QString ZOLSnapshotStore::defaultDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/Snapshots");
}

QString ZOLSnapshotStore::fileFor(const QString& canonicalPath) const {
    return directory_ + QLatin1Char('/') + QString::fromLatin1(sha256(canonicalPath.toUtf8())) +
           QStringLiteral(".json");
}

bool ZOLSnapshotStore::save(const QString& path, const QByteArray& savedBytes,
                            const QByteArray& snapshot) const {
    const QString file = canonical(path);
    const QJsonObject entry{{"path", file},
                            {"sha256", QString::fromLatin1(sha256(savedBytes))},
                            {"job", QJsonDocument::fromJson(snapshot).object()}};
    if (!QDir().mkpath(directory_))
        return false;
    const QByteArray bytes = QJsonDocument(entry).toJson(QJsonDocument::Compact);
    return ZOLAtomicFile::write(QFile::encodeName(fileFor(file)).toStdString(),
                                std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
}

std::optional<QByteArray> ZOLSnapshotStore::load(const QString& path,
                                                 const QByteArray& bytes) const {
    const QString file = canonical(path);
    QFile stored(fileFor(file));
    if (stored.size() > kMaxSnapshotBytes || !stored.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject entry = QJsonDocument::fromJson(stored.readAll()).object();
    if (entry["path"].toString() != file ||
        entry["sha256"].toString() != QString::fromLatin1(sha256(bytes)) ||
        !entry["job"].isObject())
        return std::nullopt;
    return QJsonDocument(entry["job"].toObject()).toJson(QJsonDocument::Compact);
}
