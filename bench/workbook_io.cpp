// Reading and writing a large workbook (1,000 worksheets, three openings each), beside a bare
// libxml2 SAX pass over the same bytes with callbacks that do nothing. Prints, after the
// timings, the read and the resave time as multiples of the bare pass, the write throughput
// and the peak heap of one read.
//
// For the comparison of whole processes (bench/resave_process.sh):
//   workbook_io --write FILE      writes the large workbook to FILE
//   workbook_io --sax-pass FILE   reads FILE and runs the bare SAX pass over it, nothing else
//   workbook_io --read FILE       reads FILE and opens it as a workbook, nothing else
#include "io/ZOLFileBytes.h"
#include "io/ZOLFileSaver.h"
#include "io/ZOLSaxParser.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "platform/ZOLAlerts.h"

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/xmlmemory.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <map>
#include <new>
#include <string>
#include <sys/resource.h>

// ---- Heap accounting: C++ allocations and libxml2's, current and peak bytes. It is switched
// on only while the peak of one read is measured, so that it does not weigh on the timings.
namespace {
std::atomic<bool> counting{false};
std::atomic<long long> heapNow{0};
std::atomic<long long> heapPeak{0};

void noteAllocated(void* p) {
    if (!p || !counting.load(std::memory_order_relaxed))
        return;
    const long long now = heapNow += static_cast<long long>(malloc_usable_size(p));
    long long peak = heapPeak.load();
    while (now > peak && !heapPeak.compare_exchange_weak(peak, now)) {
    }
}
void noteFreed(void* p) {
    if (p && counting.load(std::memory_order_relaxed))
        heapNow -= static_cast<long long>(malloc_usable_size(p));
}
void* countedMalloc(std::size_t n) {
    void* p = std::malloc(n);
    noteAllocated(p);
    return p;
}
void countedFree(void* p) {
    noteFreed(p);
    std::free(p);
}
void* countedRealloc(void* p, std::size_t n) {
    noteFreed(p);
    void* q = std::realloc(p, n);
    noteAllocated(q ? q : p);
    return q;
}
char* countedStrdup(const char* s) {
    const std::size_t n = std::strlen(s) + 1;
    auto* copy = static_cast<char*>(countedMalloc(n));
    if (copy)
        std::memcpy(copy, s, n);
    return copy;
}
} // namespace

// The replacement operators hand malloc's blocks to free, which gcc cannot see is a match.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

