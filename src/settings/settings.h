#pragma once

#include <QDateTime>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <span>

#include "settings/settingkeys.h"

namespace tamo {

struct SettingValue {
    const SettingKey* key;
    QVariant value;
};

// The user's flat key/value settings. Values are read at the moment of use and never kept
// elsewhere; a key that is absent reads as empty, false or 0. Writes reach the file at once.
class Settings {
public:
    explicit Settings(const QString& file);

    QString fileName() const { return store_.fileName(); }

    bool contains(const SettingKey& key) const;
    QVariant value(const SettingKey& key) const;
    QString string(const SettingKey& key) const;
    bool boolean(const SettingKey& key) const;
    int integer(const SettingKey& key) const;
    double real(const SettingKey& key) const;
    QDateTime date(const SettingKey& key) const;

    void set(const SettingKey& key, const QVariant& value);
    // Many values at once, the file written once at the end.
    void set(std::span<const SettingValue> values);
    void remove(const SettingKey& key);

    // Converts text to the key's type; nullopt when the text is not a value of that type.
    static std::optional<QVariant> fromText(const SettingKey& key, const QString& text);
    static QString toText(const QVariant& value);

private:
    mutable QSettings store_;
};

// Runs the updates that each new version applies once, guarded by their flags.
void applyOneTimeUpdates(Settings& settings);

}  // namespace tamo
