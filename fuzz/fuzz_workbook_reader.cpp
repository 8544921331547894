// Opens arbitrary bytes as a workbook file, then does with the workbook what the application
// does next: regenerates the job summary, totals the walls and saves it again.
#include "FuzzSupport.h"

#include "io/ZOLWorkbookReader.h"
#include "model/ZOLWorkbook.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzAlertSink::install();
    const auto result =
        ZOLWorkbookReader::readWorkbookData({reinterpret_cast<const char*>(data), size});
    if (!result.ok())
        return 0;
    ZOLWorkbook& workbook = *result.workbook;
    workbook.generateCustomItems();
    volatile double total = workbook.getTotalGrossSquareFeet() + workbook.getTotalNetSquareFeet();
    (void)total;
    volatile std::size_t written =
        workbook.getXMLString().size() + workbook.getCustomItemTemplateXMLString().size();
    (void)written;
    return 0;
}
