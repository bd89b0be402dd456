#include "platform/scriptedprompter.h"

namespace tamo {

QString ScriptedPrompter::ask(const Alert& alert)
{
    alerts_.append(alert);
    if (!answers_.empty()) {
        QString answer = answers_.front();
        answers_.pop_front();
        return answer;
    }
    if (alert.buttons.isEmpty()) {
        return {};
    }
    return fallback_ == Fallback::DefaultButton ? alert.buttons.first() : alert.buttons.last();
}

bool ScriptedPrompter::presentError(const Error& error)
{
    errors_.append(error);
    return recovers_;
}

std::optional<QString> ScriptedPrompter::nextFile(const FileRequest& request)
{
    fileRequests_.append(request);
    if (files_.empty()) {
        return std::nullopt;
    }
    const QString path = files_.front();
    files_.pop_front();
    if (path.isNull()) {
        return std::nullopt;
    }
    return path;
}

std::optional<QString> ScriptedPrompter::chooseFileToOpen(const FileRequest& request)
{
    return nextFile(request);
}

std::optional<QString> ScriptedPrompter::chooseFileToSave(const FileRequest& request)
{
    return nextFile(request);
}

}  // namespace tamo
