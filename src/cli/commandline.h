#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>

namespace tamo {

// The arguments shared by the window and the commands: `tamo [--store DIR] [--yes] COMMAND ...`,
// the two global options anywhere before "--".
struct Invocation {
    QString storeDirectory;  // empty: the user's own folders
    bool assumeYes = false;
    QStringList command;  // the command and its arguments; empty opens the window
    QString url;          // a tamo:// address handed to the application
    QString error;        // the arguments could not be understood
};

Invocation parseInvocation(const QStringList& arguments);

// Runs one command without a window and returns the process exit code. Output goes to `out`;
// errors are one line on `err`.
int runCommand(const Invocation& invocation, QTextStream& out, QTextStream& err);

QString usage();
// The usage and note of one command; empty for an unknown command.
QString commandHelp(const QString& command);

}  // namespace tamo
