// zolest calc concrete: volumes and weights of the footing, piles, slab and wall pours, from
// the concrete record's fields given as options.
#include "cli/ZOLCliSupport.h"
#include "cli/ZOLEngineReport.h"
#include "model/ZOLConcrete.h"

#include <iostream>
#include <memory>

namespace {

zolcli::Registrar reg("calc-concrete", [](CLI::App& root) {
    CLI::App& calc =
        zolcli::group(root, "calc", "Quick estimates of one record from options, no workbook");
    CLI::App* cmd = calc.add_subcommand(
        "concrete", "Volume and weight of concrete for a footing, piles, a slab and a wall");
    auto concrete = std::make_shared<ZOLConcrete>();
    auto json = std::make_shared<bool>(false);
    const auto& c = concrete;

    zolcli::addIntOption(
        *cmd, "measurement", [c](int32_t v) { c->setMeasurement(v); },
        "unit of the volumes: 0 = cubic yards, 1 = cubic metres; dimensions "
        "stay feet and inches, weights pounds (default 0)");
    zolcli::addIntOption(
        *cmd, "footingWidth", [c](int32_t v) { c->setFootingWidth(v); },
        "width of the footing, whole inches (default 0)");
    zolcli::addDoubleOption(
        *cmd, "footingLength", [c](double v) { c->setFootingLength(v); },
        "length of the footing, feet (default 0)");
    zolcli::addIntOption(
        *cmd, "footingDepth", [c](int32_t v) { c->setFootingDepth(v); },
        "depth of the footing, whole inches (default 0)");
    zolcli::addDoubleOption(
        *cmd, "pileDepth", [c](double v) { c->setPileDepth(v); },
        "depth of each pile, feet (default 0)");
    zolcli::addIntOption(
        *cmd, "pileDiameter", [c](int32_t v) { c->setPileDiameter(v); },
        "diameter of each pile, whole inches; the radius is half of it in whole "
        "inches (default 0)");
    zolcli::addIntOption(
        *cmd, "pileCount", [c](int32_t v) { c->setPileCount(v); },
        "number of equal piles (default 0)");
    zolcli::addDoubleOption(
        *cmd, "slabLength", [c](double v) { c->setSlabLength(v); },
        "length of the slab, feet (default 0)");
    zolcli::addDoubleOption(
        *cmd, "slabWidth", [c](double v) { c->setSlabWidth(v); },
        "width of the slab, feet (default 0)");
    zolcli::addIntOption(
        *cmd, "slabDepth", [c](int32_t v) { c->setSlabDepth(v); },
        "thickness of the slab, whole inches (default 0)");
    zolcli::addDoubleOption(
        *cmd, "wallLength", [c](double v) { c->setWallLength(v); },
        "length of the wall, feet (default 0)");
    zolcli::addIntOption(
        *cmd, "wallThickness", [c](int32_t v) { c->setWallThickness(v); },
        "thickness of the wall's concrete core, whole inches (default 0)");
    zolcli::addDoubleOption(
        *cmd, "wallHeight", [c](double v) { c->setWallHeight(v); },
        "height of the wall, feet (default 0)");
    zolcli::addBoolOption(
        *cmd, "removeSqFtOpenings", [c](bool v) { c->setRemoveSqFtOpenings(v); },
        "take the openings out of the wall pour: true or false (default false)");
    zolcli::addDoubleOption(
        *cmd, "sqFtOpenings", [c](double v) { c->setSqFtOpenings(v); },
        "area of the openings in the wall, square feet (default 0)");
    cmd->add_flag("--json", *json, "print every field, volume and weight as one JSON object");

    cmd->callback([concrete, json] {
        if (*json)
            zolcli::printJson(zolcli::concreteJson(*concrete));
        else
            zolcli::printConcrete(std::cout, *concrete);
    });
});

} // namespace
