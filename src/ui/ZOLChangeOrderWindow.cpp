#include "ui/ZOLChangeOrderWindow.h"

#include "io/ZOLAtomicFile.h"
#include "io/ZOLFileSaver.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"
#include "report/ZOLChangeOrder.h"
#include "report/ZOLChangeOrderFormat.h"
#include "report/ZOLPrintData.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLJobSnapshot.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLReportRenderer.h"
#include "ui_ZOLChangeOrderWindow.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPrintDialog>
#include <QPrinter>

ZOLChangeOrderWindow::ZOLChangeOrderWindow(std::shared_ptr<ZOLWorkbook> older,
                                           std::shared_ptr<ZOLWorkbook> newer,
                                           std::shared_ptr<ZOLPricing> pricing,
                                           const QString& oldVersion, const QString& newVersion,
                                           QWidget* parent)
    : QWidget(parent, Qt::Window), ui_(std::make_unique<Ui::ZOLChangeOrderWindow>()),
      newer_(std::move(newer)),
      order_(std::make_unique<ZOLChangeOrder>(*older, *newer_, std::move(pricing))),
      oldVersion_(oldVersion), newVersion_(newVersion),
      pricedWith_("the price list of " + utf8(newVersion)) {
    ui_->setupUi(this);
    setWindowTitle(tr("Change Order: %1").arg(newVersion));
    ui_->changeOrderText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(ui_->onlyChanges, &QCheckBox::toggled, this, &ZOLChangeOrderWindow::refresh);
    connect(ui_->printOrder, &QPushButton::clicked, this, &ZOLChangeOrderWindow::printOrder);
    connect(ui_->exportPDF, &QPushButton::clicked, this, &ZOLChangeOrderWindow::exportPDF);
    connect(ui_->exportCSV, &QPushButton::clicked, this, &ZOLChangeOrderWindow::exportCSV);
    connect(ui_->closeWindow, &QPushButton::clicked, this, &QWidget::close);
    refresh();
}

ZOLChangeOrderWindow::~ZOLChangeOrderWindow() = default;

