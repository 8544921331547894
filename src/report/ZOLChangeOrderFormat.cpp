#include "report/ZOLChangeOrderFormat.h"

#include "io/ZOLFormat.h"
#include "io/ZOLXMLWriter.h"
#include "model/ZOLWorkbook.h"
#include "report/ZOLChangeOrder.h"
#include "report/ZOLCsvExport.h"
#include "report/ZOLPrintData.h"

#include <tuple>
#include <vector>

namespace {

using F = ZOLFormat;
using Order = ZOLChangeOrder;

// One line of the change order, before it becomes text or HTML: a heading, a line of prose, or
// a row of a table of old, new and difference (a table starts with its column titles).
struct Line {
    enum Kind { Title, Heading, Prose, Columns, Row } kind;
    std::vector<std::string> cells;
};

std::string figure(double value, bool whole) {
    return F::format(whole ? "%.0f" : "%.2f", value);
}

std::string change(double value, bool whole) {
    return F::format(whole ? "%+.0f" : "%+.2f", value);
}

std::string money(double value) {
    return F::format(value < 0 ? "-$%.2f" : "$%.2f", value < 0 ? -value : value);
}

std::string moneyChange(double value) {
    return (value < 0 ? "-" : "+") + money(value < 0 ? -value : value);
}

std::string withUnit(const std::string& label, const std::string& unit) {
    return unit.empty() ? label : label + " (" + unit + ")";
}

Line amountRow(const std::string& label, const Order::Amount& a, bool whole) {
    return {Line::Row,
            {label, figure(a.oldValue, whole), figure(a.newValue, whole),
             change(a.difference(), whole)}};
}

Line moneyRow(const std::string& label, const Order::Amount& a) {
    return {Line::Row, {label, money(a.oldValue), money(a.newValue), moneyChange(a.difference())}};
}

const std::vector<std::string> kColumns{"", "Old", "New", "Difference"};

void worksheetLines(std::vector<Line>& lines, const Order::Worksheet& sheet) {
    lines.push_back(
        {Line::Heading,
         {F::format("Worksheet \"%@\": %@", sheet.name, Order::statusText(sheet.status))}});
    if (!sheet.fields.empty()) {
        lines.push_back({Line::Columns, {"Inputs", "Old", "New", ""}});
        for (const auto& f : sheet.fields)
            lines.push_back({Line::Row,
                             {f.record + ": " + f.label, f.oldValue.value_or("(none)"),
                              f.newValue.value_or("(none)"), ""}});
    }
    if (!sheet.parts.empty()) {
        lines.push_back({Line::Columns, {"Parts", "Old", "New", "Difference"}});
        for (const auto& p : sheet.parts) {
            lines.push_back(amountRow(p.name, p.count, true));
            if (p.fullBundles.differs())
                lines.push_back(amountRow("  full bundles", p.fullBundles, true));
            if (p.bundles.differs())
                lines.push_back(amountRow("  bundles", p.bundles, true));
            if (p.weight.differs())
                lines.push_back(amountRow("  weight (lbs)", p.weight, false));
        }
    }
    if (!sheet.results.empty()) {
        lines.push_back({Line::Columns, {"Results", "Old", "New", "Difference"}});
        for (const auto& r : sheet.results) {
            const std::string label =
                r.record + ": " + withUnit(r.label, r.unit == "$" ? "" : r.unit);
            lines.push_back(r.unit == "$" ? moneyRow(label, r.amount)
                                          : amountRow(label, r.amount, r.whole));
        }
    }
}

std::vector<Line> orderLines(const Order& order, const ZOLChangeOrderFormat::Heading& heading,
                             bool onlyChanges) {
    std::vector<Line> lines;
    lines.push_back({Line::Title, {"Change Order"}});
    lines.push_back({Line::Prose, {"Old version: " + heading.oldVersion}});
    lines.push_back({Line::Prose, {"New version: " + heading.newVersion}});
    lines.push_back({Line::Prose, {"Priced with: " + heading.pricedWith}});
    if (order.isSame())
        lines.push_back({Line::Prose, {"The two versions of the job are the same."}});
    std::vector<std::string> unchanged;
    for (const auto& sheet : order.worksheets()) {
        if (sheet.status != Order::Status::Same)
            worksheetLines(lines, sheet);
        else if (!onlyChanges)
            lines.push_back({Line::Heading, {F::format("Worksheet \"%@\": same", sheet.name)}});
    }
    lines.push_back({Line::Heading, {"Job summary"}});
    if (!order.jobSummary().empty()) {
        lines.push_back({Line::Columns, {"Lines that differ", "Old", "New", "Difference"}});
        for (const auto& s : order.jobSummary()) {
            const std::string name = s.name + (s.status == Order::Status::Added     ? " (added)"
                                               : s.status == Order::Status::Removed ? " (removed)"
                                                                                    : "");
            lines.push_back(amountRow(withUnit(name, s.unit), s.quantity, false));
            if (s.cost.differs())
                lines.push_back(moneyRow("  unit price", s.cost));
            lines.push_back(moneyRow("  total", s.total));
        }
    }
    lines.push_back({Line::Columns, {"Totals", "Old", "New", "Difference"}});
    lines.push_back(moneyRow("Money", order.money()));
    lines.push_back(amountRow("Weight (lbs)", order.weight(), false));
    lines.push_back(amountRow("Trucks", order.trucks(), false));
    return lines;
}

// Terminal columns of a UTF-8 text: part names carry a degree sign.
std::size_t columns(const std::string& text) {
    std::size_t n = 0;
    for (unsigned char c : text)
        n += (c & 0xC0) != 0x80;
    return n;
}

std::string pad(const std::string& text, std::size_t width, bool right) {
    const std::size_t used = columns(text);
    const std::string fill(used < width ? width - used : 0, ' ');
    return right ? fill + text : text + fill;
}

// A page holds this many table rows of the change order below its margins; the title block
// takes 8 of them, a heading or a table's start 2. A longer order goes on to a next page.
constexpr std::size_t kLinesPerPage = 54;

} // namespace

