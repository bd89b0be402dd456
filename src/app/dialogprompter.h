#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/prompter.h"

namespace tamo {

// Answers the core's questions with modal dialogs on the main window.
class DialogPrompter : public Prompter {
public:
    void setParentWindow(QWidget* window) { window_ = window; }

    QString ask(const Alert& alert) override;
    bool presentError(const Error& error) override;
    std::optional<QString> chooseFileToOpen(const FileRequest& request) override;
    std::optional<QString> chooseFileToSave(const FileRequest& request) override;

private:
    QPointer<QWidget> window_;
};

}  // namespace tamo
