#include "ui/ZOLCustomItemForm.h"
#include "ui_ZOLCustomItemForm.h"

#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLCustomItem.h"
#include "ui/ZOLEntryField.h"
#include "ui/ZOLQtText.h"

namespace {
// A number as the form shows it for editing: to six decimals as the template file keeps it,
// without the trailing zeros beyond `minimumDecimals`.
QString editText(double value, int minimumDecimals) {
    QString text = QString::fromStdString(ZOLFormat::format("%.6f", value));
    const qsizetype point = text.indexOf(u'.');
    if (point < 0)
        return text;
    qsizetype end = text.size();
    while (end > point + 1 + minimumDecimals && text[end - 1] == u'0')
        --end;
    if (end == point + 1)
        --end;
    return text.left(end);
}
} // namespace

ZOLCustomItemForm::ZOLCustomItemForm(std::shared_ptr<ZOLCustomItem> customItem, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ZOLCustomItemForm>()),
      customItem_(std::move(customItem)) {
    ui_->setupUi(this);
    setWindowModality(Qt::WindowModal);
    const bool existing = customItem_ != nullptr;
    if (!existing)
        customItem_ = std::make_shared<ZOLCustomItem>();
    generated_ = customItem_->tiedToWorkbook();

    if (existing) {
        setWindowTitle(tr("Edit Item"));
        ui_->accept->setText(tr("Save"));
        ui_->name->setText(qs(customItem_->name()));
        ui_->quantity->setText(editText(customItem_->quantity(), 0));
        ui_->unit->setText(qs(customItem_->unit()));
        ui_->pricePerUnit->setText(editText(customItem_->cost(), 2));
    }
    for (QLineEdit* fixed : {ui_->name, ui_->quantity}) {
        fixed->setReadOnly(generated_);
        if (generated_)
            fixed->setFocusPolicy(Qt::ClickFocus);
    }
    ui_->generatedNote->setVisible(generated_);
    adjustSize();

    // A cleaned text is still the user's: the line takes it on Save.
    for (QLineEdit* number : {ui_->quantity, ui_->pricePerUnit})
        connect(number, &QLineEdit::textEdited, this, [number] {
            ZOLEntryField::applyKeystrokeRule(number);
            number->setModified(true);
        });
    connect(ui_->name, &QLineEdit::textChanged, this, &ZOLCustomItemForm::updateAcceptButton);
    connect(ui_->accept, &QPushButton::clicked, this, &ZOLCustomItemForm::accept);
    connect(ui_->cancel, &QPushButton::clicked, this, &QDialog::reject);
    updateAcceptButton();
    (generated_ ? ui_->pricePerUnit : ui_->name)->setFocus();
}

ZOLCustomItemForm::~ZOLCustomItemForm() = default;

double ZOLCustomItemForm::pricePerUnit() const {
    return ZOLText::leadingDouble(ui_->pricePerUnit->text().toStdString());
}

void ZOLCustomItemForm::updateAcceptButton() {
    // A line needs a name to be told apart on the printed page.
    ui_->accept->setEnabled(generated_ || !ui_->name->text().trimmed().isEmpty());
}

void ZOLCustomItemForm::accept() {
    if (!ui_->accept->isEnabled())
        return;
    const auto number = [](const QLineEdit* edit) {
        return ZOLText::leadingDouble(edit->text().toStdString());
    };
    if (ui_->name->isModified())
        customItem_->setName(ui_->name->text().toStdString());
    if (ui_->quantity->isModified())
        customItem_->setQuantity(number(ui_->quantity));
    if (ui_->unit->isModified())
        customItem_->setUnit(ui_->unit->text().toStdString());
    if (ui_->pricePerUnit->isModified())
        customItem_->setCost(number(ui_->pricePerUnit));
    QDialog::accept();
}
