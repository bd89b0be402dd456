#include "setup/startingvalues.h"

#include <QDateTime>
#include <algorithm>
#include <array>

#include "interchange/plistfile.h"
#include "platform/translations.h"

namespace tamo {

namespace {

constexpr std::array kLanguages{
    StartingLanguage{0, "en", "English", "United States: US dollars, Letter paper, sales tax off",
                     "defaultPrefsEnglish"},
    StartingLanguage{1, "de", "Deutsch", "Deutschland: Euro, 19 % USt., A4", "defaultPrefsGerman"},
    StartingLanguage{2, "fr", "Français", "France : euros, TVA 20 %, A4", "defaultPrefsFrench"},
    StartingLanguage{3, "es", "Español", "España: euros, IVA 21 %, A4", "defaultPrefsSpanish"},
};

// What only the user can know, or what their history decides: who they are, where their bank
// and store are, how far their numbers have counted.
constexpr std::array kOwnKeys{
    &key::prefsName,
    &key::prefsContact,
    &key::prefsLetterbox,
    &key::prefsSlogan,
    &key::prefsLogo,
    &key::prefsSupplierLegalName,
    &key::prefsSupplierID,
    &key::prefsSupplierTaxID,
    &key::prefsSupplierStreet,
    &key::prefsSupplierCity,
    &key::prefsSupplierPostalZone,
    &key::prefsSupplierContact,
    &key::prefsSupplierContactPhone,
    &key::prefsSupplierElectronicMail,
    &key::prefsSupplierEndpointID,
    &key::prefsSupplierIBAN,
    &key::invCount,
    &key::quotCount,
    &key::clientCount,
    &key::contactsLocation,
    &key::selectedDesign,
    // Chosen on the e-invoice sheet; empty means the sheet's own default.
    &key::prefsEvoiceConformantBool,
    &key::prefsEvoiceExemptionCategory,
    &key::prefsEvoiceExemptionReason,
    &key::useCustomPath,
    &key::customDatabasePath,
};

// What the program keeps for itself: one-time flags, hints shown, tabs last open, the last
// export's choices, the state of the last run.
constexpr std::array kStateKeys{
    &key::isMainPreviewAction,
    &key::currentPrintJobTitle,
    &key::prefsLedrixExportBeginDate,
    &key::prefsLedrixExportEndDate,
    &key::prefsLedrixExportKind,
    &key::prefsLedrixExportItemsKind,
    &key::prefsLedrixExportCount,
    &key::USMCloudEnabledKey,
    &key::fetchedObjectsCount,
    &key::isTerminatedFine,
    &key::firstStartEverDone,
    &key::isFirstInvoiceEverCreated,
    &key::isDatabase2Migrated,
    &key::justMigratedFrommFree,
    &key::isAssiDone,
    &key::isFirstStoreLoadEverDone,
    &key::isTamo2TemplateLoadingDone,
    &key::assiIndex,
    &key::languageDefaults,
    &key::mainTabIndex,
    &key::addressTabViewIndex,
    &key::itemTabViewIndex,
    &key::shippingTabViewIndex,
    &key::templatesTabViewIndex,
    &key::useReportDateRange,
    &key::reportDateL,
    &key::reportDateR,
    &key::isReportHintShown,
    &key::isAccountBookPrintHintShown,
    &key::firstCenter,
    &key::moveToApplicationsFolderAlertSuppress,
    &key::update_1_3,
    &key::update_2_1,
    &key::update_E_Tamo_0_4,
    &key::loadEvoiceAlert_0_1,
};

template <size_t N>
bool listed(const std::array<const SettingKey*, N>& keys, const SettingKey& key)
{
    return std::ranges::any_of(
        keys, [&](const SettingKey* k) { return std::string_view(k->name) == key.name; });
}

Error fileError(const QString& path, const QString& reason)
{
    return Error{QString::fromLatin1(kSetupDomain), 1,
                 tr("The starting values “%1” could not be read.").arg(path), reason};
}

// The node as a value of the key's type; nothing when it is another kind of value.
std::optional<QVariant> typedValue(const SettingKey& key, plist_t node)
{
    const plist_type type = plist_get_node_type(node);
    const std::optional<Value> value = valueFromPlist(node);
    if (!value) {
        return std::nullopt;
    }
    const bool whole = type == PLIST_UINT;
    switch (key.type) {
    case SettingType::Text:
    case SettingType::Path:
    case SettingType::Object:
        return type == PLIST_STRING ? std::optional(QVariant(value->toString())) : std::nullopt;
    case SettingType::Boolean:
        return type == PLIST_BOOLEAN ? std::optional(QVariant(value->toBool())) : std::nullopt;
    case SettingType::Integer:
        return whole ? std::optional(QVariant(value->toInt())) : std::nullopt;
    case SettingType::Number:
        if (whole) {
            return QVariant(value->toInt());
        }
        return type == PLIST_REAL ? std::optional(QVariant(value->toDouble())) : std::nullopt;
    case SettingType::Real:
        return whole || type == PLIST_REAL ? std::optional(QVariant(value->toDouble()))
                                           : std::nullopt;
    case SettingType::Date:
        return type == PLIST_DATE ? std::optional(QVariant(value->toDate())) : std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

std::span<const StartingLanguage> startingLanguages()
{
    return kLanguages;
}

const StartingLanguage* startingLanguage(int languageDefaults)
{
    for (const StartingLanguage& language : kLanguages) {
        if (language.index == languageDefaults) {
            return &language;
        }
    }
    return nullptr;
}

const StartingLanguage* startingLanguage(QStringView code)
{
    for (const StartingLanguage& language : kLanguages) {
        if (code == QLatin1StringView(language.code)) {
            return &language;
        }
    }
    return nullptr;
}

QString startingValuesPath(const StartingLanguage& language)
{
    return QStringLiteral(":/settings/%1.plist").arg(QLatin1StringView(language.file));
}

SettingOrigin settingOrigin(const SettingKey& key)
{
    if (listed(kOwnKeys, key)) {
        return SettingOrigin::Own;
    }
    if (listed(kStateKeys, key)) {
        return SettingOrigin::State;
    }
    return SettingOrigin::Starting;
}

Result<StartingValues> readStartingValues(const QString& path)
{
    auto plist = readPlistFile(path);
    if (!plist) {
        return std::unexpected(plist.error());
    }
    if (plist_get_node_type(plist->get()) != PLIST_DICT) {
        return std::unexpected(fileError(path, tr("It holds no dictionary.")));
    }
    StartingValues values;
    auto read = forEachDictionaryEntry(
        plist->get(), [&](std::string_view name, plist_t node) -> Result<void> {
            const SettingKey* key = findSettingKey(name);
            const QString shown = QString::fromUtf8(name.data(), qsizetype(name.size()));
            if (!key) {
                return std::unexpected(fileError(path, tr("Tamo has no setting “%1”.").arg(shown)));
            }
            auto value = typedValue(*key, node);
            if (!value) {
                return std::unexpected(
                    fileError(path, tr("The value of “%1” is %2, which that setting cannot hold.")
                                        .arg(shown, plistKindName(node))));
            }
            values.push_back({key, *value});
            return {};
        });
    if (!read) {
        return std::unexpected(read.error());
    }
    return values;
}

void applyStartingValues(Settings& settings, const StartingValues& values)
{
    settings.set(std::span<const SettingValue>(values));
}

bool sameSettingValue(const SettingKey& key, const QVariant& a, const QVariant& b)
{
    switch (key.type) {
    case SettingType::Boolean:
        return a.toBool() == b.toBool();
    case SettingType::Integer:
        return a.toInt() == b.toInt();
    case SettingType::Number:
    case SettingType::Real:
        return a.toDouble() == b.toDouble();
    case SettingType::Date:
        return a.toDateTime() == b.toDateTime();
    case SettingType::Object:
        if (a.typeId() == QMetaType::QByteArray || b.typeId() == QMetaType::QByteArray) {
            return a.toByteArray() == b.toByteArray();
        }
        [[fallthrough]];
    case SettingType::Text:
    case SettingType::Path:
        return a.toString() == b.toString();
    }
    return false;
}

std::vector<SettingValue> changedSettings(const Settings& settings)
{
    StartingValues starting;
    if (const StartingLanguage* language =
            startingLanguage(settings.integer(key::languageDefaults))) {
        starting = readStartingValues(startingValuesPath(*language)).value_or(StartingValues{});
    }
    std::vector<SettingValue> changed;
    for (const SettingKey& key : allSettingKeys()) {
        if (!settings.contains(key)) {
            continue;
        }
        const QVariant value = settings.value(key);
        switch (settingOrigin(key)) {
        case SettingOrigin::State:
            break;
        case SettingOrigin::Own:
            if (!sameSettingValue(key, value, QVariant())) {
                changed.push_back({&key, value});
            }
            break;
        case SettingOrigin::Starting: {
            const auto given = std::ranges::find_if(
                starting, [&](const SettingValue& v) { return v.key == &key; });
            if (given == starting.end() || !sameSettingValue(key, given->value, value)) {
                changed.push_back({&key, value});
            }
            break;
        }
        }
    }
    return changed;
}

}  // namespace tamo
