// zolest calc tilt: tilt-up panels and inserts for one side of a wall, with bundles and
// weights, from the tilt-up record's fields given as options.
#include "cli/ZOLCliSupport.h"
#include "cli/ZOLEngineReport.h"
#include "model/ZOLTilt.h"

#include <iostream>
#include <memory>

namespace {

zolcli::Registrar reg("calc-tilt", [](CLI::App& root) {
    CLI::App& calc =
        zolcli::group(root, "calc", "Quick estimates of one record from options, no workbook");
    CLI::App* cmd = calc.add_subcommand(
        "tilt", "Tilt-up panels and inserts for one side of a wall: counts, bundles, weights");
    auto tilt = std::make_shared<ZOLTilt>();
    auto json = std::make_shared<bool>(false);
    const auto& t = tilt;

    zolcli::addDoubleOption(
        *cmd, "wallHeight", [t](double v) { t->setWallHeight(v); },
        "height of the wall to cover, feet (default 0)");
    zolcli::addDoubleOption(
        *cmd, "wallLength", [t](double v) { t->setWallLength(v); },
        "length of the wall to cover, feet (default 0)");
    cmd->add_flag("--json", *json, "print both fields and every count and weight as JSON");

    cmd->callback([tilt, json] {
        if (*json)
            zolcli::printJson(zolcli::tiltJson(*tilt));
        else
            zolcli::printTilt(std::cout, *tilt);
    });
});

} // namespace
