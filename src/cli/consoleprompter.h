#pragma once

#include <QTextStream>

#include "platform/prompter.h"

namespace tamo {

// Answers the core's questions on the command line without asking: with --yes the default
// button, otherwise the last one (which is "Cancel" wherever something would be lost). Every
// question and error is written to the error stream, so that a script's log shows what happened.
class ConsolePrompter : public Prompter {
public:
    ConsolePrompter(QTextStream& err, bool assumeYes) : err_(err), yes_(assumeYes) {}

    QString ask(const Alert& alert) override;
    bool presentError(const Error& error) override;
    std::optional<QString> chooseFileToOpen(const FileRequest& request) override;
    std::optional<QString> chooseFileToSave(const FileRequest& request) override;

    int errorCount() const { return errors_; }

private:
    QTextStream& err_;
    bool yes_;
    int errors_ = 0;
};

}  // namespace tamo
