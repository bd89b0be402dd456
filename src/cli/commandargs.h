#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <expected>

namespace tamo {

inline constexpr int kUsageError = 2;

// A command's failure: one line for the error stream (none when the reason has been printed
// already) and the exit code.
struct Failure {
    QString message;
    int code = 1;
};

// The words of one command, read against its synopsis ("add-item N --title TEXT [--tax1]").
// The synopsis is the only place that names a command's options: an option followed by a word
// ("--title TEXT", "--kind 0|1|2") takes a value, any other is a flag. So the help, the check for
// unknown options and the usage line of a failure cannot disagree.
//
// As GNU programs do, options may stand anywhere among the operands; "--" ends the options, so
// an operand may begin with a dash. A lone "-" and negative numbers are operands.
class CommandArgs {
public:
    static std::expected<CommandArgs, Failure> parse(const QString& synopsis,
                                                     const QStringList& words);

    const QStringList& operands() const { return operands_; }
    QString operand(qsizetype i) const { return operands_.value(i); }
    qsizetype operandCount() const { return operands_.size(); }

    // A flag or a valued option was given.
    bool has(const QString& option) const { return given_.contains(option); }
    // The value of a valued option, or `fallback` when it was not given.
    QString value(const QString& option, const QString& fallback = QString()) const
    {
        return given_.value(option, fallback);
    }

    QString synopsis() const { return synopsis_; }
    // "usage: tamo SYNOPSIS", after a line "COMMAND: PROBLEM" when there is something more
    // specific to say than the usage.
    Failure usage(const QString& problem = QString()) const;

private:
    QString synopsis_;
    QStringList operands_;
    QHash<QString, QString> given_;
};

// The options a synopsis names, each with whether it takes a value.
QHash<QString, bool> synopsisOptions(const QString& synopsis);

}  // namespace tamo
