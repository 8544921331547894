// zolest diff OLD.zol NEW.zol [--prices FILE.zp] [--json|--csv]: the change order between two
// versions of a job. Exit code 0 when they are the same, 1 when they differ, 2 when a file
// cannot be read, as diff(1) does.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "report/ZOLChangeOrder.h"
#include "report/ZOLChangeOrderFormat.h"

#include <iostream>
#include <memory>

namespace {

using Order = ZOLChangeOrder;

struct Options {
    std::string older;
    std::string newer;
    std::string prices;
    bool json = false;
    bool csv = false;
};

// Counts print as integers, as the take-off prints them.
nlohmann::json amountJson(const Order::Amount& a, bool whole = false) {
    if (whole) {
        const int64_t oldCount = ZOLNumeric::toInt(a.oldValue);
        const int64_t newCount = ZOLNumeric::toInt(a.newValue);
        return {{"old", oldCount}, {"new", newCount}, {"difference", newCount - oldCount}};
    }
    return {{"old", zolcli::number(a.oldValue)},
            {"new", zolcli::number(a.newValue)},
            {"difference", zolcli::number(a.difference())}};
}

// An amount's three figures merged into an object that names it.
nlohmann::json withAmount(nlohmann::json object, const Order::Amount& a, bool whole = false) {
    object.update(amountJson(a, whole));
    return object;
}

nlohmann::json optionalText(const std::optional<std::string>& text) {
    return text ? nlohmann::json(*text) : nlohmann::json(nullptr);
}

nlohmann::json worksheetJson(const Order::Worksheet& sheet) {
    nlohmann::json fields = nlohmann::json::array();
    for (const auto& f : sheet.fields)
        fields.push_back({{"record", f.record},
                          {"field", f.field},
                          {"label", f.label},
                          {"old", optionalText(f.oldValue)},
                          {"new", optionalText(f.newValue)}});
    nlohmann::json parts = nlohmann::json::array();
    for (const auto& p : sheet.parts)
        parts.push_back(withAmount({{"type", p.type},
                                    {"name", p.name},
                                    {"fullBundles", amountJson(p.fullBundles, true)},
                                    {"bundles", amountJson(p.bundles, true)},
                                    {"weight", amountJson(p.weight)}},
                                   p.count, true));
    nlohmann::json results = nlohmann::json::array();
    for (const auto& r : sheet.results)
        results.push_back(withAmount(
            {{"record", r.record}, {"name", r.name}, {"label", r.label}, {"unit", r.unit}},
            r.amount, r.whole));
    return {{"name", sheet.name},
            {"status", Order::statusText(sheet.status)},
            {"fields", std::move(fields)},
            {"parts", std::move(parts)},
            {"results", std::move(results)}};
}

nlohmann::json orderJson(const Order& order) {
    nlohmann::json worksheets = nlohmann::json::array();
    for (const auto& sheet : order.worksheets())
        worksheets.push_back(worksheetJson(sheet));
    nlohmann::json lines = nlohmann::json::array();
    for (const auto& l : order.jobSummary())
        lines.push_back(withAmount({{"name", l.name},
                                    {"unit", l.unit},
                                    {"status", Order::statusText(l.status)},
                                    {"cost", amountJson(l.cost)},
                                    {"total", amountJson(l.total)}},
                                   l.quantity));
    const auto& money = order.money();
    return {{"same", order.isSame()},
            {"worksheets", std::move(worksheets)},
            {"jobSummary",
             {{"lines", std::move(lines)},
              {"oldTotal", zolcli::number(money.oldValue)},
              {"newTotal", zolcli::number(money.newValue)},
              {"difference", zolcli::number(money.difference())},
              {"weight", amountJson(order.weight())},
              {"trucks", amountJson(order.trucks())}}}};
}

zolcli::Registrar reg("diff", [](CLI::App& root) {
    auto* cmd = root.add_subcommand(
        "diff", "Print the change order between two versions of a job: exit code 0 when they "
                "are the same, 1 when they differ, 2 on an error");
    auto options = std::make_shared<Options>();
    cmd->add_option("OLD", options->older, "the quoted version (.zol)")->required();
    cmd->add_option("NEW", options->newer, "the changed version (.zol)")->required();
    cmd->add_option("--prices", options->prices,
                    "price both versions with this price file (.zp) instead of the new "
                    "version's price list");
    auto* json = cmd->add_flag("--json", options->json, "print one JSON object");
    cmd->add_flag("--csv", options->csv, "print CSV, one row per difference")->excludes(json);
    cmd->callback([options] {
        auto older = zolcli::openWorkbook(options->older);
        auto newer = older ? zolcli::openWorkbook(options->newer) : nullptr;
        std::shared_ptr<ZOLPricing> pricing;
        if (newer && !options->prices.empty()) {
            // Loaded over the new version's list, as `zolest takeoff --prices` loads it.
            pricing = std::make_shared<ZOLPricing>(*newer->pricingData());
            if (!zolcli::openPrices(options->prices, *pricing))
                newer = nullptr;
        }
        if (!older || !newer) {
            zolcli::setExitCode(2);
            return;
        }
        const Order order(*older, *newer, pricing);
        if (options->json) {
            zolcli::printJson(orderJson(order));
        } else if (options->csv) {
            std::cout << ZOLChangeOrderFormat::getCSV(order);
        } else {
            const ZOLChangeOrderFormat::Heading heading{
                options->older, options->newer,
                options->prices.empty() ? "the new version's price list" : options->prices};
            std::cout << ZOLChangeOrderFormat::getText(order, heading, false);
        }
        zolcli::setExitCode(order.isSame() ? 0 : 1);
    });
});

} // namespace
