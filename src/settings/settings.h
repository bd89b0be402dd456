#pragma once

#include <QDateTime>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "platform/error.h"
#include "settings/settingkeys.h"

namespace tamo {

struct SettingValue {
    const SettingKey* key;
    QVariant value;
};

// The user's flat key/value settings. Values are read at the moment of use and never kept
// elsewhere; a key that is absent reads as empty, false or 0. Writes reach the file at once; a
// write that cannot reach it (a full disk, a file that may not be written) returns false, is
// kept as writeError and is reported to the failure handler, and the value lasts only for this
// run.
class Settings {
public:
    explicit Settings(const QString& file);
    ~Settings();

    QString fileName() const { return store_->fileName(); }

    bool contains(const SettingKey& key) const;
    QVariant value(const SettingKey& key) const;
    QString string(const SettingKey& key) const;
    bool boolean(const SettingKey& key) const;
    int integer(const SettingKey& key) const;
    double real(const SettingKey& key) const;
    QDateTime date(const SettingKey& key) const;

    bool set(const SettingKey& key, const QVariant& value);
    // Many values at once, the file written once at the end.
    bool set(std::span<const SettingValue> values);
    bool remove(const SettingKey& key);
    // Why the last write did not reach the file; nothing once a write succeeded again.
    const std::optional<Error>& writeError() const { return writeError_; }
    void setWriteFailureHandler(std::function<void(const Error&)> handler)
    {
        onWriteFailure_ = std::move(handler);
    }

    // Converts text to the key's type; nullopt when the text is not a value of that type.
    static std::optional<QVariant> fromText(const SettingKey& key, const QString& text);
    static QString toText(const QVariant& value);

private:
    bool sync();
    void renewAfterFailure();
    bool holds(const QString& name, const QVariant& value) const;

    std::unique_ptr<QSettings> store_;
    std::optional<Error> writeError_;
    std::function<void(const Error&)> onWriteFailure_;
};

// Runs the updates that each new version applies once, guarded by their flags.
void applyOneTimeUpdates(Settings& settings);

}  // namespace tamo