std::string ZOLChangeOrderFormat::getText(const ZOLChangeOrder& order, const Heading& heading,
                                          bool onlyChanges) {
    std::string text;
    for (const Line& line : orderLines(order, heading, onlyChanges)) {
        switch (line.kind) {
        case Line::Title:
            text += line.cells[0] + "\n";
            break;
        case Line::Prose:
            text += "  " + line.cells[0] + "\n";
            break;
        case Line::Heading:
            text += "\n" + line.cells[0] + "\n";
            break;
        case Line::Columns:
            text += "\n";
            [[fallthrough]];
        case Line::Row: {
            std::string row = "  " + pad(line.cells[0], 44, false);
            for (std::size_t i = 1; i < line.cells.size(); ++i)
                row += " " + pad(line.cells[i], 14, true);
            while (!row.empty() && row.back() == ' ')
                row.pop_back();
            text += row + "\n";
            break;
        }
        }
    }
    return text;
}

std::string ZOLChangeOrderFormat::getHTML(const ZOLChangeOrder& order, const Heading& heading,
                                          const ZOLWorkbook& newer, bool onlyChanges) {
    const std::string info = ZOLPrintData::getProjectInfoHTML(
        nullptr, ZOLXMLWriter::escape(newer.projectName()),
        ZOLXMLWriter::escape(newer.projectVersion()), ZOLXMLWriter::escape(newer.clientName()),
        ZOLXMLWriter::escape(newer.distributorName()), newer.projectDate());
    const auto lines = orderLines(order, heading, onlyChanges);

    std::string html = ZOLPrintData::getHeaderHTML();
    bool inTable = false;
    std::size_t used = 0;
    std::vector<std::string> columnTitles;
    bool inProse = false;
    auto closeTable = [&] {
        if (inTable)
            html += "</table>\n";
        if (inProse)
            html += "</p>\n";
        inTable = inProse = false;
    };
    auto openTable = [&](const std::vector<std::string>& titles) {
        html += "<table>\n<tr>\n";
        for (std::size_t i = 0; i < titles.size(); ++i)
            html += F::format(i ? "<th style=\"text-align:right\">%@</th>\n" : "<th>%@</th>\n",
                              ZOLXMLWriter::escape(titles[i]));
        html += "</tr>\n";
        inTable = true;
    };
    for (const Line& line : lines) {
        if (line.kind == Line::Title) {
            html += F::format("<div class=\"page\">\n<div class=\"content change-order\">\n"
                              "<h1>%@</h1>\n%@\n",
                              ZOLXMLWriter::escape(line.cells[0]), info);
            used = 8;
            continue;
        }
        // A heading or a table's column titles never stand alone at the foot of a page.
        const std::size_t needed = line.kind == Line::Row || line.kind == Line::Prose ? 1 : 4;
        if (used + needed > kLinesPerPage) {
            closeTable();
            html += "</div>\n</div>\n";
            html += "<div class=\"page\">\n<div class=\"content change-order\">\n"
                    "<h1>Change Order (continued)</h1>\n" +
                    info + "\n";
            used = 8;
            if (line.kind == Line::Row) {
                openTable(columnTitles);
                used += 2;
            }
        }
        switch (line.kind) {
        case Line::Title:
            break;
        case Line::Prose:
            // The heading lines read as one block, as the project block above them.
            if (!inProse)
                closeTable();
            html +=
                F::format(inProse ? "<br />\n%@" : "<p>%@", ZOLXMLWriter::escape(line.cells[0]));
            inProse = true;
            used += 1;
            break;
        case Line::Heading:
            closeTable();
            html += F::format("<h3>%@</h3>\n", ZOLXMLWriter::escape(line.cells[0]));
            used += 2;
            break;
        case Line::Columns:
            closeTable();
            columnTitles = line.cells;
            openTable(columnTitles);
            used += 2;
            break;
        case Line::Row:
            html += "<tr>\n";
            for (std::size_t c = 0; c < line.cells.size(); ++c)
                html += F::format(c ? "<td style=\"text-align:right\">%@</td>\n"
                                  : line.cells[c].starts_with("  ")
                                      ? "<td style=\"padding-left:1.5em\">%@</td>\n"
                                      : "<td>%@</td>\n",
                                  ZOLXMLWriter::escape(line.cells[c]));
            html += "</tr>\n";
            used += 1;
            break;
        }
    }
    closeTable();
    html += "</div>\n</div>\n";
    html += ZOLPrintData::getFooterHTML();
    return html;
}

