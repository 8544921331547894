#pragma once
// Opening and saving files for zolest's file commands, the way the application does it: the
// same open check and readers, the same alerts (printed on stderr), and atomic saves.
#include <memory>
#include <optional>
#include <string>

class ZOLWorkbook;

namespace zolcli {

// Reads a workbook file as opening it in the application does. When it cannot be read the
// alert is on stderr, the exit code is set to 1 and nothing is returned. A file that is XML
// but no workbook gives its alert and a new default workbook, as the application shows.
std::shared_ptr<ZOLWorkbook> openWorkbook(const std::string& path);

// The bytes of a price or template file; on failure the alert is on stderr and the exit code
// is 1.
std::optional<std::string> readFileForOpening(const std::string& path);

// Loads a price file (.zp) into the workbook's price list, replacing it as the price list
// window does, and a job-summary template (.zci) as the job summary screen does; an empty path
// skips that file. False (alert on stderr, exit code 1) when one cannot be read.
bool loadJobFiles(ZOLWorkbook& workbook, const std::string& pricesPath,
                  const std::string& templatePath);

// Saves the text atomically; on failure says why on stderr and sets the exit code to 1.
bool save(const std::string& path, const std::string& text);

} // namespace zolcli
