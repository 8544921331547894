#pragma once
#include <QByteArray>
#include <QString>

#include <optional>

// Where this computer keeps the snapshot of each saved job (see ZOLJobSnapshot): one file per
// workbook file, named after its canonical path, holding the hash of the bytes last saved
// there. A snapshot belongs to those exact bytes at that exact place: a file copied, moved or
// changed by another program opens as the file says.
class ZOLSnapshotStore {
public:
    // The default directory is the per-user application data folder's "Snapshots".
    explicit ZOLSnapshotStore(QString directory = defaultDirectory());
    static QString defaultDirectory();

    // Keeps `snapshot` for the file at `path` that now holds `savedBytes`.
    bool save(const QString& path, const QByteArray& savedBytes, const QByteArray& snapshot) const;
    // The snapshot kept for `path` when the file there still holds `bytes`.
    std::optional<QByteArray> load(const QString& path, const QByteArray& bytes) const;

    const QString& directory() const { return directory_; }

private:
    QString fileFor(const QString& canonicalPath) const;

    QString directory_;
};
