#pragma once

#include <QFileInfo>
#include <utility>

#include "platform/prompter.h"

namespace tamo {

// Answers the one panel of a command with the path it was given and passes everything else to
// the console.
class ArgumentPrompter : public Prompter {
public:
    ArgumentPrompter(Prompter& console, const QString& path)
        : console_(console), path_(path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath())
    {
    }

    QString ask(const Alert& alert) override { return console_.ask(alert); }
    bool presentError(const Error& error) override { return console_.presentError(error); }
    std::optional<QString> chooseFileToOpen(const FileRequest&) override { return take(); }
    std::optional<QString> chooseFileToSave(const FileRequest&) override { return take(); }

private:
    std::optional<QString> take()
    {
        if (path_.isEmpty()) {
            return std::nullopt;
        }
        return std::exchange(path_, QString());
    }

    Prompter& console_;
    QString path_;
};

}  // namespace tamo
