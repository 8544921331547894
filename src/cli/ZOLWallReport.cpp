#include "cli/ZOLWallReport.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLWallData.h"
#include "cli/ZOLCliSupport.h"
#include "io/ZOLFormat.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"

#include <string>
#include <string_view>
#include <vector>

namespace zolcli {

namespace {

using F = ZOLFormat;

// Terminal columns of a UTF-8 text: the part names carry a degree sign.
std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    for (unsigned char c : text)
        if ((c & 0xC0) != 0x80)
            ++width;
    return width;
}

std::string padded(const std::string& text, std::size_t width, bool right) {
    const std::size_t used = displayWidth(text);
    const std::string fill(used < width ? width - used : 0, ' ');
    return right ? fill + text : text + fill;
}

// A plain table: the first column left-aligned, the others right-aligned, two blanks apart.
struct Table {
    std::vector<std::string> header;
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> footer; // a totals line below a second rule, if any

    void print(std::ostream& out, const std::string& indent) const {
        std::vector<std::size_t> widths(header.size(), 0);
        auto measure = [&widths](const std::vector<std::string>& row) {
            for (std::size_t i = 0; i < row.size() && i < widths.size(); ++i)
                widths[i] = std::max(widths[i], displayWidth(row[i]));
        };
        measure(header);
        for (const auto& row : rows)
            measure(row);
        measure(footer);
        auto line = [&](const std::vector<std::string>& row) {
            std::string text = indent;
            for (std::size_t i = 0; i < row.size() && i < widths.size(); ++i) {
                if (i > 0)
                    text += "  ";
                text += padded(row[i], widths[i], i > 0);
            }
            while (!text.empty() && text.back() == ' ')
                text.pop_back();
            out << text << "\n";
        };
        std::size_t total = 0;
        for (std::size_t w : widths)
            total += w;
        const std::string rule = indent + std::string(total + 2 * (widths.size() - 1), '-');
        line(header);
        out << rule << "\n";
        for (const auto& row : rows)
            line(row);
        if (!footer.empty()) {
            out << rule << "\n";
            line(footer);
        }
    }
};

void labelled(std::ostream& out, const std::string& label, const std::string& value) {
    out << "  " << padded(label, 22, false) << value << "\n";
}

std::string feet(double value) {
    return F::format("%.2f ft", value);
}

std::string countWithFeet(int32_t count, double linearFeet) {
    return F::format("%d  (%.2f ft)", count, linearFeet);
}

std::string partName(int32_t type) {
    return ZOLWallData::getPartNameWithBlockType(type).value_or("");
}

struct IntQuery {
    const char* name;
    int32_t (ZOLWall::*query)() const;
};
struct DoubleQuery {
    const char* name;
    double (ZOLWall::*query)() const;
};

constexpr IntQuery kIntQueries[] = {
    {"getRows", &ZOLWall::getRows},
    {"getOpeningsInBlockCount", &ZOLWall::getOpeningsInBlockCount},
    {"getStraightBlocks", &ZOLWall::getStraightBlocks},
    {"getStraightHalfBlocks", &ZOLWall::getStraightHalfBlocks},
    {"getStraightCutBlocks", &ZOLWall::getStraightCutBlocks},
    {"getCornerBlocks", &ZOLWall::getCornerBlocks},
    {"getCornerHalfBlocks", &ZOLWall::getCornerHalfBlocks},
    {"getCornerCutBlocks", &ZOLWall::getCornerCutBlocks},
    {"getAngleBlocks", &ZOLWall::getAngleBlocks},
    {"getTBlocks", &ZOLWall::getTBlocks},
    {"getStraightCurbBlocks", &ZOLWall::getStraightCurbBlocks},
    {"getCornerCurbBlocks", &ZOLWall::getCornerCurbBlocks},
    {"getCorbelBlocks", &ZOLWall::getCorbelBlocks},
    {"getTaperedBlocks", &ZOLWall::getTaperedBlocks},
    {"getRadiusBlocks", &ZOLWall::getRadiusBlocks},
    {"getZolBuck", &ZOLWall::getZolBuck},
    {"getExtenders", &ZOLWall::getExtenders},
    {"getHVClips", &ZOLWall::getHVClips},
    {"getCaloraSticks", &ZOLWall::getCaloraSticks},
    {"getCaloraStickBundles", &ZOLWall::getCaloraStickBundles},
    {"getPravexes", &ZOLWall::getPravexes},
    {"getPelmos", &ZOLWall::getPelmos},
    {"getBracing", &ZOLWall::getBracing},
};

constexpr DoubleQuery kDoubleQueries[] = {
    {"getTotalWallHeight", &ZOLWall::getTotalWallHeight},
    {"getLinearFeetOfStraightBlock", &ZOLWall::getLinearFeetOfStraightBlock},
    {"getLinearFeetOfInsideCorners", &ZOLWall::getLinearFeetOfInsideCorners},
    {"getLinearFeetOfOutsideCorners", &ZOLWall::getLinearFeetOfOutsideCorners},
    {"getLinearFeetOfAngles", &ZOLWall::getLinearFeetOfAngles},
    {"getLinearFeetOfTBlock", &ZOLWall::getLinearFeetOfTBlock},
    {"getGrossSqFtOfWall", &ZOLWall::getGrossSqFtOfWall},
    {"getNetSqFtOfWall", &ZOLWall::getNetSqFtOfWall},
    {"getCaloraStickWeight", &ZOLWall::getCaloraStickWeight},
    {"getTrucks", &ZOLWall::getTrucks},
    {"getConcreteYards", &ZOLWall::getConcreteYards},
    {"getConcreteMeters", &ZOLWall::getConcreteMeters},
    {"getLinearFeetRebar", &ZOLWall::getLinearFeetRebar},
    {"getTotalPartsWeight", &ZOLWall::getTotalPartsWeight},
};

nlohmann::json wallFields(const ZOLWall& w) {
    return {
        {"blockSize", w.blockSize()},
        {"wallHeight", number(w.wallHeight())},
        {"wallLength", number(w.wallLength())},
        {"insideCornerLocations", w.insideCornerLocations()},
        {"outsideCornerLocations", w.outsideCornerLocations()},
        {"angleLocations", w.angleLocations()},
        {"tBlockLocations", w.tBlockLocations()},
        {"linearFeetCorbel", number(w.linearFeetCorbel())},
        {"linearFeetCurb", number(w.linearFeetCurb())},
        {"curbCornerLocations", w.curbCornerLocations()},
        {"linearFeetTapered", number(w.linearFeetTapered())},
        {"linearFeetRadius", number(w.linearFeetRadius())},
        {"radius", w.radius()},
        {"sqftOpenings", number(w.sqftOpenings())},
        {"linearFeetBuck", number(w.linearFeetBuck())},
        {"straightBlockAdded", w.straightBlockAdded()},
        {"cornerBlockAdded", w.cornerBlockAdded()},
        {"caloraStickLayers", w.caloraStickLayers()},
        {"useCutBlock", w.useCutBlock()},
        {"useHalfBlock", w.useHalfBlock()},
        {"useExtenders", w.useExtenders()},
        {"usePravex", w.usePravex()},
        {"pelmoBrickHeight", number(w.pelmoBrickHeight())},
        {"pelmoBrickLength", number(w.pelmoBrickLength())},
        {"pelmoPerBlock", w.pelmoPerBlock()},
        {"wastePercentage", number(w.wastePercentage())},
    };
}

} // namespace

