#pragma once
#include "report/ZOLCsvExport.h"

#include <QString>

class QMenu;
class ZOLDocument;

// File > Export Spreadsheet: the order list for the distributor, the workbook summary and the
// job summary as CSV files that a spreadsheet opens with numbers as numbers.
class ZOLSpreadsheetExport {
public:
    ZOLSpreadsheetExport() = delete;

    // Adds the submenu with its three commands to the document's File menu.
    static QMenu* addMenu(QMenu* fileMenu, ZOLDocument* document);
    // Asks where to save and writes the file; false when cancelled or not written (alert shown).
    static bool exportWithPanel(ZOLDocument* document, ZOLCsvExport::Kind kind);
    // Writes the file atomically; the reason on failure.
    static bool writeFile(ZOLDocument* document, ZOLCsvExport::Kind kind, const QString& path,
                          QString* error = nullptr);
};
