#include "cli/consoleprompter.h"

namespace tamo {

QString ConsolePrompter::ask(const Alert& alert)
{
    QString answer =
        alert.buttons.isEmpty() ? QString() : (yes_ ? alert.buttons.first() : alert.buttons.last());
    if (const auto preset = presets_.constFind(alert.title); preset != presets_.constEnd()) {
        answer = *preset;
    }
    err_ << alert.title << ": " << alert.text << " [" << answer << "]\n";
    err_.flush();
    return answer;
}

bool ConsolePrompter::presentError(const Error& error)
{
    ++errors_;
    err_ << "tamo: " << error.text() << '\n';
    err_.flush();
    return false;
}

// Files are named on the command line; a command that needs one asks for it by argument.
std::optional<QString> ConsolePrompter::chooseFileToOpen(const FileRequest&)
{
    return std::nullopt;
}

std::optional<QString> ConsolePrompter::chooseFileToSave(const FileRequest&)
{
    return std::nullopt;
}

}  // namespace tamo
