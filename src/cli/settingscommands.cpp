// The settings and the setup on the command line: reading and writing single settings, the
// starting values of a language, as the first page of the setup assistant applies them.

#include "calc/amountinput.h"
#include "cli/commands.h"
#include "model/appsession.h"
#include "render/designlibrary.h"
#include "render/logo.h"
#include "setup/setupassistant.h"

namespace tamo {

namespace {

// One line per value: images are described, line breaks written as "\n".
QString shownValue(const SettingKey& key, const QVariant& value)
{
    if (key.type == SettingType::Object && value.typeId() == QMetaType::QByteArray) {
        const QString image = logoDescription(value.toByteArray());
        return image.isEmpty() ? QStringLiteral("(data, %1 bytes)").arg(value.toByteArray().size())
                               : QStringLiteral("(%1)").arg(image);
    }
    return Settings::toText(value).replace(u'\\', u"\\\\"_qs).replace(u'\n', u"\\n"_qs);
}

std::optional<Failure> listSettings(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    const Settings& settings = session.settings();
    if (args.has(u"--changed"_qs)) {
        for (const SettingValue& v : changedSettings(settings)) {
            out << v.key->name << '\t' << shownValue(*v.key, v.value) << '\n';
        }
        return std::nullopt;
    }
    for (const SettingKey& k : allSettingKeys()) {
        out << k.name << '\t' << shownValue(k, settings.value(k)) << '\n';
    }
    return std::nullopt;
}

// A value that did not reach the settings file is reported with the file and the cause.
std::optional<Failure> written(const Settings& settings, bool ok)
{
    return ok ? std::nullopt : std::optional(Failure{settings.writeError()->text()});
}

std::optional<Failure> setSetting(AppSession& session, const SettingKey& key,
                                  const CommandArgs& args)
{
    const bool image = std::string_view(key.name) == key::prefsLogo.name;
    if (args.has(u"--file"_qs)) {
        if (!image || args.operandCount() != 2) {
            return args.usage(tr("--file gives the image of prefsLogo"));
        }
        auto data = logoDataFromFile(args.value(u"--file"_qs));
        if (!data) {
            return Failure{data.error().text()};
        }
        return written(session.settings(), session.settings().set(key, *data));
    }
    if (args.operandCount() != 3) {
        return args.usage();
    }
    const QString text = args.operand(2);
    if (image) {
        // The logo is image data: text would only render as the missing-logo notice.
        if (!text.isEmpty()) {
            return args.usage(
                tr("prefsLogo holds an image: set it with --file IMAGE, or remove it with an "
                   "empty value"));
        }
        return written(session.settings(), session.settings().remove(key));
    }
    std::optional<QVariant> value;
    if (isRateSetting(key)) {
        // Rates are typed as percentages, as in the window: 19 and "19 %" are 0.19.
        const auto rate = rateFromText(text);
        if (!rate) {
            return Failure{QStringLiteral("%1: %2").arg(QLatin1StringView(key.name), rate.error())};
        }
        value = *rate;
    } else {
        value = Settings::fromText(key, text);
    }
    if (!value) {
        return Failure{tr("%1 is not a valid value for %2").arg(text, QLatin1StringView(key.name))};
    }
    return written(session.settings(), session.settings().set(key, *value));
}

}  // namespace

std::optional<Failure> settingsCommand(AppSession& session, const CommandArgs& args,
                                       QTextStream& out)
{
    const QString verb = args.operand(0);
    if (verb == u"list" && args.operandCount() == 1) {
        return listSettings(session, args, out);
    }
    if (args.has(u"--changed"_qs) || (verb != u"get" && verb != u"set")) {
        return args.usage();
    }
    const SettingKey* key = findSettingKey(args.operand(1).toStdString());
    if (!key) {
        return Failure{tr("there is no setting named %1").arg(args.operand(1))};
    }
    if (verb == u"set") {
        return setSetting(session, *key, args);
    }
    if (args.operandCount() != 2 || args.has(u"--file"_qs)) {
        return args.usage();
    }
    out << shownValue(*key, session.settings().value(*key)) << '\n';
    return std::nullopt;
}

std::optional<Failure> setupCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    const QString code = args.value(u"--language"_qs);
    const StartingLanguage* language = startingLanguage(code);
    if (args.operandCount() > 0 || !language) {
        return args.usage(code.isEmpty() ? QString()
                                         : tr("there are no starting values for \"%1\"").arg(code));
    }
    DesignLibrary designs(session);
    SetupAssistant assistant(session, designs);
    if (!assistant.openAssi()) {
        return Failure{tr("setup: nothing was changed (questions are answered only with --yes)")};
    }
    assistant.setLanguage(language->index);
    const int applied = assistant.firstAssiTabAction();
    if (applied == 0) {
        return Failure{tr("setup: no starting values were applied")};
    }
    out << tr("Applied %1 starting values (%2).")
               .arg(applied)
               .arg(QString::fromUtf8(language->name))
        << '\n';
    return std::nullopt;
}

}  // namespace tamo
