#include "report/ZOLPrintData.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLConcreteCalculator.h"
#include "calc/ZOLManHourCalculator.h"
#include "calc/ZOLRebarCalculator.h"
#include "calc/ZOLTiltCalculator.h"
#include "calc/ZOLWallCalculator.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLDateFormat.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPricing.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "platform/ZOLInstallation.h"
#include "report/ZOLJobSummary.h"
#include "report/ZOLPrintSettings.h"
#include "report/ZOLWorkbookSummary.h"

#include <utility>
#include <vector>

namespace {

// A worksheet always holds its six records; should one be missing, its page prints as a new,
// empty record would.
template <typename Record> std::shared_ptr<Record> orFresh(const std::shared_ptr<Record>& record) {
    return record ? record : std::make_shared<Record>();
}

std::string& resourcesSlot() {
    static std::string directory = ZOLInstallation::resourcesDirectory();
    return directory;
}

} // namespace

void ZOLPrintData::setResourcesDirectory(const std::string& directory) {
    resourcesSlot() = directory;
}

std::string ZOLPrintData::resourcesDirectory() {
    return resourcesSlot();
}

std::string ZOLPrintData::backgroundImagePath() {
    // The vector artwork: it prints sharp at any resolution, and the PDF engine draws it in a
    // fraction of the time it takes to re-encode the full-page bitmap for every sheet.
    std::string directory = resourcesSlot();
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    return directory + "report/PrintingBackground.svg";
}

int32_t ZOLPrintData::getPageCountWithHTML(const std::string& html) {
    static const std::string kPageStart = "<div class=\"page\">";
    int32_t count = 0;
    for (auto at = html.find(kPageStart); at != std::string::npos;
         at = html.find(kPageStart, at + kPageStart.size()))
        count = ZOLNumeric::wrapAdd(count, 1);
    return count;
}

std::string ZOLPrintData::getHeaderHTML() {
    return ZOLFormat::format(
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n"
        "<html>\n"
        "<head>\n"
        "<title></title>\n"
        "<style type=\"text/css\">\n"
        "html { font-family:Arial; font-size:9pt; }\n"
        "body { margin:0; }\n"
        "div.page { width:21.6cm; height:27.9cm; background:url('%@'); "
        "background-repeat:no-repeat; background-size:21.6cm 27.9cm; }\n"
        "div.content { padding:1.2cm 1.3cm 1.3cm 1.8cm; }\n"
        "div.tit, div.rebar { font-size:12pt; }\n"
        "div.rebar-type { margin-top:60px; }\n"
        "div.tilt table { margin-top:150px; }\n"
        "div.tilt table th, div.tilt table td { font-size:12pt; }\n"
        "div.tilt p.footer { margin-top:10cm; margin-left:40px; font-size:9pt; }\n"
        "h1 { font-size:16pt; }\n"
        "h2 { font-size:14pt; }\n"
        "h3 { font-size:12pt; }\n"
        "table { margin-top:10px; }\n"
        "th, td { padding-right:45px; font-size:9pt; }\n"
        ".tight { padding:0; }\n"
        "th { text-align:left; }\n"
        "p.footer { margin-top: 12cm; }\n"
        "</style>\n"
        "</head>\n"
        "<body>\n",
        backgroundImagePath());
}

std::string ZOLPrintData::getFooterHTML() {
    return "</body></html>";
}

// ---------------------------------------------------------------------------------------------
// Project information and assembly

std::string ZOLPrintData::getProjectInfoHTML(const std::shared_ptr<ZOLWorksheet>& worksheet,
                                             const std::optional<std::string>& projectName,
                                             const std::optional<std::string>& projectVersion,
                                             const std::optional<std::string>& clientName,
                                             const std::optional<std::string>& distributorName,
                                             std::optional<int64_t> projectDate) {
    const std::string date =
        projectDate ? ZOLDateFormat::formatReportDate(*projectDate) : std::string();
    std::string text = ZOLFormat::format(
        "<div>\n<p>Project: %@\tVersion: %@<br />\nClient: %@\tDistributor: %@<br />\nDate: %@",
        projectName.value_or(""), projectVersion.value_or("1.0"), clientName.value_or(""),
        distributorName.value_or(""), date);
    if (worksheet)
        text += ZOLFormat::format("<br />\nWorksheet: %@", worksheet->name());
    return ZOLFormat::format("%@</p>\n</div>", text);
}

