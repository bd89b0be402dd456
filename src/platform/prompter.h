#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <optional>

#include "platform/error.h"

namespace tamo {

// A modal question or notice. The first button is the default action.
struct Alert {
    QString title;
    QString text;
    QStringList buttons{QStringLiteral("OK")};
};

struct FileRequest {
    QString title;
    QString message;         // a line above the panel's files telling what to choose
    QStringList extensions;  // without dots; empty accepts every file
    QString proposedName;    // save requests only
    bool directories = false;
    bool canCreateDirectories = false;
    QString directory;  // where an open panel starts; empty lets the platform choose
};

// Everything the core asks of a person goes through this interface: the window answers with
// dialogs, the command line with flags, tests with scripted answers.
class Prompter {
public:
    virtual ~Prompter() = default;

    // Returns the chosen button's text.
    virtual QString ask(const Alert& alert) = 0;
    // The platform's standard presentation of an error. Returns true when the person chose a
    // recovery that makes retrying worthwhile.
    virtual bool presentError(const Error& error) = 0;
    virtual std::optional<QString> chooseFileToOpen(const FileRequest& request) = 0;
    virtual std::optional<QString> chooseFileToSave(const FileRequest& request) = 0;
};

// The notice of a step that failed unexpectedly: "Ooops!", the sentence, and "OK".
inline void showOoops(Prompter& prompter, const QString& text)
{
    prompter.ask({QCoreApplication::translate("tamo::Prompter", "Ooops!"),
                  text,
                  {QCoreApplication::translate("tamo::Prompter", "OK")}});
}

}  // namespace tamo
