// The data actions of the File menu on the command line: files are named as arguments instead of
// chosen in panels, and questions are answered by --yes.

#include <QDir>
#include <QFileInfo>

#include "cli/commands.h"
#include "interchange/datainterchange.h"

namespace tamo {

namespace {

// Answers the one panel of a command with the path it was given and passes everything else to
// the console.
class ArgumentPrompter : public Prompter {
public:
    ArgumentPrompter(Prompter& console, const QString& path)
        : console_(console), path_(path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath())
    {
    }

    QString ask(const Alert& alert) override { return console_.ask(alert); }
    bool presentError(const Error& error) override { return console_.presentError(error); }
    std::optional<QString> chooseFileToOpen(const FileRequest&) override { return take(); }
    std::optional<QString> chooseFileToSave(const FileRequest&) override { return take(); }

private:
    std::optional<QString> take()
    {
        if (path_.isEmpty()) {
            return std::nullopt;
        }
        return std::exchange(path_, QString());
    }

    Prompter& console_;
    QString path_;
};

using Action = ActionResult (DataInterchange::*)();

std::optional<Failure> outcome(ActionResult result, const QString& name)
{
    switch (result) {
    case ActionResult::Done:
        return std::nullopt;
    case ActionResult::Cancelled:
        return Failure{QStringLiteral("%1: nothing was changed (questions are answered only with "
                                      "--yes)")
                           .arg(name)};
    case ActionResult::Failed:
        break;
    }
    return Failure{QStringLiteral("%1 failed").arg(name)};
}

// Runs one action; `file` is what its panel is answered with.
std::optional<Failure> run(AppSession& session, const QStringList& args, const char16_t* usage,
                           Action action)
{
    const QString text = QString::fromUtf16(usage);
    const bool takesFile = text.contains(u" FILE");
    if (args.size() != (takesFile ? 1 : 0)) {
        return Failure{QStringLiteral("usage: tamo %1").arg(text), kUsageError};
    }
    ArgumentPrompter prompter(session.prompter(), args.value(0));
    DataInterchange operations(session, prompter);
    return outcome((operations.*action)(), text.section(u' ', 0, 0));
}

}  // namespace

std::optional<Failure> backupInvoicesCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"backup-invoices FILE", &DataInterchange::backupTamoData);
}

std::optional<Failure> restoreInvoicesCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"restore-invoices FILE", &DataInterchange::restoreTamoData);
}

std::optional<Failure> backupItemsCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"backup-items FILE", &DataInterchange::backupItems);
}

std::optional<Failure> restoreItemsCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"restore-items FILE", &DataInterchange::restoreItems);
}

std::optional<Failure> exportXmlCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"export-xml FILE", &DataInterchange::exportTamoDataXML);
}

std::optional<Failure> exportShownXmlCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"export-shown-xml FILE", &DataInterchange::exportItems);
}

std::optional<Failure> backupCompleteCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"backup-complete FILE", &DataInterchange::backupCompleteTamoData);
}

std::optional<Failure> restoreCompleteCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"restore-complete FILE", &DataInterchange::restoreCompleteTamoData);
}

std::optional<Failure> dumpCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"dump FILE", &DataInterchange::exportAsInvoiceFile);
}

std::optional<Failure> importDocumentCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"import-document FILE", &DataInterchange::importInvoice);
}

std::optional<Failure> exportRawCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"export-raw FILE", &DataInterchange::backupCDAction);
}

std::optional<Failure> importRawCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"import-raw FILE", &DataInterchange::restoreCDAction);
}

std::optional<Failure> moveFromFlatpakCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"move-from-flatpak", &DataInterchange::restoreAutomaticallyFromSandbox);
}

std::optional<Failure> restoreSafetyCopyCommand(AppSession& s, const QStringList& a, QTextStream&)
{
    return run(s, a, u"restore-safety-copy", &DataInterchange::restoreFromBackup);
}

std::optional<Failure> safetyCopyCommand(AppSession& session, const QStringList& args,
                                         QTextStream& out)
{
    const bool atStart = args == QStringList{u"--at-start"_qs};
    if (!args.isEmpty() && !atStart) {
        return Failure{QStringLiteral("usage: tamo safety-copy [--at-start]"), kUsageError};
    }
    DataInterchange operations(session);
    const ActionResult result = atStart ? operations.createBackup() : operations.doTheNewBackup();
    if (result == ActionResult::Cancelled) {
        out << "No safety copy was written at this start.\n";
        return std::nullopt;
    }
    if (result == ActionResult::Done) {
        out << operations.backupPath() << '\n';
    }
    return outcome(result, u"safety-copy"_qs);
}

std::optional<Failure> recoverCommand(AppSession& session, const QStringList& args,
                                      QTextStream& out)
{
    if (args.size() > 1) {
        return Failure{QStringLiteral("usage: tamo recover [SNAPSHOT]"), kUsageError};
    }
    const QStringList snapshots = DataInterchange(session).recoverySnapshots();
    if (args.isEmpty()) {
        for (const QString& snapshot : snapshots) {
            out << QFileInfo(snapshot).fileName() << '\n';
        }
        return std::nullopt;
    }
    // A snapshot is named by its path or by its file name in the recovery folder.
    QString path = args[0];
    if (!QFileInfo::exists(path)) {
        path = QDir(session.profile().recoveryFolder).filePath(args[0]);
    }
    return run(session, {path}, u"recover FILE", &DataInterchange::recoverPreviousDatabase);
}

std::optional<Failure> openFileCommand(AppSession& session, const QStringList& args, QTextStream&)
{
    if (args.size() != 1) {
        return Failure{QStringLiteral("usage: tamo open FILE"), kUsageError};
    }
    DataInterchange(session).openFile(args[0]);
    return std::nullopt;
}

}  // namespace tamo
