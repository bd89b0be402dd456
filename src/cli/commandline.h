#pragma once

#include <QStringList>
#include <QTextStream>
#include <functional>
#include <optional>

#include "cli/commandargs.h"
#include "platform/profile.h"

namespace tamo {

class AppSession;

// The arguments shared by the window and the commands: `tamo [--store DIR] [--yes] COMMAND ...`,
// the two global options anywhere before "--".
struct Invocation {
    QString storeDirectory;  // empty: the user's own folders
    bool assumeYes = false;
    QStringList command;  // the command and its arguments; empty opens the window
    QString url;          // a tamo:// address handed to the application
    QString file;         // a file the desktop asks to open (absolute)
    QString error;        // the arguments could not be understood
};

Invocation parseInvocation(const QStringList& arguments);
// The profile the invocation works on: its --store folder, else the user's own folders.
Profile profileOf(const Invocation& invocation);

// Runs one command without a window and returns the process exit code. Output goes to `out`;
// errors are one line on `err`.
int runCommand(const Invocation& invocation, QTextStream& out, QTextStream& err);

// How a command uses its session. One that only reads runs beside another Tamo that holds the
// store, on a snapshot; one that writes waits while another command holds it and is refused while
// a window does. With `holdOutput` what the body reports is printed once its work is saved.
struct SessionUse {
    bool needsStore = true;
    bool readsOnly = false;
    QString name;  // the command, as the refusal names it
    bool holdOutput = true;
};

// Runs `body` on a session of the invocation's profile, as every command runs: the store's lock
// as `use` says, the shipped designs and the one-time updates as in the window, and with
// `needsStore` the store opened and the statistics pass run. `body` reports on the stream it is
// given. A failure is written to `err` (unless its message is empty: already said); the session
// saves afterwards. Returns the process exit code.
int runOnSession(const Invocation& invocation, QTextStream& out, QTextStream& err,
                 const SessionUse& use,
                 const std::function<std::optional<Failure>(AppSession&, QTextStream&)>& body);

// Answers a tamo:// URL without a window (none runs for the store): the import request writes its
// PDFs and list, reporting progress on `out`, and calls Ledrix back. Returns the exit code once
// the request is done.
int runUrlRequest(const Invocation& invocation, QTextStream& out, QTextStream& err);

// While a Tamo window holds the invocation's store, a request goes to it rather than to a second
// writer: hands it `arguments` (tamo:// URLs, absolute file paths) and says so on `out`. False
// when no window holds the store or it did not take them.
bool handToWindow(const Invocation& invocation, const QStringList& arguments, QTextStream& out);

QString usage();
// The usage and note of one command; empty for an unknown command.
QString commandHelp(const QString& command);

}  // namespace tamo
