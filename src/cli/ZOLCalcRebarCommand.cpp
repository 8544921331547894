// zolest calc rebar: the linear feet of reinforcing steel of one wall, from the rebar record's
// fields given as options.
#include "cli/ZOLCliSupport.h"
#include "cli/ZOLEngineReport.h"
#include "model/ZOLRebar.h"

#include <iostream>
#include <memory>

namespace {

const char* const kSizeHelp =
    "position in the size list counted from 1: Imperial 1=#4 2=#5 3=#6 4=#7 5=#8, "
    "Metric 1=10M 2=15M 3=20M 4=25M (default 1)";

zolcli::Registrar reg("calc-rebar", [](CLI::App& root) {
    CLI::App& calc =
        zolcli::group(root, "calc", "Quick estimates of one record from options, no workbook");
    CLI::App* cmd = calc.add_subcommand(
        "rebar", "Linear feet of horizontal bars, vertical bars and dowels for one wall");
    cmd->footer("Laps, spacings and the dowel length count in whole feet (11 inches are no foot): "
                "a spacing of 1 to 11 inches gives an infinite length.");
    auto rebar = std::make_shared<ZOLRebar>();
    auto json = std::make_shared<bool>(false);
    const auto& r = rebar;

    zolcli::addIntOption(
        *cmd, "measurement", [r](int32_t v) { r->setMeasurement(v); },
        "bar-size names: 0 = Imperial (#4 to #8), any other = Metric (10M to "
        "25M); lengths stay in feet (default 0)");
    zolcli::addDoubleOption(
        *cmd, "wallLength", [r](double v) { r->setWallLength(v); },
        "length of the wall, feet (default 0)");
    zolcli::addDoubleOption(
        *cmd, "wallHeight", [r](double v) { r->setWallHeight(v); },
        "height of the wall, feet (default 8)");
    zolcli::addIntOption(
        *cmd, "horizontalSize1", [r](int32_t v) { r->setHorizontalSize1(v); },
        std::string("bar size of horizontal set 1, ") + kSizeHelp);
    zolcli::addIntOption(
        *cmd, "horizontalRowCount1", [r](int32_t v) { r->setHorizontalRowCount1(v); },
        "rows of horizontal set 1, each running the whole wall (default 0)");
    zolcli::addIntOption(
        *cmd, "horizontalLap1", [r](int32_t v) { r->setHorizontalLap1(v); },
        "lap splice of set 1, whole inches; one lap per row every 20 feet "
        "(default 0)");
    zolcli::addIntOption(
        *cmd, "horizontalSize2", [r](int32_t v) { r->setHorizontalSize2(v); },
        std::string("bar size of horizontal set 2, ") + kSizeHelp);
    zolcli::addIntOption(
        *cmd, "horizontalRowCount2", [r](int32_t v) { r->setHorizontalRowCount2(v); },
        "rows of horizontal set 2 (default 0)");
    zolcli::addIntOption(
        *cmd, "horizontalLap2", [r](int32_t v) { r->setHorizontalLap2(v); },
        "lap splice of set 2, whole inches (default 0)");
    zolcli::addIntOption(
        *cmd, "verticalSize", [r](int32_t v) { r->setVerticalSize(v); },
        std::string("bar size of the vertical bars, ") + kSizeHelp);
    zolcli::addIntOption(
        *cmd, "verticalSpacing", [r](int32_t v) { r->setVerticalSpacing(v); },
        "spacing of the vertical bars along the wall, whole inches; under 1 "
        "means no vertical bars (default 0)");
    zolcli::addIntOption(
        *cmd, "dowelSize", [r](int32_t v) { r->setDowelSize(v); },
        std::string("bar size of the dowels, ") + kSizeHelp);
    zolcli::addIntOption(
        *cmd, "dowelSpacing", [r](int32_t v) { r->setDowelSpacing(v); },
        "spacing of the dowels along the wall, whole inches; under 1 means no "
        "dowels (default 0)");
    zolcli::addIntOption(
        *cmd, "dowelLength", [r](int32_t v) { r->setDowelLength(v); },
        "length of one dowel, whole inches (default 0)");
    cmd->add_flag("--json", *json, "print every field and computed length as one JSON object");

    cmd->callback([rebar, json] {
        if (*json)
            zolcli::printJson(zolcli::rebarJson(*rebar));
        else
            zolcli::printRebar(std::cout, *rebar);
    });
});

} // namespace
