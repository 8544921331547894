// Opens arbitrary bytes as a job-summary template into a new workbook, then regenerates the
// summary lines into the loaded ones and saves the template again.
#include "FuzzSupport.h"

#include "io/ZOLTemplateReader.h"
#include "model/ZOLWorkbook.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzAlertSink::install();
    ZOLWorkbook workbook;
    ZOLTemplateReader::readTemplateData({reinterpret_cast<const char*>(data), size}, workbook);
    workbook.generateCustomItems();
    volatile std::size_t written = workbook.getCustomItemTemplateXMLString().size();
    (void)written;
    return 0;
}