std::string ZOLChangeOrderFormat::getCSV(const ZOLChangeOrder& order) {
    std::string csv;
    auto row = [&csv](std::vector<std::string> cells) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            csv += (i ? "," : "") + ZOLCsvExport::field(cells[i]);
        csv += "\r\n";
    };
    auto amount = [&](const std::string& sheet, const char* status, const char* section,
                      const std::string& record, const std::string& item, const std::string& unit,
                      const Order::Amount& a, bool whole) {
        row({sheet, status, section, record, item, unit, figure(a.oldValue, whole),
             figure(a.newValue, whole), change(a.difference(), whole)});
    };
    row({"worksheet", "status", "section", "record", "item", "unit", "old", "new", "difference"});
    for (const auto& s : order.worksheets()) {
        const char* status = Order::statusText(s.status);
        if (s.status == Order::Status::Added || s.status == Order::Status::Removed)
            row({s.name, status, "worksheet", "", s.name, "", "", "", ""});
        for (const auto& f : s.fields)
            row({s.name, status, "input", f.record, f.label, "", f.oldValue.value_or(""),
                 f.newValue.value_or(""), ""});
        for (const auto& p : s.parts) {
            const std::pair<const char*, const Order::Amount*> figures[] = {
                {"count", &p.count},
                {"full bundles", &p.fullBundles},
                {"bundles", &p.bundles},
                {"lbs", &p.weight}};
            for (const auto& [unit, a] : figures)
                if (a->differs())
                    amount(s.name, status, "part", "Wall", p.name, unit, *a, a != &p.weight);
        }
        for (const auto& r : s.results)
            amount(s.name, status, "result", r.record, r.label, r.unit, r.amount, r.whole);
    }
    for (const auto& l : order.jobSummary()) {
        const char* status = Order::statusText(l.status);
        amount("", status, "job summary", "", l.name, l.unit, l.quantity, false);
        if (l.cost.differs())
            amount("", status, "job summary", "", l.name, "unit price $", l.cost, false);
        amount("", status, "job summary", "", l.name, "total $", l.total, false);
    }
    const std::tuple<const char*, const char*, const Order::Amount*> totals[] = {
        {"Money", "$", &order.money()},
        {"Weight", "lbs", &order.weight()},
        {"Trucks", "truck loads", &order.trucks()}};
    for (const auto& [item, unit, a] : totals)
        if (a->differs())
            amount("", "changed", "total", "", item, unit, *a, false);
    return csv;
}
