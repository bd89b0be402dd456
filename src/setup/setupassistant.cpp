#include "setup/setupassistant.h"

#include <QLocale>
#include <QLoggingCategory>

#include "calc/numberformat.h"
#include "calc/numbering.h"
#include "einvoice/einvoiceactions.h"
#include "render/designlibrary.h"

Q_LOGGING_CATEGORY(lcSetup, "tamo.setup")

namespace tamo {

SetupAssistant::SetupAssistant(AppSession& session, DesignLibrary& designs)
    : session_(session), designs_(designs)
{
}

bool SetupAssistant::doTheAssi()
{
    if (session_.settings().boolean(key::isAssiDone)) {
        return false;
    }
    setPage(0);
    return true;
}

bool SetupAssistant::openAssi()
{
    if (session_.settings().boolean(key::isAssiDone)) {
        const QString proceed = tr("Continue…");
        const QString answer = session_.prompter().ask(
            {tr("Warning!"),
             tr("It seems that you've already setup E-Tamo and have run the setup assistant at "
                "least once before. Doing this again will delete all your customizations and "
                "replace them with the default values. Do you really want to continue?"),
             {proceed, tr("Cancel")}});
        if (answer != proceed) {
            return false;
        }
    }
    setPage(0);
    return true;
}

int SetupAssistant::language() const
{
    const Settings& settings = session_.settings();
    if (settings.contains(key::languageDefaults)) {
        return settings.integer(key::languageDefaults);
    }
    // Before the first choice, the language of the system, when Tamo has starting values for it.
    const QString system = QLocale().name().section(u'_', 0, 0);
    const StartingLanguage* match = startingLanguage(system);
    return match ? match->index : 0;
}

void SetupAssistant::setLanguage(int languageDefaults)
{
    session_.settings().set(key::languageDefaults, languageDefaults);
}

int SetupAssistant::firstAssiTabAction()
{
    Settings& settings = session_.settings();
    if (!settings.boolean(key::isFirstStoreLoadEverDone) && session_.managedObjectContext()) {
        WithoutUndo automatic(*session_.context());
        designs_.loadTemplates();
        settings.set(key::isFirstStoreLoadEverDone, true);
    }
    const StartingLanguage* language = startingLanguage(this->language());
    if (!language) {
        qCWarning(lcSetup) << "No starting values for the language" << this->language();
        return 0;
    }
    auto values = readStartingValues(startingValuesPath(*language));
    if (!values) {
        session_.prompter().presentError(values.error());
        return 0;
    }
    applyStartingValues(settings, *values);
    setPage(1);
    return int(values->size());
}

int SetupAssistant::page() const
{
    return session_.settings().integer(key::assiIndex);
}

void SetupAssistant::setPage(int page)
{
    session_.settings().set(key::assiIndex, page);
}

QString SetupAssistant::summary() const
{
    const Settings& s = session_.settings();
    const QString paper[] = {tr("Letter"), tr("Legal"), tr("A4"), tr("JIS B4"), tr("JIS B5")};
    const int size = s.integer(key::tempPaperSize);
    QStringList taxes;
    for (const auto& [enabled, title, rate] :
         {std::tuple{&key::tax1Enabled, &key::tax1Title, &key::tax1Rate},
          std::tuple{&key::tax2Enabled, &key::tax2Title, &key::tax2Rate},
          std::tuple{&key::tax3Enabled, &key::tax3Title, &key::tax3Rate}}) {
        if (s.boolean(*enabled)) {
            taxes << QStringLiteral("%1 %2 %").arg(s.string(*title),
                                                   decimalStringFromNumber(s.real(*rate) * 100));
        }
    }
    QString text =
        tr("A new invoice is titled “%1”, numbered like %2, in %3, with %4, printed on %5 paper.")
            .arg(s.string(key::locInvoice),
                 previewNumberString(s, session_.clock(), key::invPattern, key::invCount),
                 s.string(key::prefsCurrency),
                 taxes.isEmpty() ? tr("no taxes") : taxes.join(tr(" and ")),
                 paper[size >= 0 && size < 5 ? size : 0]);
    const auto missing = missingSupplierSettings(s);
    if (!missing.empty()) {
        text += u"\n\n"_qs + tr("E-invoices still need %n supplier detail(s) in Edit → Preferences "
                                "→ Company.",
                                nullptr, int(missing.size()));
    }
    return text;
}

bool SetupAssistant::closeAssi()
{
    Settings& settings = session_.settings();
    settings.set(key::isAssiDone, true);
    // The first start is over once the assistant has been completed; quitting it before leaves
    // it to show again.
    settings.set(key::firstStartEverDone, true);
    const QString yes = tr("Yes, please!");
    return session_.prompter().ask(
               {tr("RTFM"),
                tr("Would you like to take a quick look at the illustrated and "
                   "easy-to-understand instructions before you create your first invoice?"),
                {yes, tr("No, I prefer to suffer in silence.")}}) == yes;
}

}  // namespace tamo
