#pragma once

#include <QHash>
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
    // Answers the question with this title by `button`, whatever --yes says; a command's own
    // flags decide such questions (delete --adjust-counter).
    void presetAnswer(const QString& title, const QString& button) { presets_[title] = button; }

private:
    QTextStream& err_;
    bool yes_;
    int errors_ = 0;
    QHash<QString, QString> presets_;
};

}  // namespace tamo
