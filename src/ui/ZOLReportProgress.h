#pragma once
#include <QObject>
#include <QPointer>
#include <QProgressDialog>

#include <string>

class QWidget;
class ZOLReportRenderer;

// The progress of a long report (more than a few pages) on its way to PDF or the printer: a
// window-modal progress window that appears when the work takes more than a moment, follows
// the layout and then the printing, and whose Cancel stops the renderer. Lives as long as the
// report is under way; a short report shows nothing.
class ZOLReportProgress : public QObject {
    Q_OBJECT

public:
    static constexpr int kFewPages = 4;

    ZOLReportProgress(QWidget* window, ZOLReportRenderer* renderer, const std::string& reportHtml);
    ~ZOLReportProgress() override;

    QProgressDialog* dialog() const { return dialog_; }

private:
    QPointer<QProgressDialog> dialog_;
};
