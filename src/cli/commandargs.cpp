#include "cli/commandargs.h"
#include "platform/translations.h"

#include <QRegularExpression>

namespace tamo {

namespace {

bool isNumber(const QString& word)
{
    bool ok = false;
    word.toDouble(&ok);
    return ok;
}

}  // namespace

QHash<QString, bool> synopsisOptions(const QString& synopsis)
{
    // An option is valued when a word follows it: a metavariable ("FILE", "X", "0|1|2",
    // "en|de|fr|es"), not a bracket, a bar or another option.
    static const QRegularExpression option(QStringLiteral("--[a-z0-9][a-z0-9-]*( [A-Za-z0-9])?"));
    QHash<QString, bool> options;
    for (auto it = option.globalMatch(synopsis); it.hasNext();) {
        const auto match = it.next();
        const QString name = match.captured(0).section(u' ', 0, 0);
        options.insert(name, options.value(name) || match.hasCaptured(1));
    }
    return options;
}

std::expected<CommandArgs, Failure> CommandArgs::parse(const QString& synopsis,
                                                       const QStringList& words)
{
    CommandArgs args;
    args.synopsis_ = synopsis;
    const QHash<QString, bool> known = synopsisOptions(synopsis);
    bool optionsEnded = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        const bool looksLikeOption =
            word.startsWith(u'-') && word != u"-" && !isNumber(word) && !optionsEnded;
        if (!looksLikeOption) {
            args.operands_ << word;
            continue;
        }
        if (word == u"--") {
            optionsEnded = true;
            continue;
        }
        const QString name = word.section(u'=', 0, 0);
        if (!known.contains(name)) {
            return std::unexpected(args.usage(tr("unknown option %1").arg(word)));
        }
        if (!known.value(name)) {
            if (word.contains(u'=')) {
                return std::unexpected(args.usage(tr("%1 takes no value").arg(name)));
            }
            args.given_.insert(name, QString());
        } else if (word.contains(u'=')) {
            args.given_.insert(name, word.section(u'=', 1));
        } else if (i + 1 < words.size()) {
            args.given_.insert(name, words[++i]);
        } else {
            return std::unexpected(args.usage(tr("%1 needs a value").arg(name)));
        }
    }
    return args;
}

Failure CommandArgs::usage(const QString& problem) const
{
    const QString line = tr("usage: tamo %1").arg(synopsis_);
    if (problem.isEmpty()) {
        return Failure{line, kUsageError};
    }
    return Failure{QStringLiteral("%1: %2\n%3").arg(synopsis_.section(u' ', 0, 0), problem, line),
                   kUsageError};
}

}  // namespace tamo
