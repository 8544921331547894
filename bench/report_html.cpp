// Building the report text of a large job: a workbook of 1,000 worksheets, every section on.
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "report/ZOLPrintSettings.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

std::shared_ptr<ZOLWorkbook> largeWorkbook(int worksheetCount) {
    auto workbook = std::make_shared<ZOLWorkbook>();
    std::vector<std::shared_ptr<ZOLWorksheet>> worksheets;
    for (int i = 0; i < worksheetCount; ++i) {
        auto worksheet = std::make_shared<ZOLWorksheet>("Wall " + std::to_string(i + 1));
        auto wall = worksheet->wallData();
        wall->setWallLength(80 + i % 40);
        wall->setWallHeight(8 + (i % 3));
        wall->setBlockSize(i % 2 ? 8 : 6);
        wall->setInsideCornerLocations(2);
        wall->setOutsideCornerLocations(4);
        std::vector<std::shared_ptr<ZOLOpening>> openings;
        for (int k = 0; k < i % 12; ++k) {
            auto opening = std::make_shared<ZOLOpening>();
            opening->setNumberOfOpenings(1 + k % 3);
            opening->setOpeningWidth(36);
            opening->setOpeningHeight(48);
            openings.push_back(opening);
        }
        worksheet->openingData()->setOpeningList(openings);
        worksheets.push_back(worksheet);
    }
    workbook->setWorksheets(worksheets);
    workbook->setNotes("Deliver to the north side of the lot.");
    return workbook;
}

ZOLPrintData::Settings everything() {
    ZOLPrintData::Settings settings;
    for (const char* key : ZOLPrintSettings::keys())
        settings[key] = true;
    return settings;
}

void BM_ReportHTML(benchmark::State& state) {
    const auto workbook = largeWorkbook(static_cast<int>(state.range(0)));
    const auto settings = everything();
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::string html = ZOLPrintData::getHTMLWithWorkbook(workbook, settings);
        bytes = html.size();
        benchmark::DoNotOptimize(html);
    }
    state.counters["bytes"] = static_cast<double>(bytes);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(bytes));
}
BENCHMARK(BM_ReportHTML)->Arg(1)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