namespace {

constexpr std::size_t kOpeningsPerPage = 8;

bool isOn(const ZOLPrintData::Settings& settings, const char* key) {
    auto it = settings.find(key);
    return it != settings.end() && it->second;
}

std::string projectInfoFor(const ZOLWorkbook& workbook,
                           const std::shared_ptr<ZOLWorksheet>& worksheet) {
    return ZOLPrintData::getProjectInfoHTML(worksheet, workbook.projectName(),
                                            workbook.projectVersion(), workbook.clientName(),
                                            workbook.distributorName(), workbook.projectDate());
}

// Eight openings to a page. With more than eight, the pages before the last are built from a
// new, empty openings record: they carry the title with its page number and an empty table, and
// only the last page lists openings, the last partial group of eight (or the last eight).
void appendOpeningsPages(std::string& html, const std::shared_ptr<ZOLOpenings>& openings,
                         const std::string& projectInfo) {
    const auto record = orFresh(openings);
    const auto& list = record->openingList();
    const std::size_t count = list.size();
    if (count <= kOpeningsPerPage) {
        html += ZOLPrintData::getOpeningsHTML(record, projectInfo, 1, 1);
        return;
    }
    const std::size_t pages = count / kOpeningsPerPage + (count % kOpeningsPerPage ? 1 : 0);
    auto pageRecord = std::make_shared<ZOLOpenings>();
    for (std::size_t page = 1; page <= pages; ++page) {
        if (page == pages) {
            const auto first =
                list.begin() + static_cast<std::ptrdiff_t>(kOpeningsPerPage * (pages - 1));
            pageRecord->setOpeningList({first, list.end()});
        }
        html += ZOLPrintData::getOpeningsHTML(pageRecord, projectInfo, static_cast<int32_t>(page),
                                              static_cast<int32_t>(pages));
    }
}

// A worksheet's pages, in the report's fixed order whatever the order of the tabs on screen.
void appendWorksheetPages(std::string& html, const ZOLWorkbook& workbook,
                          const std::shared_ptr<ZOLWorksheet>& worksheet,
                          const ZOLPrintData::Settings& settings) {
    if (!worksheet)
        return;
    const std::string info = projectInfoFor(workbook, worksheet);
    if (isOn(settings, ZOLPrintSettings::kPrintConcrete))
        html += ZOLPrintData::getConcreteHTML(worksheet->concreteData(), info);
    if (isOn(settings, ZOLPrintSettings::kPrintManHour))
        html += ZOLPrintData::getManHourHTML(worksheet->manHourData(), info);
    if (isOn(settings, ZOLPrintSettings::kPrintOpenings))
        appendOpeningsPages(html, worksheet->openingData(), info);
    if (isOn(settings, ZOLPrintSettings::kPrintRebar))
        html += ZOLPrintData::getRebarHTML(worksheet->rebarData(), info);
    if (isOn(settings, ZOLPrintSettings::kPrintTilt))
        html += ZOLPrintData::getTiltHTML(worksheet->tiltData(), info);
    if (isOn(settings, ZOLPrintSettings::kPrintWall))
        html += ZOLPrintData::getWallHTML(worksheet->wallData(), info);
}

// The workbook-wide pages come once, after every worksheet's pages.
void appendWorkbookPages(std::string& html, const std::shared_ptr<ZOLWorkbook>& workbook,
                         const ZOLPrintData::Settings& settings) {
    if (isOn(settings, ZOLPrintSettings::kPrintSummary))
        html += ZOLPrintData::getSummaryHTML(workbook);
    if (isOn(settings, ZOLPrintSettings::kPrintJobSummary))
        html += ZOLPrintData::getJobSummaryHTML(workbook);
    if (isOn(settings, ZOLPrintSettings::kPrintProjectNotes))
        html += ZOLPrintData::getProjectNotesHTML(workbook);
}

} // namespace

