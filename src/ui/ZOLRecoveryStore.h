#pragma once
#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

class QLockFile;

// One recovery file: the last autosaved state of an untitled workbook. The process that owns it
// holds a lock beside it, so a second running copy of the program does not take it for the
// leftover of a crash.
class ZOLRecoverySlot {
public:
    ZOLRecoverySlot(QString path, std::unique_ptr<QLockFile> lock);
    // Closing the slot removes the file: only a crash leaves one behind.
    ~ZOLRecoverySlot();
    ZOLRecoverySlot(const ZOLRecoverySlot&) = delete;
    ZOLRecoverySlot& operator=(const ZOLRecoverySlot&) = delete;

    const QString& path() const { return path_; }
    // Writes the workbook's bytes and, beside them, the snapshot of what the file does not keep
    // (notes, waste percentages, ...), so that a crash loses neither.
    bool write(const QByteArray& bytes, const QByteArray& snapshot = {});
    QByteArray read() const;
    QByteArray readSnapshot() const;
    void discard();

private:
    QString path_;
    std::unique_ptr<QLockFile> lock_;
};

class ZOLRecoveryStore {
public:
    // The default directory is the per-user application data folder's "Recovery".
    explicit ZOLRecoveryStore(QString directory = defaultDirectory());
    static QString defaultDirectory();

    // A fresh slot owned by this process; nothing is written until the first autosave.
    std::unique_ptr<ZOLRecoverySlot> createSlot() const;
    // The recovery files that no running copy of the program owns, oldest first; the caller
    // now owns them.
    std::vector<std::unique_ptr<ZOLRecoverySlot>> orphans() const;

    const QString& directory() const { return directory_; }

private:
    QString directory_;
};
