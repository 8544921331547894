#pragma once
// An alert recorder that also answers the alerts with a text field: it records the text the
// field was shown with and types the scripted text into it.
#include "support/AlertRecorder.h"
#include "ui/ZOLFieldAlerts.h"

#include <deque>
#include <string>
#include <vector>

class FieldAlertRecorder : public AlertRecorder, public ZOLFieldAlertPresenter {
public:
    int presentWithField(const ZOLAlert& alert, std::string& text, Field) override {
        shownTexts.push_back(text);
        if (!texts.empty()) {
            text = texts.front();
            texts.pop_front();
        }
        return present(alert);
    }
    std::deque<std::string> texts;
    std::vector<std::string> shownTexts;
};

class ScopedFieldAlertRecorder {
public:
    ScopedFieldAlertRecorder()
        : recorder_(std::make_shared<FieldAlertRecorder>()),
          previous_(ZOLAlerts::setPresenter(recorder_)) {}
    ~ScopedFieldAlertRecorder() { ZOLAlerts::setPresenter(previous_); }
    ScopedFieldAlertRecorder(const ScopedFieldAlertRecorder&) = delete;
    ScopedFieldAlertRecorder& operator=(const ScopedFieldAlertRecorder&) = delete;
    FieldAlertRecorder* operator->() { return recorder_.get(); }

    // Answers the next alerts in order: a button index, and for a field alert the text typed.
    void answer(int button) { recorder_->answers.push_back(button); }
    void answer(int button, const std::string& text) {
        recorder_->answers.push_back(button);
        recorder_->texts.push_back(text);
    }
    std::vector<std::string> messages() const {
        std::vector<std::string> out;
        for (const auto& alert : recorder_->alerts)
            out.push_back(alert.message);
        return out;
    }

private:
    std::shared_ptr<FieldAlertRecorder> recorder_;
    std::shared_ptr<ZOLAlertPresenter> previous_;
};
