#pragma once
#include <cmath>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class ZOLPricing;
class ZOLWorkbook;

// What changed between two versions of a job: the quoted one (older) and the one the client now
// wants (newer). Worksheets are matched by name. For each worksheet the change order lists the
// inputs that differ, as the entry screens show them, and every take-off result that differs:
// part counts, full bundles, bundles and weights, then trucks, concrete, steel, tilt-up parts,
// hours and days. For the job it lists the job-summary lines that differ and the totals of
// money, weight and trucks.
//
// Both versions are priced with one price list, so that the money shows what the work changed
// and not what prices did: the newer version's own list unless another is given. Neither
// workbook is changed; their job summaries are regenerated on copies.
class ZOLChangeOrder {
public:
    enum class Status { Same, Changed, Added, Removed };

    // An old and a new figure; a side the job does not have counts as 0.
    struct Amount {
        double oldValue = 0.0;
        double newValue = 0.0;
        double difference() const { return newValue - oldValue; }
        // A figure that is not a number on both sides (a damaged file's) has not changed.
        bool differs() const {
            return oldValue != newValue && !(std::isnan(oldValue) && std::isnan(newValue));
        }
    };

    // An input of one record: `record` is the screen's name ("Wall", "Openings"), `field` the
    // record's field and `label` what the screen calls it. Values are the screen's text with
    // its unit; a side without the input (a new opening row) has none.
    struct Field {
        std::string record;
        std::string field;
        std::string label;
        std::optional<std::string> oldValue;
        std::optional<std::string> newValue;
    };

    // A computed figure of one record: `name` is its query, `unit` what it counts; `whole`
    // for counts.
    struct Result {
        std::string record;
        std::string name;
        std::string label;
        std::string unit;
        bool whole = false;
        Amount amount;
    };

    // One part type of the wall's order list: count (as getPartCountWithPartType), count
    // rounded to full bundles, bundles and approximate weight in pounds.
    struct Part {
        int32_t type = 0;
        std::string name;
        Amount count;
        Amount fullBundles;
        Amount bundles;
        Amount weight;
    };

    struct Worksheet {
        std::string name;
        Status status = Status::Same;
        std::vector<Field> fields;
        std::vector<Result> results;
        std::vector<Part> parts;
    };

    // A job-summary line of either version, matched by name and source. Its total is
    // quantity x unit price when the line is shown, 0 when it is hidden.
    struct SummaryLine {
        std::string name;
        std::string unit;
        Status status = Status::Same;
        Amount quantity;
        Amount cost;
        Amount total;
    };

    // `pricing`: the price list both versions are priced with; the newer one's when null.
    ZOLChangeOrder(const ZOLWorkbook& older, const ZOLWorkbook& newer,
                   std::shared_ptr<ZOLPricing> pricing = nullptr);

    // Every worksheet of the newer version in its order, then the removed ones.
    const std::vector<Worksheet>& worksheets() const { return worksheets_; }
    // The lines that differ, in the newer version's order, then the removed ones.
    const std::vector<SummaryLine>& jobSummary() const { return jobSummary_; }
    // The shown job-summary lines' money, the walls' part weights (lbs) and truck loads.
    const Amount& money() const { return money_; }
    const Amount& weight() const { return weight_; }
    const Amount& trucks() const { return trucks_; }

    // True when nothing at all differs.
    bool isSame() const;

    // "same", "changed", "added", "removed".
    static const char* statusText(Status status);

private:
    std::vector<Worksheet> worksheets_;
    std::vector<SummaryLine> jobSummary_;
    Amount money_;
    Amount weight_;
    Amount trucks_;
};
