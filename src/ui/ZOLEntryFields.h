#pragma once
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "ui/ZOLEntryField.h"

#include <QLineEdit>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// The entry fields of one screen and the record fields behind them: how each field shows its
// value ("%.2f" for feet and money, "%d" for counts and inches), how a keystroke writes it, and
// the rewrite from the record when the user leaves the field.
template <class Record> class ZOLEntryFields {
public:
    struct Field {
        QLineEdit* edit;
        std::function<std::string(const Record&)> show;
        std::function<void(Record&, std::string_view)> write;
        bool loaded; // whether loadValues writes the field; otherwise it keeps what it shows
    };

    void addDecimal(QLineEdit* edit, double (Record::*get)() const, void (Record::*set)(double),
                    bool loaded = true) {
        fields_.push_back(
            {edit, [get](const Record& r) { return ZOLFormat::format("%.2f", (r.*get)()); },
             [set](Record& r, std::string_view text) { (r.*set)(ZOLText::leadingDouble(text)); },
             loaded});
    }
    void addCount(QLineEdit* edit, int32_t (Record::*get)() const, void (Record::*set)(int32_t),
                  bool loaded = true) {
        fields_.push_back(
            {edit, [get](const Record& r) { return ZOLFormat::format("%d", (r.*get)()); },
             [set](Record& r, std::string_view text) { (r.*set)(ZOLText::leadingInt(text)); },
             loaded});
    }

    // Wires every field: a keystroke writes the record that `record` returns and then calls
    // `changed` with the field; leaving the field shows the record's value again.
    void connect(QObject* context, std::function<Record&()> record,
                 std::function<void(const Field&)> changed) {
        for (size_t i = 0; i < fields_.size(); ++i) {
            QLineEdit* edit = fields_[i].edit;
            QObject::connect(edit, &QLineEdit::textEdited, context, [this, i, record, changed] {
                const Field& field = fields_[i];
                if (const auto text = ZOLEntryField::applyKeystrokeRule(field.edit)) {
                    field.write(record(), *text);
                    changed(field);
                }
            });
            QObject::connect(edit, &QLineEdit::editingFinished, context, [this, i, record] {
                const Field& field = fields_[i];
                field.edit->setText(QString::fromStdString(field.show(record())));
            });
        }
    }

    void load(const Record& record) const {
        for (const Field& field : fields_)
            if (field.loaded)
                field.edit->setText(QString::fromStdString(field.show(record)));
    }

private:
    std::vector<Field> fields_;
};
