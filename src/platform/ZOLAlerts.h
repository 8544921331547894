#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

// One modal alert as the user sees it: a message, an informative text and its buttons in order.
struct ZOLAlert {
    std::string message;
    std::string informativeText;
    std::vector<std::string> buttons;
};

// Whoever shows alerts: a dialog in the desktop application, stderr in zolest, a recorder in
// the tests. Returns the index of the button chosen (0 is the first button).
class ZOLAlertPresenter {
public:
    virtual ~ZOLAlertPresenter() = default;
    virtual int present(const ZOLAlert& alert) = 0;
};

// The one way the core and the screens raise a modal alert.
class ZOLAlerts {
public:
    ZOLAlerts() = delete;

    // Shows the alert through the installed presenter and returns the button chosen.
    // With no presenter installed the alert is dropped and the first button is the answer.
    static int run(const std::string& message, const std::string& informativeText = "",
                   const std::vector<std::string>& buttons = {"OK"});
    static int run(const ZOLAlert& alert);

    // Installs a presenter; returns the previous one so a caller can put it back.
    static std::shared_ptr<ZOLAlertPresenter>
    setPresenter(std::shared_ptr<ZOLAlertPresenter> presenter);
    static std::shared_ptr<ZOLAlertPresenter> presenter();
};

// A presenter that writes each alert to a stream-like callback and answers the first button.
class ZOLTextAlertPresenter : public ZOLAlertPresenter {
public:
    explicit ZOLTextAlertPresenter(std::function<void(const std::string&)> write)
        : write_(std::move(write)) {}
    int present(const ZOLAlert& alert) override;

private:
    std::function<void(const std::string&)> write_;
};
