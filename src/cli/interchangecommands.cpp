// The data actions of the File menu on the command line: files are named as arguments instead of
// chosen in panels, and questions are answered by --yes.

#include <QDir>
#include <QFileInfo>

#include "cli/argumentprompter.h"
#include "cli/commands.h"
#include "interchange/datainterchange.h"
#include "setup/storemove.h"

namespace tamo {

namespace {

using Action = ActionResult (DataInterchange::*)();

std::optional<Failure> outcome(ActionResult result, const QString& name)
{
    switch (result) {
    case ActionResult::Done:
        return std::nullopt;
    case ActionResult::Cancelled:
        return Failure{
            tr("%1: nothing was changed (questions are answered only with --yes)").arg(name)};
    case ActionResult::Failed:
        break;
    }
    return Failure{QString()};  // the reason has been printed
}

std::optional<Failure> runWithFile(AppSession& session, const QString& file, const QString& name,
                                   Action action)
{
    ArgumentPrompter prompter(session.prompter(), file);
    DataInterchange operations(session, prompter);
    return outcome((operations.*action)(), name);
}

// Runs one action; the file operand, when the synopsis names one, answers its panel.
std::optional<Failure> run(AppSession& session, const CommandArgs& args, Action action)
{
    const QString name = args.synopsis().section(u' ', 0, 0);
    const bool takesFile = args.synopsis().contains(u" FILE");
    if (args.operandCount() != (takesFile ? 1 : 0)) {
        return args.usage();
    }
    return runWithFile(session, args.operand(0), name, action);
}

}  // namespace

std::optional<Failure> backupInvoicesCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::backupTamoData);
}

std::optional<Failure> restoreInvoicesCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::restoreTamoData);
}

std::optional<Failure> backupItemsCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::backupItems);
}

std::optional<Failure> restoreItemsCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::restoreItems);
}

std::optional<Failure> exportXmlCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::exportTamoDataXML);
}

std::optional<Failure> exportShownXmlCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    if (auto failure = arrangeList(s, a)) {
        return failure;
    }
    return run(s, a, &DataInterchange::exportItems);
}

std::optional<Failure> backupCompleteCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::backupCompleteTamoData);
}

std::optional<Failure> restoreCompleteCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::restoreCompleteTamoData);
}

std::optional<Failure> dumpCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::exportAsInvoiceFile);
}

std::optional<Failure> importDocumentCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::importInvoice);
}

std::optional<Failure> exportRawCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::backupCDAction);
}

std::optional<Failure> importRawCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::restoreCDAction);
}

std::optional<Failure> moveFromFlatpakCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::restoreAutomaticallyFromSandbox);
}

std::optional<Failure> restoreSafetyCopyCommand(AppSession& s, const CommandArgs& a, QTextStream&)
{
    return run(s, a, &DataInterchange::restoreFromBackup);
}

std::optional<Failure> safetyCopyCommand(AppSession& session, const CommandArgs& args,
                                         QTextStream& out)
{
    const bool atStart = args.has(u"--at-start"_qs);
    if (args.operandCount() > 0) {
        return args.usage();
    }
    DataInterchange operations(session);
    const ActionResult result = atStart ? operations.createBackup() : operations.doTheNewBackup();
    if (result == ActionResult::Cancelled) {
        out << tr("No safety copy was written at this start.") << '\n';
        return std::nullopt;
    }
    if (result == ActionResult::Done) {
        out << operations.backupPath() << '\n';
    }
    return outcome(result, u"safety-copy"_qs);
}

std::optional<Failure> recoverCommand(AppSession& session, const CommandArgs& args,
                                      QTextStream& out)
{
    if (args.operandCount() > 1) {
        return args.usage();
    }
    const QStringList snapshots = DataInterchange(session).recoverySnapshots();
    if (args.operandCount() == 0) {
        for (const QString& snapshot : snapshots) {
            out << QFileInfo(snapshot).fileName() << '\n';
        }
        return std::nullopt;
    }
    // A copy is named by its number (as listed), its file name in the recovery folder or its
    // path.
    QString path = args.operand(0);
    if (!QFileInfo::exists(path)) {
        bool number = false;
        const int wanted = path.toInt(&number);
        for (const QString& snapshot : snapshots) {
            if (number && QFileInfo(snapshot).fileName().section(u' ', 0, 0).toInt() == wanted) {
                path = snapshot;
            }
        }
        if (!QFileInfo::exists(path)) {
            path = QDir(session.profile().recoveryFolder).filePath(path);
        }
    }
    return runWithFile(session, path, u"recover"_qs, &DataInterchange::recoverPreviousDatabase);
}

std::optional<Failure> moveStoreCommand(AppSession& session, const CommandArgs& args,
                                        QTextStream& out)
{
    const bool toDefault = args.has(u"--default"_qs);
    if (args.operandCount() != (toDefault ? 0 : 1)) {
        return args.usage();
    }
    const QString today = session.clock().now().toLocalTime().date().toString(Qt::ISODate);
    const QString backup = args.value(
        u"--backup"_qs, QDir(session.profile().documentsFolder)
                            .filePath(QStringLiteral("E-Tamo Database %1.tamo2db").arg(today)));
    // What the complete backup keeps: the name with its own extension.
    const QFileInfo info(backup);
    const QString kept = info.absoluteDir().filePath(info.completeBaseName() + u".tamo2db"_qs);
    QDir().mkpath(info.absolutePath());
    ArgumentPrompter prompter(session.prompter(), backup);
    DataInterchange operations(session, prompter);
    session.hooks().completeBackup = [&] {
        return operations.backupCompleteTamoData() == ActionResult::Done;
    };
    StoreMover mover(session);
    switch (mover.moveTo(toDefault ? QString() : args.operand(0))) {
    case StoreMove::Moved:
        out << tr("Backed up the database to %1.\nMoved the store to %2; Tamo opens it there "
                  "from now on.")
                   .arg(kept, mover.currentFolder())
            << '\n';
        return std::nullopt;
    case StoreMove::AlreadyThere:
        out << tr("The store is already in %1.").arg(mover.currentFolder()) << '\n';
        return std::nullopt;
    case StoreMove::Cancelled:
        return outcome(ActionResult::Cancelled, u"move-store"_qs);
    case StoreMove::Failed:
        break;
    }
    return Failure{tr("move-store: the store stays in %1").arg(mover.currentFolder())};
}

}  // namespace tamo
