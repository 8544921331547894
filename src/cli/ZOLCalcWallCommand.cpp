// zolest calc wall: the take-off of one wall from options named after the wall's fields, with
// the openings list given as --opening COUNT,WIDTH,HEIGHT[,nosill].
#include "cli/ZOLCliSupport.h"
#include "cli/ZOLWallReport.h"
#include "io/ZOLText.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"

#include <iostream>
#include <memory>
#include <sstream>

namespace {

const char* const kOpeningForm = "COUNT,WIDTH,HEIGHT[,nosill]";

std::vector<std::string> splitCommas(const std::string& text) {
    std::vector<std::string> parts;
    std::stringstream stream(text);
    std::string part;
    while (std::getline(stream, part, ','))
        parts.push_back(part);
    if (!text.empty() && text.back() == ',')
        parts.emplace_back();
    return parts;
}

bool isWholeNumber(const std::string& text) {
    std::size_t i = (!text.empty() && (text[0] == '-' || text[0] == '+')) ? 1 : 0;
    if (i == text.size())
        return false;
    for (; i < text.size(); ++i)
        if (text[i] < '0' || text[i] > '9')
            return false;
    return true;
}

// One row of the openings list; a row that cannot be read is a usage error naming the text.
std::shared_ptr<ZOLOpening> parseOpening(const std::string& text, int32_t rowNumber) {
    auto fail = [&text](const std::string& why) {
        return CLI::ValidationError("--opening", "'" + text + "': " + why + " (expected " +
                                                     kOpeningForm + ", sizes in inches)");
    };
    const std::vector<std::string> parts = splitCommas(text);
    if (parts.size() < 3 || parts.size() > 4)
        throw fail("needs three or four comma-separated fields");
    if (!isWholeNumber(parts[0]))
        throw fail("the count '" + parts[0] + "' is not a whole number");
    if (!ZOLText::isNumber(parts[1]))
        throw fail("the width '" + parts[1] + "' is not a number");
    if (!ZOLText::isNumber(parts[2]))
        throw fail("the height '" + parts[2] + "' is not a number");
    bool sill = true;
    if (parts.size() == 4) {
        if (parts[3] == "nosill")
            sill = false;
        else if (parts[3] != "sill")
            throw fail("the last field must be 'sill' or 'nosill', not '" + parts[3] + "'");
    }
    auto opening = std::make_shared<ZOLOpening>();
    // Rows are numbered the way the openings screen numbers new rows: from 0.
    opening->setRowNumber(rowNumber);
    opening->setNumberOfOpenings(ZOLText::leadingInt(parts[0]));
    opening->setOpeningWidth(ZOLText::leadingDouble(parts[1]));
    opening->setOpeningHeight(ZOLText::leadingDouble(parts[2]));
    opening->setUseSill(sill);
    return opening;
}

void addWallOptions(CLI::App& cmd, const std::shared_ptr<ZOLWall>& wall) {
    using zolcli::addBoolOption;
    using zolcli::addDoubleOption;
    using zolcli::addIntOption;
    ZOLWall* w = wall.get();
    addIntOption(
        cmd, "blockSize", [w](int32_t v) { w->setBlockSize(v); },
        "block size: concrete core width in inches, 4, 6, 8, 10 or 12 (default 8)");
    addDoubleOption(
        cmd, "wallHeight", [w](double v) { w->setWallHeight(v); },
        "base wall height in feet, normally whole 16-inch courses: 8, 9.334, 10.667 ... "
        "(default 8)");
    addDoubleOption(
        cmd, "wallLength", [w](double v) { w->setWallLength(v); },
        "total length of wall in feet (default 0)");
    addIntOption(
        cmd, "insideCornerLocations", [w](int32_t v) { w->setInsideCornerLocations(v); },
        "number of inside 90\u00B0 corners");
    addIntOption(
        cmd, "outsideCornerLocations", [w](int32_t v) { w->setOutsideCornerLocations(v); },
        "number of outside 90\u00B0 corners");
    addIntOption(
        cmd, "angleLocations", [w](int32_t v) { w->setAngleLocations(v); },
        "number of 45\u00B0 angle locations (angle blocks in 4, 6 and 8 inches)");
    addIntOption(
        cmd, "tBlockLocations", [w](int32_t v) { w->setTBlockLocations(v); },
        "number of T-intersections (T-blocks in 6 and 8 inches)");
    addDoubleOption(
        cmd, "linearFeetCorbel", [w](double v) { w->setLinearFeetCorbel(v); },
        "feet of corbel course (6 and 8 inches); also sets the Pravex count");
    addDoubleOption(
        cmd, "linearFeetCurb", [w](double v) { w->setLinearFeetCurb(v); },
        "feet of curb course (8 and 10 inches)");
    addIntOption(
        cmd, "curbCornerLocations", [w](int32_t v) { w->setCurbCornerLocations(v); },
        "number of corners in the curb course; they replace corner blocks");
    addDoubleOption(
        cmd, "linearFeetTapered", [w](double v) { w->setLinearFeetTapered(v); },
        "feet of tapered course (6 and 8 inches)");
    addDoubleOption(
        cmd, "linearFeetRadius", [w](double v) { w->setLinearFeetRadius(v); },
        "feet of curved wall (radius blocks, 6 inches only)");
    addIntOption(
        cmd, "radius", [w](int32_t v) { w->setRadius(v); },
        "radius of the curved wall in feet; recorded, no quantity depends on it (default 10)");
    addDoubleOption(
        cmd, "sqftOpenings", [w](double v) { w->setSqftOpenings(v); },
        "square feet of openings in the wall; --opening replaces it");
    addDoubleOption(
        cmd, "linearFeetBuck", [w](double v) { w->setLinearFeetBuck(v); },
        "feet of buck around the openings; --opening replaces it");
    addIntOption(
        cmd, "straightBlockAdded", [w](int32_t v) { w->setStraightBlockAdded(v); },
        "straight blocks added by hand");
    addIntOption(
        cmd, "cornerBlockAdded", [w](int32_t v) { w->setCornerBlockAdded(v); },
        "corner blocks added by hand");
    addIntOption(
        cmd, "caloraStickLayers", [w](int32_t v) { w->setCaloraStickLayers(v); },
        "layers of R9 calora sticks, 0 for none; each layer takes 2 inches of concrete core");
    addBoolOption(
        cmd, "useCutBlock", [w](bool v) { w->setUseCutBlock(v); },
        "a course of cut blocks tops the wall (+8 inches)");
    addBoolOption(
        cmd, "useHalfBlock", [w](bool v) { w->setUseHalfBlock(v); },
        "a course of half-height blocks tops the wall (+8 inches)");
    addBoolOption(
        cmd, "useExtenders", [w](bool v) { w->setUseExtenders(v); },
        "4-inch extenders top the wall (+4 inches)");
    addBoolOption(
        cmd, "usePravex", [w](bool v) { w->setUsePravex(v); },
        "Pravex wanted; recorded, the Pravex count follows the corbel course");
    addDoubleOption(
        cmd, "pelmoBrickHeight", [w](double v) { w->setPelmoBrickHeight(v); },
        "brick-ledge height in feet, for the pelmo count");
    addDoubleOption(
        cmd, "pelmoBrickLength", [w](double v) { w->setPelmoBrickLength(v); },
        "brick-ledge length in feet, for the pelmo count");
    addIntOption(
        cmd, "pelmoPerBlock", [w](int32_t v) { w->setPelmoPerBlock(v); },
        "pelmos per block: 2 divides the ledge area (height x length) by 2.6, any other value "
        "by 1.8 (default 0)");
    addDoubleOption(
        cmd, "wastePercentage", [w](double v) { w->setWastePercentage(v); },
        "waste allowance on straight blocks as a fraction: 0.02 is 2 % (default 0.02)");
}

zolcli::Registrar reg("calc-wall", [](CLI::App& root) {
    CLI::App& calc =
        zolcli::group(root, "calc", "Quick estimates of one record from options, no workbook");
    CLI::App* cmd = calc.add_subcommand(
        "wall", "Take-off of one wall: parts, bundles, weights, trucks, concrete, bracing, rebar");
    cmd->footer(
        "Lengths are in feet, openings in inches. Booleans take true/false, yes/no, on/off "
        "or 1/0.\n"
        "Example:\n"
        "  zolest calc wall --wallLength 100 --wallHeight 8 --blockSize 8 --useHalfBlock true\n"
        "  zolest calc wall --wallLength 60 --opening 3,36,48 --opening 1,72,80,nosill --json");

    auto wall = std::make_shared<ZOLWall>();
    auto openings = std::make_shared<ZOLOpenings>();
    auto json = std::make_shared<bool>(false);
    addWallOptions(*cmd, wall);
    cmd->add_option_function<std::vector<std::string>>(
           "--opening",
           [openings](const std::vector<std::string>& texts) {
               for (const std::string& text : texts)
                   openings->addOpeningObject(
                       parseOpening(text, static_cast<int32_t>(openings->openingList().size())));
           },
           "an opening row: how many, rough width and height in inches, 'nosill' for a buck "
           "head without a sill (repeatable); the list's square feet and buck replace "
           "--sqftOpenings and --linearFeetBuck")
        ->type_name(kOpeningForm)
        ->allow_extra_args(false);
    cmd->add_flag("--json", *json, "print every quantity of the wall as one JSON object");

    cmd->callback([wall, openings, json]() {
        const bool haveOpenings = !openings->openingList().empty();
        if (haveOpenings) {
            // As the openings screen does when the user sends the list to the wall.
            wall->setLinearFeetBuck(openings->getTotalLinearFeetOfBuck());
            wall->setSqftOpenings(openings->getTotalSquareFeet());
        }
        if (*json) {
            nlohmann::json result = zolcli::wallJson(*wall);
            if (haveOpenings)
                result["openings"] = zolcli::openingsJson(*openings);
            zolcli::printJson(result);
            return;
        }
        if (haveOpenings) {
            zolcli::printOpenings(std::cout, *openings);
            std::cout << "\n";
        }
        zolcli::printWallTakeoff(std::cout, *wall);
    });
});

} // namespace