std::string ZOLPrintData::getHTMLWithWorkbook(const std::shared_ptr<ZOLWorkbook>& workbook,
                                              const Settings& settings) {
    std::string html = getHeaderHTML();
    if (workbook) {
        for (const auto& worksheet : workbook->worksheets())
            appendWorksheetPages(html, *workbook, worksheet, settings);
        appendWorkbookPages(html, workbook, settings);
    }
    html += getFooterHTML();
    return html;
}

std::string ZOLPrintData::getHTMLWithWorkbook(const std::shared_ptr<ZOLWorkbook>& workbook,
                                              int32_t worksheetIndex, const Settings& settings) {
    std::string html = getHeaderHTML();
    if (workbook) {
        // A negative index is the first worksheet. An index past the last worksheet (or a
        // workbook left without worksheets) prints no worksheet pages, only the workbook pages.
        const auto& worksheets = workbook->worksheets();
        const std::size_t index = worksheetIndex < 0 ? 0 : static_cast<std::size_t>(worksheetIndex);
        if (index < worksheets.size())
            appendWorksheetPages(html, *workbook, worksheets[index], settings);
        appendWorkbookPages(html, workbook, settings);
    }
    html += getFooterHTML();
    return html;
}

// ---------------------------------------------------------------------------------------------
// Estimate pages

namespace {

std::string feet(double value) {
    return ZOLCalculatorMaster::convertFeetToText(value);
}

// A table row of label and value.
std::string row(const char* label, const std::string& value) {
    return ZOLFormat::format("<tr>\n<td>%@</td>\n<td>%@</td>\n</tr>\n", label, value);
}

std::string tableHead(const char* title) {
    return ZOLFormat::format("<table>\n<tr>\n<th>%@</th>\n</tr>\n", title);
}

std::string pageStart(const char* pageClass, const char* title, const std::string& projectInfo) {
    return ZOLFormat::format("<div class=\"page\">\n<div class=\"content %@\">\n<h1>%@</h1>\n%@\n",
                             pageClass, title, projectInfo);
}

const char* const kPageEnd = "</div>\n</div>\n";

} // namespace

std::string ZOLPrintData::getConcreteHTML(const std::shared_ptr<ZOLConcrete>& concrete,
                                          const std::string& projectInfo) {
    const auto c = orFresh(concrete);
    const std::string unit = ZOLConcreteCalculator::getStringForMeasurement(c->measurement());
    auto volume = [&](double v) { return ZOLFormat::format("%.2f %@", v, unit); };
    auto weight = [](double w) { return ZOLFormat::format("%.2f lbs", w); };
    auto count = [](int32_t n) { return ZOLFormat::format("%d", n); };
    auto inches = [](int32_t n) { return ZOLFormat::format("%d\"", n); };

    std::string html = pageStart("concrete", "Concrete", projectInfo);
    html += tableHead("Footing");
    html += row("Width of Footing:", count(c->footingWidth()));
    html += row("Depth of Footing:", count(c->footingDepth()));
    html += row("Length of Footing:", feet(c->footingLength()));
    html += row("Concrete Volume:", volume(c->getFootingVolume()));
    html += row("Weight of Concrete:", weight(c->getFootingWeight()));
    html += "</table>\n";

    html += tableHead("Wall");
    html += row("Wall Thickness:", inches(c->wallThickness()));
    html += row("Wall Height:", feet(c->wallHeight()));
    html += row("Length of Wall:", feet(c->wallLength()));
    html += row("Concrete Volume:", volume(c->getWallVolume()));
    html += row("Weight of Concrete:", weight(c->getWallWeight()));
    html += "</table>\n";

    html += tableHead("Slab");
    html += row("Width of Slab:", feet(c->slabWidth()));
    html += row("Depth of Slab:", count(c->slabDepth()));
    html += row("Length of Slab:", feet(c->slabLength()));
    html += row("Concrete Volume:", volume(c->getSlabVolume()));
    html += row("Weight of Concrete:", weight(c->getSlabWeight()));
    html += "</table>\n";

    // The number-of-piles row runs straight into the next row's opening tag.
    html += tableHead("Piles");
    html += row("Pile Diameter:", inches(c->pileDiameter()));
    html += row("Pile Depth:", feet(c->pileDepth()));
    html += ZOLFormat::format("<tr>\n<td>Number of Piles:</td>\n<td>%d</td>\n</tr><tr>\n",
                              c->pileCount());
    html += ZOLFormat::format("<td>Concrete Volume:</td>\n<td>%@</td>\n</tr>\n",
                              volume(c->getPileVolume()));
    html += row("Weight of Concrete:", weight(c->getPileWeight()));
    html += "</table>\n";

    const double totalVolume =
        c->getFootingVolume() + c->getWallVolume() + c->getSlabVolume() + c->getPileVolume();
    const double totalWeight =
        c->getFootingWeight() + c->getWallWeight() + c->getSlabWeight() + c->getPileWeight();
    html += tableHead("Total Concrete");
    html += row("Total Volume:", volume(totalVolume));
    html += row("Total Weight:", weight(totalWeight));
    html += "</table>\n";
    html += kPageEnd;
    return html;
}

