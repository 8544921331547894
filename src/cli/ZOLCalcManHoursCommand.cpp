// zolest calc manhours: the labour ratings, man-hour rate, hours and days of one job, from
// the man-hour record's fields given as options.
#include "cli/ZOLCliSupport.h"
#include "cli/ZOLEngineReport.h"
#include "model/ZOLManHours.h"

#include <iostream>
#include <memory>

namespace {

zolcli::Registrar reg("calc-manhours", [](CLI::App& root) {
    CLI::App& calc =
        zolcli::group(root, "calc", "Quick estimates of one record from options, no workbook");
    CLI::App* cmd = calc.add_subcommand(
        "manhours", "Labour ratings, man-hour rate, hours and days of the crew for one job");
    cmd->footer("The three judgements take the stored rating, not a list position.");
    auto manHours = std::make_shared<ZOLManHours>();
    auto json = std::make_shared<bool>(false);
    const auto& h = manHours;

    zolcli::addDoubleOption(
        *cmd, "squareFeetOfWall", [h](double v) { h->setSquareFeetOfWall(v); },
        "gross area of wall, square feet (default 0)");
    zolcli::addIntOption(
        *cmd, "cornersAndTs", [h](int32_t v) { h->setCornersAndTs(v); },
        "number of corners and T intersections (default 0)");
    zolcli::addDoubleOption(
        *cmd, "squareFeetOfOpenings", [h](double v) { h->setSquareFeetOfOpenings(v); },
        "area of the openings, square feet (default 0)");
    zolcli::addDoubleOption(
        *cmd, "linearFeetCorbelCurbTapered",
        [h](double v) { h->setLinearFeetCorbelCurbTapered(v); },
        "lineal feet of corbel, curb and tapered wall (default 0)");
    zolcli::addDoubleOption(
        *cmd, "wallHeight", [h](double v) { h->setWallHeight(v); },
        "height of the wall, feet (default 8)");
    zolcli::addIntOption(
        *cmd, "rebarComplexity", [h](int32_t v) { h->setRebarComplexity(v); },
        "rebar complexity rating: 1 None, 2 Minor, 3 Average, 6 Above Average, "
        "9 Intense (default 3)");
    zolcli::addIntOption(
        *cmd, "crewExperience", [h](int32_t v) { h->setCrewExperience(v); },
        "crew experience rating: 9 Low, 5 Average, 2 High (default 5)");
    zolcli::addIntOption(
        *cmd, "siteConditions", [h](int32_t v) { h->setSiteConditions(v); },
        "site conditions rating: 9 Poor, 5 Average, 3 Ideal (default 5)");
    zolcli::addIntOption(
        *cmd, "otherTurns", [h](int32_t v) { h->setOtherTurns(v); },
        "number of other turns, which is also their rating (default 0)");
    zolcli::addDoubleOption(
        *cmd, "laborCost", [h](double v) { h->setLaborCost(v); },
        "labour cost per man hour, dollars (default 0)");
    zolcli::addIntOption(
        *cmd, "crewSize", [h](int32_t v) { h->setCrewSize(v); },
        "number of workers in the crew (default 6)");
    cmd->add_flag("--json", *json, "print every field, rating and result as one JSON object");

    cmd->callback([manHours, json] {
        if (*json)
            zolcli::printJson(zolcli::manHoursJson(*manHours));
        else
            zolcli::printManHours(std::cout, *manHours);
    });
});

} // namespace
