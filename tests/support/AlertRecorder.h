#pragma once
// Records every alert the code under test raises and answers with scripted button indexes.
#include "platform/ZOLAlerts.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

class AlertRecorder : public ZOLAlertPresenter {
public:
    int present(const ZOLAlert& alert) override {
        alerts.push_back(alert);
        if (answers.empty())
            return 0;
        int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::vector<ZOLAlert> alerts;
    std::deque<int> answers;

    std::vector<std::string> messages() const {
        std::vector<std::string> list;
        for (const auto& alert : alerts)
            list.push_back(alert.message);
        return list;
    }
};

// Installs a recorder for the lifetime of the scope and puts the previous presenter back.
class ScopedAlertRecorder {
public:
    ScopedAlertRecorder()
        : recorder_(std::make_shared<AlertRecorder>()),
          previous_(ZOLAlerts::setPresenter(recorder_)) {}
    ~ScopedAlertRecorder() { ZOLAlerts::setPresenter(previous_); }
    ScopedAlertRecorder(const ScopedAlertRecorder&) = delete;
    ScopedAlertRecorder& operator=(const ScopedAlertRecorder&) = delete;
    AlertRecorder* operator->() { return recorder_.get(); }
    AlertRecorder& operator*() { return *recorder_; }

private:
    std::shared_ptr<AlertRecorder> recorder_;
    std::shared_ptr<ZOLAlertPresenter> previous_;
};