std::string ZOLPrintData::getManHourHTML(const std::shared_ptr<ZOLManHours>& manHours,
                                         const std::string& projectInfo) {
    const auto m = orFresh(manHours);
    auto decimal = [](double v) { return ZOLFormat::format("%.2f", v); };
    auto count = [](int32_t n) { return ZOLFormat::format("%d", n); };
    const double hours = m->getHoursToComplete();
    const double laborTotal = hours * m->laborCost();
    const double perSquareFoot =
        m->squareFeetOfWall() > 0 ? laborTotal / m->squareFeetOfWall() : 0.0;

    std::string html = pageStart("man-hours", "Man Hours", projectInfo);
    html += "<table>\n";
    html += row("Square Feet of Wall:", decimal(m->squareFeetOfWall()));
    html += row("Number of Corners and Ts:", count(m->cornersAndTs()));
    html += row("Square Feet of Openings:", decimal(m->squareFeetOfOpenings()));
    html +=
        row("Lineal Feet of Corbel / Curb / Taper Top:", feet(m->linearFeetCorbelCurbTapered()));
    html += row("Wall Height:", feet(m->wallHeight()));
    html += row("Size of Crew:", count(m->crewSize()));
    html += row("Complexity of Rebar / Embeds:",
                ZOLManHourCalculator::getComplexityRatingText(m->rebarComplexity()));
    html +=
        row("Crew Experience:", ZOLManHourCalculator::getExperienceRatingText(m->crewExperience()));
    html +=
        row("Site Conditions:", ZOLManHourCalculator::getConditionRatingText(m->siteConditions()));
    html += row("Turns other than 90° or 45°:", count(m->otherTurns()));
    html += row("Target Man Hour Rate:", decimal(m->getManHourRate()));
    html += row("Hours to Complete This Worksheet:", decimal(hours));
    html += row("Days to Complete This Worksheet:", decimal(m->getDaysToComplete()));
    html += row(ZOLFormat::format("Cost of Labor @ $%.2f:", m->laborCost()).c_str(),
                ZOLFormat::format("$%.2f", laborTotal));
    html += row("Cost of Labor Per Square Foot:", ZOLFormat::format("$%.2f", perSquareFoot));
    html += "</table>\n";
    html += kPageEnd;
    return html;
}

std::string ZOLPrintData::getOpeningsHTML(const std::shared_ptr<ZOLOpenings>& openings,
                                          const std::string& projectInfo,
                                          int32_t currentOpeningPage, int32_t totalOpeningPages) {
    const auto record = orFresh(openings);
    const std::string suffix =
        totalOpeningPages > 1
            ? ZOLFormat::format(" - Page %d of %d", currentOpeningPage, totalOpeningPages)
            : std::string();
    std::string html = ZOLFormat::format(
        "<div class=\"page\">\n<div class=\"content openings\">\n<h1>Openings%@</h1>\n%@\n"
        "<table>\n",
        suffix, projectInfo);
    // Two openings side by side in a row; an odd count leaves the last row open.
    std::size_t position = 0;
    for (const auto& entry : record->openingList()) {
        const auto opening = orFresh(entry);
        if (position % 2 == 0)
            html += "<tr>\n";
        // The line says whether the sill is removed: the opposite of the use-sill flag.
        html += ZOLFormat::format(
            "<td>Number of Openings: %d<br />\nWidth: %.2f\"<br />\nHeight: %.2f\"<br />\n"
            "Remove Sill: %@<br />\nNet Sq Ft: %.2f<br />\nTotal Sq Ft: %.2f<br />\n"
            "Net LF: %@<br />\nTotal LF: %@</td>\n",
            opening->numberOfOpenings(), opening->openingWidth(), opening->openingHeight(),
            opening->useSill() ? "No" : "Yes", opening->getNetSquareFeet(),
            opening->getTotalSquareFeet(), feet(opening->getNetLinearFeet()),
            feet(opening->getTotalLinearFeet()));
        if (position % 2 == 1)
            html += "</tr>\n";
        ++position;
    }
    html += "</table>\n<p class=\"footer\">All openings have 8\" added to allow for overlap of "
            "buck.</p>\n</div>\n</div>";
    return html;
}

