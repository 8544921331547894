#pragma once
// Opening and saving files for zolest's file commands, the way the application does it: the
// same open check and readers, the same alerts (printed on stderr), and atomic saves. Every
// alert about a file is followed by the file's path, since one command may open several.
#include "io/ZOLFileSaver.h"
#include "io/ZOLReadStatus.h"

#include <memory>
#include <string>

class ZOLPricing;
class ZOLWorkbook;

namespace zolcli {

// The one way zolest tells that a file could not be opened, after the reader's own alert: the
// alert the reader leaves to its caller (a workbook's bytes that are no document), then the
// file's path, followed by the line and column where the parser stopped ("house.zol:12:7"),
// as compilers name a place in a file. Sets the exit code to 1; returns false.
bool refused(const std::string& path, ZOLFileKind kind, ZOLReadStatus status,
             const ZOLReadPosition& where);

// Reads a workbook file as opening it in the application does. When it cannot be read the
// alert is on stderr, the exit code is set to 1 and nothing is returned. A file that is XML
// but no workbook fails too: the application alerts and shows a blank workbook, which a
// command must not take for the file's content.
std::shared_ptr<ZOLWorkbook> openWorkbook(const std::string& path);

// Opens a price file into `pricing` as the price list window does, or a job-summary template
// into `workbook` as the job summary screen does. On failure the alert is on stderr, the exit
// code is 1 and false is returned.
bool openPrices(const std::string& path, ZOLPricing& pricing);
bool openTemplate(const std::string& path, ZOLWorkbook& workbook);

// Loads a price file (.zp) into the workbook's price list, replacing it as the price list
// window does, and a job-summary template (.zci) as the job summary screen does; an empty path
// skips that file. False (alert on stderr, exit code 1) when one cannot be read.
bool loadJobFiles(ZOLWorkbook& workbook, const std::string& pricesPath,
                  const std::string& templatePath);

// Saves the text atomically; on failure says why on stderr and sets the exit code to 1.
bool save(const std::string& path, const std::string& text);
// Saves a workbook, price file or template as the application does: only when what was written
// opens again with the reader of its kind; otherwise the old file stays and the exit code is 1.
bool save(const std::string& path, const std::string& text, ZOLFileKind kind);

} // namespace zolcli
