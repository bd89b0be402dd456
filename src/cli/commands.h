#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>

namespace tamo {

class AppSession;

inline constexpr int kUsageError = 2;

// A command's failure: one line for the error stream and the exit code.
struct Failure {
    QString message;
    int code = 1;
};

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