namespace {

std::string rebarSizeName(int32_t measurement, int32_t size) {
    return ZOLRebarCalculator::getPrintedRebarSizeNameWithMeasurement(measurement, size);
}

// One total line when both bars are the same size, else one line a size, the smaller first.
std::string rebarTotals(int32_t measurement, int32_t sizeA, double lengthA, int32_t sizeB,
                        double lengthB) {
    if (sizeA == sizeB)
        return ZOLFormat::format("<p>%@\t\t%@</p>\n", rebarSizeName(measurement, sizeA),
                                 feet(lengthA + lengthB));
    if (sizeB < sizeA) {
        std::swap(sizeA, sizeB);
        std::swap(lengthA, lengthB);
    }
    return ZOLFormat::format("<p>%@\t\t%@</p>\n<p>%@\t\t%@</p>\n",
                             rebarSizeName(measurement, sizeA), feet(lengthA),
                             rebarSizeName(measurement, sizeB), feet(lengthB));
}

} // namespace

std::string ZOLPrintData::getRebarHTML(const std::shared_ptr<ZOLRebar>& rebar,
                                       const std::string& projectInfo) {
    const auto r = orFresh(rebar);
    const int32_t measurement = r->measurement();
    std::string html = ZOLFormat::format(
        "<div class=\"page\">\n<div class=\"content rebar\">\n<h1>Rebar</h1>\n%@\n<p>Linear "
        "Feet of Wall: %@</p>\n<div class=\"rebar-type\">\n<h2>Horizontal Rebar</h2>\n<p>%d "
        "Rows of %@, with %d\" lap splice</p>\n<p>%d Rows of %@, with %d\" lap "
        "splice</p>\n<h3>Total Horizontal Rebar</h3>\n",
        projectInfo, feet(r->wallLength()), r->horizontalRowCount1(),
        rebarSizeName(measurement, r->horizontalSize1()), r->horizontalLap1(),
        r->horizontalRowCount2(), rebarSizeName(measurement, r->horizontalSize2()),
        r->horizontalLap2());
    html += rebarTotals(measurement, r->horizontalSize1(), r->getHorizontalLength1(),
                        r->horizontalSize2(), r->getHorizontalLength2());
    html += ZOLFormat::format(
        "</div>\n<div class=\"rebar-type\">\n<h2>Vertical Rebar</h2>\n<p>Wall Height: "
        "%@</p>\n<p>%@ Vertical with %d Spacing</p>\n<p>%@ Dowel with %d Spacing</p>\n<h3>Total "
        "Vertical Rebar</h3>\n",
        feet(r->wallHeight()), rebarSizeName(measurement, r->verticalSize()), r->verticalSpacing(),
        rebarSizeName(measurement, r->dowelSize()), r->dowelSpacing());
    html += rebarTotals(measurement, r->verticalSize(), r->getVerticalLength(), r->dowelSize(),
                        r->getDowelLength());
    html += "</div></div></div>";
    return html;
}

