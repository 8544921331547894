#include "ui/ZOLJobSnapshot.h"

#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>
#include <string>

namespace {
constexpr int kVersion = 1;

QJsonValue text(const std::optional<std::string>& value) {
    return value ? QJsonValue(QString::fromStdString(*value)) : QJsonValue(QJsonValue::Null);
}

std::optional<std::string> text(const QJsonValue& value) {
    if (!value.isString())
        return std::nullopt;
    return value.toString().toStdString();
}

// Numbers go as text with every digit, so that any value a field can hold (an overflowing
// entry reads as infinity) comes back exactly.
QJsonValue number(double value) {
    return QString::number(value, 'g', 17);
}

double number(const QJsonValue& value) {
    return value.toString().toDouble();
}

QJsonArray switches(const ZOLWorkbook& w) {
    return {w.summarizeWall(), w.summarizeRebar(), w.summarizeConcrete(), w.summarizeTilt(),
            w.summarizeManHours()};
}

QJsonObject customItem(const ZOLCustomItem& item) {
    return {{"name", text(item.name())},         {"quantity", number(item.quantity())},
            {"unit", text(item.unit())},         {"cost", number(item.cost())},
            {"tied", item.tiedToWorkbook()},     {"type", text(item.calculatorType())},
            {"visible", item.visible()}};
}

QJsonArray customItems(const ZOLWorkbook& w) {
    QJsonArray out;
    for (const auto& item : w.customItems())
        if (item)
            out.append(customItem(*item));
    return out;
}

QJsonArray priceItems(const ZOLWorkbook& w) {
    QJsonArray out;
    if (w.pricingData())
        for (const auto& item : w.pricingData()->priceItems())
            if (item)
                out.append(QJsonArray{item->partSize(), item->partType(), number(item->price())});
    return out;
}

QJsonArray worksheets(const ZOLWorkbook& w) {
    QJsonArray out;
    for (const auto& sheet : w.worksheets()) {
        const auto& concrete = sheet->concreteData();
        const auto& wall = sheet->wallData();
        out.append(QJsonObject{
            {"name", QString::fromStdString(sheet->name())},
            {"waste", number(wall ? wall->wastePercentage() : 0.0)},
            {"concreteWallHeight", number(concrete ? concrete->wallHeight() : 0.0)},
            {"removeSqFtOpenings", concrete && concrete->removeSqFtOpenings()},
            {"sqFtOpenings", number(concrete ? concrete->sqFtOpenings() : 0.0)},
        });
    }
    return out;
}

QJsonObject snapshotOf(const ZOLWorkbook& w) {
    return {{"version", kVersion},
            {"notes", text(w.notes())},
            {"projectVersion", text(w.projectVersion())},
            {"distributorName", text(w.distributorName())},
            {"summarize", switches(w)},
            {"customItems", customItems(w)},
            {"priceItems", priceItems(w)},
            {"worksheets", worksheets(w)}};
}

void applySwitches(const QJsonArray& on, ZOLWorkbook& w) {
    if (on.size() != 5)
        return;
    w.setSummarizeWall(on[0].toBool());
    w.setSummarizeRebar(on[1].toBool());
    w.setSummarizeConcrete(on[2].toBool());
    w.setSummarizeTilt(on[3].toBool());
    w.setSummarizeManHours(on[4].toBool());
}

void applyCustomItems(const QJsonArray& lines, ZOLWorkbook& w) {
    ZOLWorkbook::CustomItems items;
    for (const QJsonValue& value : lines) {
        const QJsonObject line = value.toObject();
        auto item = std::make_shared<ZOLCustomItem>();
        item->setName(text(line["name"]));
        item->setQuantity(number(line["quantity"]));
        item->setUnit(text(line["unit"]));
        item->setCost(number(line["cost"]));
        item->setTiedToWorkbook(line["tied"].toBool());
        item->setCalculatorType(text(line["type"]));
        item->setVisible(line["visible"].toBool(true));
        items.push_back(std::move(item));
    }
    w.setCustomItems(std::move(items));
}

void applyPriceItems(const QJsonArray& list, ZOLWorkbook& w) {
    std::vector<std::shared_ptr<ZOLPriceItem>> items;
    for (const QJsonValue& value : list) {
        const QJsonArray item = value.toArray();
        items.push_back(std::make_shared<ZOLPriceItem>(item[0].toInt(), item[1].toInt(),
                                                       number(item[2])));
    }
    auto pricing = std::make_shared<ZOLPricing>();
    pricing->setPriceItems(std::move(items));
    w.setPricingData(std::move(pricing));
}

// The worksheets are those of the file the snapshot was taken with; a list that does not
// match name for name is left alone.
void applyWorksheets(const QJsonArray& list, ZOLWorkbook& w) {
    const auto& sheets = w.worksheets();
    if (static_cast<size_t>(list.size()) != sheets.size())
        return;
    for (size_t i = 0; i < sheets.size(); ++i)
        if (list[static_cast<qsizetype>(i)].toObject()["name"].toString().toStdString() !=
            sheets[i]->name())
            return;
    for (size_t i = 0; i < sheets.size(); ++i) {
        const QJsonObject sheet = list[static_cast<qsizetype>(i)].toObject();
        if (const auto& wall = sheets[i]->wallData())
            wall->setWastePercentage(number(sheet["waste"]));
        if (const auto& concrete = sheets[i]->concreteData()) {
            concrete->setWallHeight(number(sheet["concreteWallHeight"]));
            concrete->setRemoveSqFtOpenings(sheet["removeSqFtOpenings"].toBool());
            concrete->setSqFtOpenings(number(sheet["sqFtOpenings"]));
        }
    }
}

// The worksheets' fields that the file does not bring back, one part at a time.
QJsonArray sheetField(const QJsonArray& sheets, const char* field) {
    QJsonArray out;
    for (const QJsonValue& sheet : sheets)
        out.append(sheet.toObject()[field]);
    return out;
}
} // namespace

