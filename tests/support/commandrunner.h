#pragma once

#include <QTextStream>

#include "cli/commandline.h"

namespace tamo::test {

struct CommandOutcome {
    int code;
    QString out;
    QString err;
};

// Runs `tamo --store STORE WORDS...` in this process, as a script would run it.
inline CommandOutcome runTamo(const QString& store, const QStringList& words)
{
    QString out, err;
    QTextStream o(&out), e(&err);
    const int code =
        runCommand(parseInvocation(QStringList{u"tamo"_qs, u"--store"_qs, store} + words), o, e);
    o.flush();
    e.flush();
    return {code, out, err};
}

}  // namespace tamo::test