void* operator new(std::size_t n) {
    if (void* p = countedMalloc(n ? n : 1))
        return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept {
    countedFree(p);
}
void operator delete(void* p, std::size_t) noexcept {
    countedFree(p);
}

namespace {

constexpr int kWorksheets = 1000;

std::shared_ptr<ZOLWorkbook> largeWorkbook() {
    auto workbook = std::make_shared<ZOLWorkbook>();
    workbook->setWorksheets({});
    for (int i = 0; i < kWorksheets; ++i) {
        auto sheet = std::make_shared<ZOLWorksheet>("Worksheet " + std::to_string(i + 1));
        auto wall = sheet->wallData();
        wall->setWallLength(120.5 + i % 37);
        wall->setWallHeight(9.334);
        wall->setBlockSize(i % 2 ? 8 : 6);
        wall->setInsideCornerLocations(2);
        wall->setOutsideCornerLocations(6);
        wall->setTBlockLocations(1);
        wall->setUseHalfBlock(true);
        auto openings = sheet->openingData();
        for (int k = 0; k < 3; ++k) {
            auto opening = std::make_shared<ZOLOpening>();
            opening->setRowNumber(k);
            opening->setNumberOfOpenings(k + 1);
            opening->setOpeningWidth(36.0 + 12 * k);
            opening->setOpeningHeight(48.0);
            openings->addOpeningObject(opening);
        }
        sheet->concreteData()->setFootingLength(120.5);
        sheet->concreteData()->setFootingWidth(20);
        sheet->concreteData()->setFootingDepth(10);
        sheet->rebarData()->setWallLength(120.5);
        sheet->rebarData()->setWallHeight(9.334);
        sheet->manHourData()->setSquareFeetOfWall(1124.7);
        sheet->manHourData()->setCrewSize(4);
        workbook->addWorksheetsObject(sheet);
    }
    return workbook;
}

const std::string& fileBytes() {
    static const std::string bytes = largeWorkbook()->getXMLString();
    return bytes;
}

void noStart(void*, const xmlChar*, const xmlChar*, const xmlChar*, int, const xmlChar**, int, int,
             const xmlChar**) {}
void noEnd(void*, const xmlChar*, const xmlChar*, const xmlChar*) {}
void noText(void*, const xmlChar*, int) {}
void noError(void*, xmlErrorPtr) {}

bool bareSaxPass(const std::string& bytes) {
    xmlSAXHandler sax;
    std::memset(&sax, 0, sizeof sax);
    sax.initialized = XML_SAX2_MAGIC;
    sax.startElementNs = noStart;
    sax.endElementNs = noEnd;
    sax.characters = noText;
    sax.serror = noError;
    return xmlSAXUserParseMemory(&sax, nullptr, bytes.data(), static_cast<int>(bytes.size())) == 0;
}

void BM_BareSaxPass(benchmark::State& state) {
    const std::string& bytes = fileBytes();
    for (auto _ : state)
        benchmark::DoNotOptimize(bareSaxPass(bytes));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_BareSaxPass)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

void BM_ReadWorkbook(benchmark::State& state) {
    const std::string& bytes = fileBytes();
    for (auto _ : state) {
        auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        if (!result.ok() || result.workbook->worksheets().size() != kWorksheets)
            state.SkipWithError("the workbook did not read back");
        benchmark::DoNotOptimize(result);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_ReadWorkbook)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

// What `zolest resave` does between reading the file and writing it: open, write, and read
// what is to be written before it may replace the file.
void BM_Resave(benchmark::State& state) {
    const std::string& bytes = fileBytes();
    for (auto _ : state) {
        auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        const std::string text = result.workbook->getXMLString();
        if (!ZOLFileSaver::readsBack(text, ZOLFileKind::Workbook))
            state.SkipWithError("the saved workbook did not read back");
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_Resave)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

void BM_WriteWorkbook(benchmark::State& state) {
    const auto workbook = largeWorkbook();
    std::size_t size = 0;
    for (auto _ : state) {
        std::string text = workbook->getXMLString();
        size = text.size();
        benchmark::DoNotOptimize(text);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * size));
}
BENCHMARK(BM_WriteWorkbook)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

// Keeps each benchmark's median over the repetitions for the summary.
class SummaryReporter : public benchmark::ConsoleReporter {
public:
    std::map<std::string, Run> runs;
    void ReportRuns(const std::vector<Run>& report) override {
        for (const auto& run : report)
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median" &&
                !run.error_occurred)
                runs[run.run_name.function_name] = run;
        ConsoleReporter::ReportRuns(report);
    }
};

} // namespace

// The two whole-process modes; nothing else runs in them.
int processMode(const std::string& mode, const char* path) {
    if (mode == "--write") {
        std::FILE* out = std::fopen(path, "wb");
        const std::string& bytes = fileBytes();
        const bool written = out && std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
        return (out && std::fclose(out) == 0 && written) ? 0 : 1;
    }
    const auto bytes = ZOLFileBytes::read(path, ZOLSaxParser::kMaxDocumentBytes);
    if (mode == "--read")
        return bytes && ZOLWorkbookReader::readWorkbookData(*bytes).ok() ? 0 : 1;
    return bytes && bareSaxPass(*bytes) ? 0 : 1;
}

int main(int argc, char** argv) {
    if (argc == 3 && (std::strcmp(argv[1], "--write") == 0 || std::strcmp(argv[1], "--sax-pass") == 0 ||
                      std::strcmp(argv[1], "--read") == 0))
        return processMode(argv[1], argv[2]);
    xmlMemSetup(countedFree, countedMalloc, countedRealloc, countedStrdup);
    xmlInitParser();
    ZOLAlerts::setPresenter(nullptr);
    benchmark::Initialize(&argc, argv);
    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    // Peak heap of one read, over what was live before it.
    const std::string& bytes = fileBytes();
    heapNow = 0;
    heapPeak = 0;
    counting = true;
    {
        auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        benchmark::DoNotOptimize(result);
    }
    counting = false;
    const long long readPeak = heapPeak.load();
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);

    // Processor time, so that other work on the machine weighs less on the ratio.
    auto seconds = [&](const char* name) {
        auto it = reporter.runs.find(name);
        return it == reporter.runs.end() ? 0.0 : it->second.GetAdjustedCPUTime();
    };
    auto bytesPerSecond = [&](const char* name) {
        auto it = reporter.runs.find(name);
        if (it == reporter.runs.end())
            return 0.0;
        auto counter = it->second.counters.find("bytes_per_second");
        return counter == it->second.counters.end() ? 0.0 : double(counter->second);
    };
    const double bare = seconds("BM_BareSaxPass");
    const double read = seconds("BM_ReadWorkbook");
    const double resave = seconds("BM_Resave");
    std::printf("\nworkbook of %d worksheets: %.2f MB\n", kWorksheets, bytes.size() / 1e6);
    if (bare > 0 && read > 0)
        std::printf("read time / bare SAX pass: %.2f (goal: under 1.5)\n", read / bare);
    if (bare > 0 && resave > 0)
        std::printf("resave in memory (read, write, read the written) / bare SAX pass: %.2f\n",
                    resave / bare);
    if (bytesPerSecond("BM_WriteWorkbook") > 0)
        std::printf("write throughput: %.1f MB/s\n", bytesPerSecond("BM_WriteWorkbook") / 1e6);
    std::printf("peak heap during one read: %.1f MB (file %.1f MB)\n", readPeak / 1e6,
                bytes.size() / 1e6);
    std::printf("process peak resident size: %.1f MB\n", usage.ru_maxrss / 1e3);
    return 0;
}
