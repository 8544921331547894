#pragma once
#include <QDialog>

#include <cstdint>
#include <map>
#include <memory>
#include <string>

class QAbstractButton;
class QCheckBox;
class ZOLPrintSettings;
class ZOLPreferences;
namespace Ui {
class ZOLPrintSettingsWindowController;
}

// The window shown before printing or exporting: all worksheets or the current one, which of the
// nine sections, and the number of pages that makes. It starts from the choices kept in the
// preferences and writes them back only when the user accepts.
class ZOLPrintSettingsWindowController : public QDialog {
    Q_OBJECT

public:
    // preferences: where the choices are kept (the shared preferences when null).
    explicit ZOLPrintSettingsWindowController(QWidget* parent = nullptr,
                                              std::shared_ptr<ZOLPreferences> preferences = {});
    ~ZOLPrintSettingsWindowController() override;

    void setNumberOfWorksheets(int32_t count);
    // The label of the button that accepts ("Print…", "Export…").
    void setAcceptTitle(const QString& title);

    bool acceptChanges() const;
    int32_t getPageCount() const;
    std::map<std::string, bool> getZolPrintSettings() const;

private:
    void windowDidLoad();
    void radioButtonChanged(QAbstractButton* button);
    void checkboxChanged(QCheckBox* box);
    void updatePageCount();
    void acceptChangesClicked();

    std::unique_ptr<Ui::ZOLPrintSettingsWindowController> ui_;
    std::shared_ptr<ZOLPreferences> preferences_;
    std::unique_ptr<ZOLPrintSettings> settings_;
};
