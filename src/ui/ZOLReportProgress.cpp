#include "ui/ZOLReportProgress.h"

#include "report/ZOLPrintData.h"
#include "ui/ZOLReportRenderer.h"

#include <QProgressDialog>
#include <QWebEnginePage>

namespace {

constexpr int kShowAfterMs = 800;

} // namespace

ZOLReportProgress::ZOLReportProgress(QWidget* window, ZOLReportRenderer* renderer,
                                     const std::string& reportHtml)
    : QObject(window) {
    const int pages = ZOLPrintData::getPageCountWithHTML(reportHtml);
    if (pages <= kFewPages)
        return;
    dialog_ =
        new QProgressDialog(tr("Laying out %1 pages…").arg(pages), tr("Cancel"), 0, 100, window);
    dialog_->setWindowTitle(tr("Printing"));
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setAutoReset(false);
    dialog_->setAutoClose(false);
    dialog_->setMinimumDuration(kShowAfterMs);
    dialog_->setValue(0);
    QPointer<ZOLReportRenderer> guarded(renderer);
    connect(dialog_, &QProgressDialog::canceled, this, [guarded] {
        if (guarded)
            guarded->cancel();
    });
    // Layout is the part that can be followed; the PDF is made in one go after it.
    connect(renderer->page(), &QWebEnginePage::loadProgress, dialog_, [this, pages](int percent) {
        if (!dialog_ || dialog_->wasCanceled())
            return;
        if (percent < 100) {
            dialog_->setValue(percent * 9 / 10);
            return;
        }
        dialog_->setLabelText(tr("Printing %1 pages…").arg(pages));
        dialog_->setRange(0, 0); // busy until the PDF is there
    });
}

ZOLReportProgress::~ZOLReportProgress() {
    delete dialog_;
}
