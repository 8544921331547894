#pragma once
#include <QObject>
#include <QStringList>

class QMenu;

// The Open Recent list: most recent first, at most kMaximum entries, kept in QSettings and
// shared by every window's menu.
class ZOLRecentFiles : public QObject {
    Q_OBJECT
public:
    static constexpr int kMaximum = 10;
    explicit ZOLRecentFiles(QObject* parent = nullptr);

    QStringList files() const;
    void add(const QString& path);
    void remove(const QString& path);
    void clear();

    // Fills `menu` with the list and a Clear Menu item; choosing an entry emits openRequested.
    void populate(QMenu* menu);

signals:
    void changed();
    void openRequested(const QString& path);

private:
    void store(const QStringList& files);
};