std::string ZOLPrintData::getTiltHTML(const std::shared_ptr<ZOLTilt>& tilt,
                                      const std::string& projectInfo) {
    const auto t = orFresh(tilt);
    auto pair = [](const char* label, const std::string& panel, const std::string& insert) {
        return ZOLFormat::format(
            "<tr>\n<td>%@</td>\n<td>%@</td>\n<td>%@</td>\n<td>%@</td>\n</tr>\n", label, panel,
            label, insert);
    };
    auto count = [](int32_t n) { return ZOLFormat::format("%d", n); };
    auto weight = [](double w) { return ZOLFormat::format("%.2f lbs", w); };
    const int32_t panelSize = ZOLTiltCalculator::getPanelBundleSize();
    const int32_t insertSize = ZOLTiltCalculator::getInsertBundleSize();

    std::string html = pageStart("tilt", "Zol Quarto Tilt", projectInfo);
    html += ZOLFormat::format("<div>\n<p>Wall Height: %@<br />\nLength of Wall: %@<br />\nTotal "
                              "Square Feet of Wall: %.2f</p>\n</div>\n",
                              feet(t->wallHeight()), feet(t->wallLength()),
                              t->wallHeight() * t->wallLength());
    html += "<table>\n<tr>\n<th>Zol Quarto Tilt Panels:</th>\n<th></th>\n<th>Zol Quarto Tilt "
            "Inserts:</th>\n</tr>\n";
    html += pair("Actual Parts Needed:", count(t->getPanels()), count(t->getInserts()));
    html += pair("Parts Per Bundle:", count(panelSize), count(insertSize));
    html += pair(
        "Rounded up to Full Bundle:", count(ZOLNumeric::wrapMul(t->getPanelBundles(), panelSize)),
        count(ZOLNumeric::wrapMul(t->getInsertBundles(), insertSize)));
    html += pair("Total Bundles:", count(t->getPanelBundles()), count(t->getInsertBundles()));
    html += pair("Approximate Weight:", weight(t->getPanelWeight()), weight(t->getInsertWeight()));
    html += "</table>\n";
    html += ZOLFormat::format("<p>Total Approximate Weight: %.2f lbs</p>\n",
                              t->getPanelWeight() + t->getInsertWeight());
    html += ZOLFormat::format("<p class=\"footer\">Calculations based on one side of wall using "
                              "panels with inserts at 16\" o/c. 1%% added to all "
                              "calculations.</p>\n");
    html += kPageEnd;
    return html;
}

namespace {

struct PartRow {
    const char* label;
    int32_t (ZOLWall::*count)() const;
    int32_t partType;
};

} // namespace