nlohmann::json wallJson(const ZOLWall& wall) {
    nlohmann::json result = nlohmann::json::object();
    result["fields"] = wallFields(wall);
    for (const IntQuery& q : kIntQueries)
        result[q.name] = (wall.*q.query)();
    for (const DoubleQuery& q : kDoubleQueries)
        result[q.name] = number((wall.*q.query)());
    nlohmann::json parts = nlohmann::json::array();
    for (int32_t type = 0; type < ZOLWallData::kPartTypeCount; ++type) {
        parts.push_back({
            {"type", type},
            {"name", partName(type)},
            {"count", wall.getPartCountWithPartType(type)},
            {"perBundle", ZOLWallData::getBundleSizeWithBlockType(type, wall.blockSize())},
            {"rounded", wall.getPartCountRoundedToFullBundlesWithPartType(type)},
            {"bundles", wall.getTotalBundlesWithPartType(type)},
            {"weight", number(wall.getApproximateWeightWithPartType(type, false))},
            {"weightRounded", number(wall.getApproximateWeightWithPartType(type, true))},
        });
    }
    result["parts"] = std::move(parts);
    return result;
}

nlohmann::json openingsJson(const ZOLOpenings& openings) {
    nlohmann::json rows = nlohmann::json::array();
    for (const auto& opening : openings.openingList()) {
        if (!opening)
            continue;
        rows.push_back({
            {"rowNumber", opening->rowNumber()},
            {"numberOfOpenings", opening->numberOfOpenings()},
            {"openingWidth", number(opening->openingWidth())},
            {"openingHeight", number(opening->openingHeight())},
            {"useSill", opening->useSill()},
            {"getNetSquareFeet", number(opening->getNetSquareFeet())},
            {"getNetLinearFeet", number(opening->getNetLinearFeet())},
            {"getTotalSquareFeet", number(opening->getTotalSquareFeet())},
            {"getTotalLinearFeet", number(opening->getTotalLinearFeet())},
            {"getTotalLinearFeetOfBuck", number(opening->getTotalLinearFeetOfBuck())},
        });
    }
    return {
        {"getTotalSquareFeet", number(openings.getTotalSquareFeet())},
        {"getTotalLinearFeet", number(openings.getTotalLinearFeet())},
        {"getTotalLinearFeetOfBuck", number(openings.getTotalLinearFeetOfBuck())},
        {"openingList", std::move(rows)},
    };
}

