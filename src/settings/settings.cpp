#include "settings/settings.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <array>

#include "platform/filewriting.h"

namespace tamo {

namespace {
#define TAMO_LIST_ENTRY(name, type) key::name,
constexpr std::array kKeys{TAMO_SETTING_LIST(TAMO_LIST_ENTRY) key::update_1_3, key::update_2_1,
                           key::update_E_Tamo_0_4, key::loadEvoiceAlert_0_1};
#undef TAMO_LIST_ENTRY

QString name(const SettingKey& key)
{
    return QString::fromLatin1(key.name);
}
}  // namespace

std::span<const SettingKey> allSettingKeys()
{
    return kKeys;
}

const SettingKey* findSettingKey(std::string_view wanted)
{
    for (const SettingKey& k : kKeys) {
        if (wanted == k.name) {
            return &k;
        }
    }
    return nullptr;
}

Settings::Settings(const QString& file)
    : store_(std::make_unique<QSettings>(file, QSettings::IniFormat))
{
}

Settings::~Settings() = default;

bool Settings::contains(const SettingKey& key) const
{
    return store_->contains(name(key));
}

QVariant Settings::value(const SettingKey& key) const
{
    return store_->value(name(key));
}

QString Settings::string(const SettingKey& key) const
{
    return value(key).toString();
}

bool Settings::boolean(const SettingKey& key) const
{
    return value(key).toBool();
}

int Settings::integer(const SettingKey& key) const
{
    return value(key).toInt();
}

double Settings::real(const SettingKey& key) const
{
    return value(key).toDouble();
}

QDateTime Settings::date(const SettingKey& key) const
{
    return value(key).toDateTime();
}

bool Settings::set(const SettingKey& key, const QVariant& value)
{
    if (holds(name(key), value)) {
        return true;
    }
    renewAfterFailure();
    store_->setValue(name(key), value);
    return sync();
}

bool Settings::set(std::span<const SettingValue> values)
{
    if (std::ranges::all_of(
            values, [this](const SettingValue& v) { return holds(name(*v.key), v.value); })) {
        return true;
    }
    renewAfterFailure();
    for (const SettingValue& v : values) {
        store_->setValue(name(*v.key), v.value);
    }
    return sync();
}

bool Settings::remove(const SettingKey& key)
{
    renewAfterFailure();
    store_->remove(name(key));
    return sync();
}

// Whether the file already says `value` for `name`: then there is nothing to write (each write
// rewrites the whole file and waits for the disk, and commands set some keys on every run).
// After a failed write nothing counts as held, so that the next write saves what is pending.
bool Settings::holds(const QString& name, const QVariant& value) const
{
    if (writeError_ || !store_->contains(name)) {
        return false;
    }
    const QVariant stored = store_->value(name);
    if (stored.metaType() == value.metaType()) {
        return stored == value;
    }
    // Read back from the file, numbers and flags are the text they were written as.
    switch (value.metaType().id()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
        return stored.metaType().id() == QMetaType::QString &&
               stored.toString() == value.toString();
    default:
        return false;
    }
}

// QSettings keeps reporting the first write that failed: after one, the next write goes through
// a fresh QSettings, made once the old one is gone (Qt keeps the values that were not saved per
// file, so they are written with the next write that succeeds).
void Settings::renewAfterFailure()
{
    if (!writeError_) {
        return;
    }
    const QString file = fileName();
    store_.reset();
    store_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

bool Settings::sync()
{
    store_->sync();
    if (store_->status() == QSettings::NoError) {
        writeError_.reset();
        return true;
    }
    // QSettings keeps only that the write failed; the file and its folder tell why.
    const QString file = fileName();
    Error e = fileWriteError(file, probeWriteFailure(file));
    e.message =
        QCoreApplication::translate("tamo::Settings", "Your settings could not be saved to “%1”.")
            .arg(file);
    const bool first = !writeError_;
    writeError_ = e;
    if (onWriteFailure_ && first) {
        onWriteFailure_(e);
    }
    return false;
}

std::optional<QVariant> Settings::fromText(const SettingKey& key, const QString& text)
{
    const QLocale c = QLocale::c();
    bool ok = true;
    switch (key.type) {
    case SettingType::Boolean:
        if (text == u"true" || text == u"1" || text == u"yes") {
            return QVariant(true);
        }
        if (text == u"false" || text == u"0" || text == u"no") {
            return QVariant(false);
        }
        return std::nullopt;
    case SettingType::Integer: {
        const int v = c.toInt(text, &ok);
        return ok ? std::optional(QVariant(v)) : std::nullopt;
    }
    case SettingType::Real: {
        const double v = c.toDouble(text, &ok);
        return ok ? std::optional(QVariant(v)) : std::nullopt;
    }
    case SettingType::Number: {
        if (const int i = c.toInt(text, &ok); ok) {
            return QVariant(i);
        }
        const double v = c.toDouble(text, &ok);
        return ok ? std::optional(QVariant(v)) : std::nullopt;
    }
    case SettingType::Date: {
        const QDateTime d = QDateTime::fromString(text, Qt::ISODate);
        return d.isValid() ? std::optional(QVariant(d)) : std::nullopt;
    }
    case SettingType::Text:
    case SettingType::Path:
    case SettingType::Object:
        return QVariant(text);
    }
    return std::nullopt;
}

QString Settings::toText(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDateTime) {
        return value.toDateTime().toString(Qt::ISODate);
    }
    return value.toString();
}

void applyOneTimeUpdates(Settings& settings)
{
    if (!settings.boolean(key::update_1_3)) {
        settings.set(key::itemSortOrder, 1);
        settings.set(key::update_1_3, true);
    }
    if (!settings.boolean(key::update_2_1)) {
        settings.set(key::beforeTaxesBool, true);
        settings.set(key::update_2_1, true);
    }
    if (!settings.boolean(key::update_E_Tamo_0_4)) {
        settings.set(key::prefsSupplierTaxSchemeBool, true);
        settings.set(key::prefsEvoiceDefaultCurrencyCodeBool, true);
        settings.set(key::prefsSupplierCountryCodeBool, true);
        settings.set(key::beforeTaxesBool, true);
        settings.set(key::prefsSupplierTaxScheme, QStringLiteral("VAT"));
        settings.set(key::prefsSupplierCurrency, QStringLiteral("EUR"));
        settings.set(key::update_E_Tamo_0_4, true);
    }
}

}  // namespace tamo