std::string ZOLPrintData::getWallHTML(const std::shared_ptr<ZOLWall>& wall,
                                      const std::string& projectInfo) {
    const auto w = orFresh(wall);
    auto count = [](int32_t n) { return ZOLFormat::format("%d", n); };
    auto decimal = [](double v) { return ZOLFormat::format("%.2f", v); };
    // A location row also shows the linear feet of wall those locations take up.
    auto locations = [](const char* label, int32_t n, double linearFeet) {
        return ZOLFormat::format("<tr>\n<td>%@</td>\n<td>%d</td>\n<td class=\"tight\">LF of "
                                 "Wall:</td>\n<td>%@</td>\n</tr>\n",
                                 label, n, feet(linearFeet));
    };

    std::string html = pageStart("wall", "Wall Data", projectInfo);
    html += tableHead("Worksheet Info:");
    html += row("Concrete Thickness (Block Size):", ZOLFormat::format("%d\"", w->blockSize()));
    html += row("Total Wall Height:", feet(w->getTotalWallHeight()));
    html += row("Number of Rows (Not including 1/2 Block):", count(w->getRows()));
    html += row("Wall Length (Total Linear Feet):", feet(w->wallLength()));
    html += locations("Number of Inside 90° Corner Locations:", w->insideCornerLocations(),
                      w->getLinearFeetOfInsideCorners());
    html += locations("Number of Outside 90° Corner Locations:", w->outsideCornerLocations(),
                      w->getLinearFeetOfOutsideCorners());
    html += locations("Number of 45° Angle Locations:", w->angleLocations(),
                      w->getLinearFeetOfAngles());
    html +=
        locations("Number of T-Block Locations:", w->tBlockLocations(), w->getLinearFeetOfTBlock());
    html += row("Lineal Feet of Corbel Block:", feet(w->linearFeetCorbel()));
    html += row("Lineal Feet of Tapered Block:", feet(w->linearFeetTapered()));
    // The radius cell follows the radius row's end, outside any row of its own.
    html += row("Lineal Feet of 6\" Radius Block:", feet(w->linearFeetRadius()));
    html += ZOLFormat::format("<td class=\"tight\">@ %d Foot Radius</td>\n</tr>\n", w->radius());
    // Angles take no straight block's place in this total.
    html += row("Total LF Taken up by Corners and T's:",
                feet(w->getLinearFeetOfInsideCorners() + w->getLinearFeetOfOutsideCorners() +
                     w->getLinearFeetOfTBlock()));
    html += row("Total LF Taken up by Straight Block:", feet(w->getLinearFeetOfStraightBlock()));
    html += row("Total Square Feet of Openings:", decimal(w->sqftOpenings()));
    html += row("Openings in Block Count:", count(w->getOpeningsInBlockCount()));
    html += row("Gross Square Feet of Wall Area:", decimal(w->getGrossSqFtOfWall()));
    html += row("Net Square Feet of Wall Area:", decimal(w->getNetSqFtOfWall()));

    // The parts table opens with the information table still open.
    static const PartRow parts[] = {
        {"Total Number of Straight Block:", &ZOLWall::getStraightBlocks, ZOLWallData::Straight},
        {"Total Number of Straight 1/2 Block:", &ZOLWall::getStraightHalfBlocks,
         ZOLWallData::StraightHalf},
        {"Total Number of 90° Corner Block:", &ZOLWall::getCornerBlocks, ZOLWallData::Corner},
        {"Total Number of 90° Corner 1/2 Block:", &ZOLWall::getCornerHalfBlocks,
         ZOLWallData::CornerHalf},
        {"Total Number of 45° Angle Block:", &ZOLWall::getAngleBlocks, ZOLWallData::Angle},
        {"Total Number of T-Block:", &ZOLWall::getTBlocks, ZOLWallData::TBlock},
        {"Total Number of Straight Curb Block:", &ZOLWall::getStraightCurbBlocks,
         ZOLWallData::StraightCurb},
        {"Total Number of 90° Corner Curb Block:", &ZOLWall::getCornerCurbBlocks,
         ZOLWallData::CornerCurb},
        {"Total Number of Corbel Block:", &ZOLWall::getCorbelBlocks, ZOLWallData::Corbel},
        {"Total Number of Tapered Block:", &ZOLWall::getTaperedBlocks, ZOLWallData::Tapered},
        {"Total Number of 6\" Radius Block:", &ZOLWall::getRadiusBlocks, ZOLWallData::Radius},
        // The extenders' label has no colon.
        {"Total Number of 4\" Extenders", &ZOLWall::getExtenders, ZOLWallData::Extender},
        // Clips are ordered in bundles: the row shows bundles, weighed as clips.
        {"Total Number of Zol Block HV Clips:", nullptr, ZOLWallData::HVClips},
        {"Total Number of R9 Calora Sticks:", &ZOLWall::getCaloraSticks, ZOLWallData::CaloraSticks},
        {"Total Number of Zol Buck:", &ZOLWall::getZolBuck, ZOLWallData::Buck},
        {"Total Number of Pravex:", &ZOLWall::getPravexes, ZOLWallData::Pravex},
        {"Total Number of pelmo:", &ZOLWall::getPelmos, ZOLWallData::Pelmo},
    };
    html += "<table>\n<tr>\n<th>Parts:</th>\n<th></th>\n<th>Weights:</th>\n</tr>\n";
    double totalWeight = 0.0;
    for (const PartRow& part : parts) {
        const int32_t n =
            part.count ? (*w.*part.count)() : w->getTotalBundlesWithPartType(part.partType);
        const double weight = w->getApproximateWeightWithPartType(part.partType, false);
        totalWeight += weight;
        html += ZOLFormat::format("<tr>\n<td>%@</td>\n<td>%d</td>\n<td>%.2f lbs</td>\n</tr>\n",
                                  part.label, n, weight);
    }
    html += ZOLFormat::format("<tr>\n<td>    Total Approximate Weight:</td><td></td><td>%.2f "
                              "lbs</td>\n</tr>\n</table>\n",
                              totalWeight);

    html += tableHead("Other Estimations:");
    html += row("Approximate Number of 53' Truck Loads Needed:", decimal(w->getTrucks()));
    html += ZOLFormat::format("<tr>\n<td>Concrete (L x W x H, less openings, no pump "
                              "allowance):</td>\n<td class=\"tight\">%.2f Yds</td>\n<td>%.2f "
                              "M</td>\n</tr>\n",
                              w->getConcreteYards(), w->getConcreteMeters());
    html += row("Bracing Needed @ 6' on Center:", count(w->getBracing()));
    html += "</table>\n</div>\n</div>";
    return html;
}

