#pragma once

#include <QList>
#include <deque>

#include "platform/prompter.h"

namespace tamo {

// Answers questions from a script instead of a person: tests queue the answers they expect to
// give, and the command line answers with its flags. Every question asked is recorded.
class ScriptedPrompter : public Prompter {
public:
    enum class Fallback { DefaultButton, LastButton };

    explicit ScriptedPrompter(Fallback fallback = Fallback::LastButton) : fallback_(fallback) {}

    void queueAnswer(QString button) { answers_.push_back(std::move(button)); }
    // A null QString stands for a cancelled panel.
    void queueFile(QString path) { files_.push_back(std::move(path)); }
    void setErrorRecovery(bool recovers) { recovers_ = recovers; }

    const QList<Alert>& alerts() const { return alerts_; }
    const QList<Error>& errors() const { return errors_; }
    const QList<FileRequest>& fileRequests() const { return fileRequests_; }

    QString ask(const Alert& alert) override;
    bool presentError(const Error& error) override;
    std::optional<QString> chooseFileToOpen(const FileRequest& request) override;
    std::optional<QString> chooseFileToSave(const FileRequest& request) override;

private:
    std::optional<QString> nextFile(const FileRequest& request);

    Fallback fallback_;
    bool recovers_ = false;
    std::deque<QString> answers_;
    std::deque<QString> files_;
    QList<Alert> alerts_;
    QList<Error> errors_;
    QList<FileRequest> fileRequests_;
};

}  // namespace tamo