QByteArray ZOLJobSnapshot::capture(const ZOLWorkbook& workbook) {
    return QJsonDocument(snapshotOf(workbook)).toJson(QJsonDocument::Compact);
}

QStringList ZOLJobSnapshot::apply(const QByteArray& snapshot, ZOLWorkbook& workbook) {
    const QJsonObject saved = QJsonDocument::fromJson(snapshot).object();
    if (saved["version"].toInt() != kVersion)
        return {};
    const QJsonObject before = snapshotOf(workbook);

    workbook.setNotes(text(saved["notes"]));
    workbook.setProjectVersion(text(saved["projectVersion"]));
    workbook.setDistributorName(text(saved["distributorName"]));
    applySwitches(saved["summarize"].toArray(), workbook);
    applyCustomItems(saved["customItems"].toArray(), workbook);
    applyPriceItems(saved["priceItems"].toArray(), workbook);
    applyWorksheets(saved["worksheets"].toArray(), workbook);

    // Say what came back that the file alone would not have given.
    const QJsonObject after = snapshotOf(workbook);
    const QJsonArray sheetsBefore = before["worksheets"].toArray();
    const QJsonArray sheetsAfter = after["worksheets"].toArray();
    QStringList restored;
    const auto changed = [&](const char* key, const QString& what) {
        if (before[key] != after[key])
            restored << what;
    };
    const auto sheetChanged = [&](const char* field, const QString& what) {
        if (sheetField(sheetsBefore, field) != sheetField(sheetsAfter, field))
            restored << what;
    };
    changed("notes", QStringLiteral("notes"));
    changed("priceItems", QStringLiteral("prices"));
    sheetChanged("concreteWallHeight", QStringLiteral("concrete heights"));
    sheetChanged("waste", QStringLiteral("waste percentages"));
    changed("customItems", QStringLiteral("job summary lines"));
    changed("summarize", QStringLiteral("summary switches"));
    changed("projectVersion", QStringLiteral("version"));
    changed("distributorName", QStringLiteral("distributor"));
    return restored;
}