void printWallTakeoff(std::ostream& out, const ZOLWall& wall) {
    using CM = ZOLCalculatorMaster;
    out << "Wall take-off\n";
    std::string size = F::format("%d\"", wall.blockSize());
    if (!ZOLWallData::getBasicSizeStringWithBlockSize(wall.blockSize()))
        size += "  (not a Zol Blocks size)";
    labelled(out, "Block size", size);
    labelled(out, "Base height",
             F::format("%@  (%d rows of 16\")", CM::convertFeetToText(wall.wallHeight()),
                       wall.getRows()));
    std::string topCourses;
    auto addCourse = [&topCourses](bool used, const char* name) {
        if (used)
            topCourses += (topCourses.empty() ? "  (+ " : ", + ") + std::string(name);
    };
    addCourse(wall.useHalfBlock(), "half course");
    addCourse(wall.useCutBlock(), "cut course");
    addCourse(wall.useExtenders(), "extenders");
    if (!topCourses.empty())
        topCourses += ")";
    labelled(out, "Total height", CM::convertFeetToText(wall.getTotalWallHeight()) + topCourses);
    labelled(out, "Wall length", feet(wall.wallLength()));
    labelled(out, "Straight run", feet(wall.getLinearFeetOfStraightBlock()));
    labelled(out, "Inside corners",
             countWithFeet(wall.insideCornerLocations(), wall.getLinearFeetOfInsideCorners()));
    labelled(out, "Outside corners",
             countWithFeet(wall.outsideCornerLocations(), wall.getLinearFeetOfOutsideCorners()));
    labelled(out, "45\u00B0 angles",
             countWithFeet(wall.angleLocations(), wall.getLinearFeetOfAngles()));
    labelled(out, "T-intersections",
             countWithFeet(wall.tBlockLocations(), wall.getLinearFeetOfTBlock()));
    if (wall.linearFeetCorbel() != 0.0)
        labelled(out, "Corbel course", feet(wall.linearFeetCorbel()));
    if (wall.linearFeetCurb() != 0.0 || wall.curbCornerLocations() != 0)
        labelled(out, "Curb course",
                 F::format("%.2f ft, %d curb corners", wall.linearFeetCurb(),
                           wall.curbCornerLocations()));
    if (wall.linearFeetTapered() != 0.0)
        labelled(out, "Tapered course", feet(wall.linearFeetTapered()));
    if (wall.linearFeetRadius() != 0.0)
        labelled(out, "Curved wall",
                 F::format("%.2f ft, radius %d ft", wall.linearFeetRadius(), wall.radius()));
    labelled(out, "Gross area", F::format("%.2f sq ft", wall.getGrossSqFtOfWall()));
    labelled(
        out, "Openings",
        F::format("%.2f sq ft  (%d blocks)", wall.sqftOpenings(), wall.getOpeningsInBlockCount()));
    labelled(out, "Net area", F::format("%.2f sq ft", wall.getNetSqFtOfWall()));
    labelled(out, "Buck", F::format("%.2f lin ft", wall.linearFeetBuck()));
    if (wall.caloraStickLayers() != 0)
        labelled(out, "Calora stick layers", F::format("%d", wall.caloraStickLayers()));
    labelled(out, "Waste allowance",
             F::format("%g %% on straight blocks", wall.wastePercentage() * 100.0));
    out << "\n";

    Table parts;
    parts.header = {"Part", "Count", "Per bundle", "Rounded", "Bundles", "Weight (lbs)"};
    for (int32_t type = 0; type < ZOLWallData::kPartTypeCount; ++type) {
        parts.rows.push_back({
            partName(type),
            F::format("%d", wall.getPartCountWithPartType(type)),
            F::format("%d", ZOLWallData::getBundleSizeWithBlockType(type, wall.blockSize())),
            F::format("%d", wall.getPartCountRoundedToFullBundlesWithPartType(type)),
            F::format("%d", wall.getTotalBundlesWithPartType(type)),
            F::format("%.2f", wall.getApproximateWeightWithPartType(type, false)),
        });
    }
    parts.print(out, "  ");
    if (wall.useCutBlock())
        out << F::format("  Includes %d straight and %d corner blocks for the cut course.\n",
                         wall.getStraightCutBlocks(), wall.getCornerCutBlocks());
    if (wall.getRadiusBlocks() != 0)
        out << F::format("  Curved wall: %d radius blocks, not in the order list above.\n",
                         wall.getRadiusBlocks());
    out << "\n";

    labelled(out, "Total weight", F::format("%.2f lbs", wall.getTotalPartsWeight()));
    labelled(out, "Trucks", F::format("%.2f truck loads", wall.getTrucks()));
    labelled(
        out, "Concrete",
        F::format("%.2f cu yd  (%.2f m\u00B3)", wall.getConcreteYards(), wall.getConcreteMeters()));
    labelled(out, "Bracing", F::format("%d", wall.getBracing()));
    labelled(out, "Rebar", F::format("%.2f lin ft", wall.getLinearFeetRebar()));
}

