#pragma once
#include <QByteArray>
#include <QStringList>

class ZOLWorkbook;

// What this computer keeps of a job beside its workbook file: everything the file does not
// bring back as the user left it. The file has no place for the project notes, the waste
// percentages and the user's own job-summary lines; it writes the version, the distributor and
// the summary switches but opening it does not read them back; opening puts the default price
// list in front of the saved prices and sets every concrete wall height to the square feet of
// openings. A snapshot taken at a save, applied to the workbook read from that same file,
// gives back the job as it was.
class ZOLJobSnapshot {
public:
    ZOLJobSnapshot() = delete;

    // The snapshot of a workbook, as compact JSON text.
    static QByteArray capture(const ZOLWorkbook& workbook);
    // Puts the snapshot's values into a workbook read from the file it was taken with. Returns
    // what that changed, in the user's words ("notes", "prices", "concrete heights", ...);
    // a snapshot that is not one of ours changes nothing.
    static QStringList apply(const QByteArray& snapshot, ZOLWorkbook& workbook);
};