// ---------------------------------------------------------------------------------------------
// Workbook pages

std::string ZOLPrintData::getSummaryHTML(const std::shared_ptr<ZOLWorkbook>& workbook) {
    const auto book = orFresh(workbook);
    const ZOLWorkbookSummary::Summary summary = ZOLWorkbookSummary::summarize(*book);

    std::string html =
        "<div class=\"page\">\n<div class=\"content wall-summary\">\n<h1>Workbook Summary</h1>\n";
    html += projectInfoFor(*book, nullptr);
    html += "\n<table>\n<tr>\n<th></th>\n<th>Quantity</th>\n<th>Unit Price</th>\n<th>Total "
            "Cost</th>\n<th>Sq Ft Cost</th>\n<th>Approx. Weight</th>\n</tr>\n";
    for (const auto& row : summary.rows)
        html += ZOLFormat::format("<tr>\n<td>%@</td>\n<td>%d</td>\n<td>$%.2f</td>\n<td>$%.2f</"
                                  "td>\n<td>$%.2f</td>\n<td>%.2f lbs</td>\n</tr>\n",
                                  row.name, row.quantity, row.unitPrice, row.totalCost,
                                  row.squareFootCost, row.weight);
    if (!summary.rows.empty()) {
        // The job-site sign ships free with every order and adds nothing to the totals.
        html += ZOLFormat::format(
            "<tr>\n<td>%@</td>\n<td>1</td>\n<td>$0.00</td>\n<td>$0.00</"
            "td>\n<td>$0.00</td>\n<td>0.00 lbs</td>\n</tr>\n<tr></tr>\n<tr><td>Totals</td>\n<td>"
            "%d</td>\n<td> </td>\n<td>$%.2f</td>\n<td>$%.2f</td>\n<td>%.2f lbs</td>\n</tr>\n",
            ZOLWorkbookSummary::kSignName, summary.totalQuantity, summary.totalCost,
            summary.squareFootCost, summary.totalWeight);
    }
    html += "</table>\n";
    if (book->roundToFullBundles())
        html += "<br /><p>* Quantities rounded to full bundles</p>\n";
    html += kPageEnd;
    return html;
}

std::string ZOLPrintData::getJobSummaryHTML(const std::shared_ptr<ZOLWorkbook>& workbook) {
    const auto book = orFresh(workbook);
    const ZOLJobSummary::Summary summary = ZOLJobSummary::summarize(*book);
    std::string html =
        "<div class=\"page\">\n<div class=\"content job-summary\">\n<h1>Job Summary</h1>\n";
    html += projectInfoFor(*book, nullptr);
    html += "\n<table>\n<tr>\n<th></th>\n<th>Quantity</th>\n<th>Unit</th>\n<th>Unit "
            "Price</th>\n<th>Total Cost</th>\n";
    for (const auto& line : summary.lines)
        html += ZOLFormat::format("<tr>\n<td>%@</td>\n<td>%.2f</td>\n<td>%@</td>\n<td>$%.2f</"
                                  "td>\n<td>$%.2f</td>\n</tr>\n",
                                  line.name, line.quantity, line.unit, line.unitPrice, line.total);
    html += ZOLFormat::format("<tr></tr>\n<tr><td>Totals</td>\n<td>%d</td>\n<td> </td>\n<td> "
                              "</td>\n<td>$%.2f</td>\n</tr>\n</table>\n</div>\n</div>\n",
                              summary.totalQuantity, summary.totalCost);
    return html;
}

std::string ZOLPrintData::getProjectNotesHTML(const std::shared_ptr<ZOLWorkbook>& workbook) {
    const auto book = orFresh(workbook);
    std::string html =
        "<div class=\"page\">\n<div class=\"content notes\">\n<h1>Project Notes</h1>\n";
    html += projectInfoFor(*book, nullptr);
    // The notes go in as typed: markup is not escaped and line breaks are not converted.
    html += ZOLFormat::format("<div><p>%@</p></div>\n</div>\n</div>\n", book->notes());
    return html;
}