std::shared_ptr<ZOLWorkbook> ZOLChangeOrderWindow::readWorkbook(const QByteArray& bytes,
                                                                const QString& name) {
    const auto result = ZOLWorkbookReader::readWorkbookData(
        std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
    if (result.ok() && !result.noWorkbookElement)
        return result.workbook;
    // The reader has alerted about a file without a workbook.
    ZOLFileAlerts::accepted(name, ZOLFileKind::Workbook, result.status);
    return nullptr;
}

ZOLChangeOrderWindow* ZOLChangeOrderWindow::compareWithDocument(ZOLDocument* document) {
    QByteArray olderBytes = document->savedFileBytes();
    QByteArray olderSnapshot = document->savedSnapshot();
    QString oldVersion = tr("%1 as last saved").arg(document->displayName());
    bool useSaved = false;
    if (!olderBytes.isEmpty()) {
        const int choice = ZOLAlerts::run(
            utf8(tr("Compare “%1” with which version?").arg(document->displayName())),
            "The change order shows what changed from that version to the job as it stands.",
            {"Choose File…", "Last Saved Version", "Cancel"});
        if (choice == 2)
            return nullptr;
        useSaved = choice == 1;
    }
    if (!useSaved) {
        const QString path = ZOLFilePanels::openFile(document, tr("Compare With"), "zol");
        if (path.isEmpty())
            return nullptr;
        oldVersion = QFileInfo(path).fileName();
        const auto bytes = ZOLFileAlerts::readFile(path, ZOLFileKind::Workbook);
        if (!bytes)
            return nullptr;
        olderBytes = QByteArray(bytes->data(), static_cast<qsizetype>(bytes->size()));
        olderSnapshot = document->snapshotStore().load(path, olderBytes).value_or(QByteArray());
    }
    // Both versions as opening them gives them: whole when this computer kept the older one's
    // snapshot, else both as their files alone say, so that what a file cannot hold (waste,
    // concrete heights) never shows as a change. The money uses the price list the user sees.
    auto older = readWorkbook(olderBytes, oldVersion);
    auto newer = older ? readWorkbook(document->dataOfType(), document->displayName()) : nullptr;
    if (!newer)
        return nullptr;
    if (!olderSnapshot.isEmpty()) {
        ZOLJobSnapshot::apply(olderSnapshot, *older);
        ZOLJobSnapshot::apply(ZOLJobSnapshot::capture(*document->workbook()), *newer);
    }
    auto* window =
        new ZOLChangeOrderWindow(older, newer, document->workbook()->pricingData(), oldVersion,
                                 tr("%1 as it stands").arg(document->displayName()), document);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

QString ZOLChangeOrderWindow::text() const {
    return ui_->changeOrderText->toPlainText();
}

void ZOLChangeOrderWindow::setOnlyChanges(bool onlyChanges) {
    ui_->onlyChanges->setChecked(onlyChanges);
}

void ZOLChangeOrderWindow::refresh() {
    const std::string text =
        ZOLChangeOrderFormat::getText(*order_, {utf8(oldVersion_), utf8(newVersion_), pricedWith_},
                                      ui_->onlyChanges->isChecked());
    ui_->changeOrderText->setPlainText(QString::fromStdString(text));
}

std::string ZOLChangeOrderWindow::reportHtml() const {
    return ZOLChangeOrderFormat::getHTML(*order_,
                                         {utf8(oldVersion_), utf8(newVersion_), pricedWith_},
                                         *newer_, ui_->onlyChanges->isChecked());
}

ZOLReportRenderer* ZOLChangeOrderWindow::renderer() {
    if (!renderer_)
        renderer_ =
            new ZOLReportRenderer(QString::fromStdString(ZOLPrintData::resourcesDirectory()), this);
    return renderer_;
}

void ZOLChangeOrderWindow::printOrder() {
    if (printing_)
        return;
    // Shared with the print job's callback: the printer must live until the job ends.
    std::shared_ptr<QPrinter> printer = ZOLReportRenderer::letterPrinter(windowTitle());
    QPrintDialog dialog(printer.get(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    printing_ = true;
    renderer()->print(reportHtml(), printer.get(), [this, printer](bool ok, const QString& error) {
        printing_ = false;
        if (!ok)
            ZOLAlerts::run("The change order could not be printed.", utf8(error), {"OK"});
    });
}

bool ZOLChangeOrderWindow::writePdf(const QString& path, QString* error) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool written = renderer()->writePdf(reportHtml(), path, error);
    QApplication::restoreOverrideCursor();
    return written;
}

void ZOLChangeOrderWindow::exportPDF() {
    const QString path =
        ZOLFilePanels::saveFile(this, tr("Export PDF"), "pdf", tr("Change Order.pdf"));
    if (path.isEmpty())
        return;
    QString error;
    if (!writePdf(path, &error))
        ZOLAlerts::run(
            utf8(tr("The PDF “%1” could not be written.").arg(QFileInfo(path).fileName())),
            utf8(error), {"OK"});
}

bool ZOLChangeOrderWindow::writeCsv(const QString& path) {
    std::string reason;
    if (ZOLAtomicFile::write(QFile::encodeName(path).toStdString(),
                             ZOLChangeOrderFormat::getCSV(*order_), &reason))
        return true;
    ZOLAlerts::run(utf8(tr("The file “%1” could not be written.").arg(QFileInfo(path).fileName())),
                   reason, {"OK"});
    return false;
}

void ZOLChangeOrderWindow::exportCSV() {
    const QString path =
        ZOLFilePanels::saveFile(this, tr("Export CSV"), "csv", tr("Change Order.csv"));
    if (!path.isEmpty())
        writeCsv(path);
}
