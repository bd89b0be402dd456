#pragma once

#include <QStringList>
#include <QTextStream>
#include <expected>
#include <optional>

namespace tamo {

class AppSession;
class Record;

inline constexpr int kUsageError = 2;

// A command's failure: one line for the error stream and the exit code.
struct Failure {
    QString message;
    int code = 1;
};

// The document a command names by its number or its uniqueID; a number two documents share is
// refused, so that a command never acts on the wrong one.
std::expected<Record*, Failure> findDocument(AppSession& session, const QString& numberOrID);

// A command runs on an open session (the store is open when it needs one), writes its result to
// `out` and returns a failure or nothing. The session saves after it.
using Command = std::optional<Failure> (*)(AppSession& session, const QStringList& args,
                                           QTextStream& out);

std::optional<Failure> listCommand(AppSession& session, const QStringList& args, QTextStream& out);
std::optional<Failure> settingsCommand(AppSession& session, const QStringList& args,
                                       QTextStream& out);
std::optional<Failure> generateSampleCommand(AppSession& session, const QStringList& args,
                                             QTextStream& out);
std::optional<Failure> recalcCommand(AppSession& session, const QStringList& args,
                                     QTextStream& out);
std::optional<Failure> nextNumberCommand(AppSession& session, const QStringList& args,
                                         QTextStream& out);

}  // namespace tamo