void printOpenings(std::ostream& out, const ZOLOpenings& openings) {
    out << "Openings\n";
    Table table;
    table.header = {"Row",  "Count", "Width (in)", "Height (in)",
                    "Sill", "Sq ft", "Lin ft",     "Buck (ft)"};
    int32_t position = 0;
    for (const auto& opening : openings.openingList()) {
        if (!opening)
            continue;
        ++position;
        table.rows.push_back({
            F::format("%d", position),
            F::format("%d", opening->numberOfOpenings()),
            F::format("%.2f", opening->openingWidth()),
            F::format("%.2f", opening->openingHeight()),
            opening->useSill() ? "yes" : "no",
            F::format("%.2f", opening->getTotalSquareFeet()),
            F::format("%.2f", opening->getTotalLinearFeet()),
            F::format("%.2f", opening->getTotalLinearFeetOfBuck()),
        });
    }
    table.footer = {"Total",
                    "",
                    "",
                    "",
                    "",
                    F::format("%.2f", openings.getTotalSquareFeet()),
                    F::format("%.2f", openings.getTotalLinearFeet()),
                    F::format("%.2f", openings.getTotalLinearFeetOfBuck())};
    table.print(out, "  ");
    out << "  Linear feet include 8 inches per opening for the overlap of the buck.\n";
}

} // namespace zolcli
