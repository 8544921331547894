#pragma once
#include <QByteArray>
#include <QString>
#include <QWidget>

#include <memory>
#include <string>

class ZOLChangeOrder;
class ZOLDocument;
class ZOLPricing;
class ZOLReportRenderer;
class ZOLWorkbook;
namespace Ui {
class ZOLChangeOrderWindow;
}

// The change order between an older version of a job and the job as it stands, in a window of
// its own: the same text as `zolest diff`, a switch to leave out the unchanged worksheets, and
// the order printed or exported as a page in the report's style, or as CSV for a spreadsheet.
class ZOLChangeOrderWindow : public QWidget {
    Q_OBJECT

public:
    // Both versions as read from their files; `pricing` prices both (the newer one's own list
    // when null). The names say which version is which in the heading.
    ZOLChangeOrderWindow(std::shared_ptr<ZOLWorkbook> older, std::shared_ptr<ZOLWorkbook> newer,
                         std::shared_ptr<ZOLPricing> pricing, const QString& oldVersion,
                         const QString& newVersion, QWidget* parent = nullptr);
    ~ZOLChangeOrderWindow() override;

    // File > Compare With…: asks for the older version (a file, or the document's last saved
    // state when it has one) and shows the change order against the job as it stands. Nothing
    // when the user cancels or the file cannot be read (after its alert).
    static ZOLChangeOrderWindow* compareWithDocument(ZOLDocument* document);
    // A workbook file's bytes read as opening it does; nothing (after the alert) when the file
    // is not a workbook. `name` is the file name the alert shows.
    static std::shared_ptr<ZOLWorkbook> readWorkbook(const QByteArray& bytes, const QString& name);

    const ZOLChangeOrder& changeOrder() const { return *order_; }
    QString text() const;
    void setOnlyChanges(bool onlyChanges);
    // The change-order pages as the renderer loads them.
    std::string reportHtml() const;

    // The commands of the buttons; the ones that write ask for a file with the panel.
    void printOrder();
    void exportPDF();
    void exportCSV();
    bool writePdf(const QString& path, QString* error = nullptr);
    bool writeCsv(const QString& path);

private:
    void refresh();
    ZOLReportRenderer* renderer();

    std::unique_ptr<Ui::ZOLChangeOrderWindow> ui_;
    std::shared_ptr<ZOLWorkbook> newer_;
    std::unique_ptr<ZOLChangeOrder> order_;
    QString oldVersion_;
    QString newVersion_;
    std::string pricedWith_;
    ZOLReportRenderer* renderer_ = nullptr;
    bool printing_ = false;
};
