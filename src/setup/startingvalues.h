#pragma once

#include <QString>
#include <QVariant>
#include <span>
#include <vector>

#include "platform/error.h"
#include "settings/settings.h"

namespace tamo {

inline constexpr auto kSetupDomain = "Tamo.setup";

// A language whose starting values ship with Tamo; `index` is its `languageDefaults` value.
struct StartingLanguage {
    int index;
    const char* code;    // as the command line names it: "en", "de", "fr", "es"
    const char* name;    // in the language itself
    const char* region;  // what the file is made for, in the language itself
    const char* file;    // "defaultPrefsEnglish", ...
};

std::span<const StartingLanguage> startingLanguages();
// Nothing for a value or code that names no shipped language.
const StartingLanguage* startingLanguage(int languageDefaults);
const StartingLanguage* startingLanguage(QStringView code);
// The shipped file of a language, among the program's resources.
QString startingValuesPath(const StartingLanguage& language);

// Where a setting's value comes from. The starting-value files give every key of the first kind
// a value; the user's own values (name, address, bank, counters) and the program's own state
// (flags, remembered tabs, the store's place) are never in them, so that running the setup
// again cannot lose them.
enum class SettingOrigin { Starting, Own, State };
SettingOrigin settingOrigin(const SettingKey& key);

using StartingValues = std::vector<SettingValue>;

// Reads a starting-value file: an XML or binary property list holding one dictionary of
// settings. A key Tamo does not know, or a value of another type than its key's, is refused
// with the key named, and nothing is read.
Result<StartingValues> readStartingValues(const QString& path);

// Sets every value of the file, overwriting what was there; settings the file does not name
// stay as they are. The settings file is written once, at the end.
void applyStartingValues(Settings& settings, const StartingValues& values);

// Two values of the key's type that mean the same (the settings file keeps everything as text).
bool sameSettingValue(const SettingKey& key, const QVariant& a, const QVariant& b);

// What the user changed: the starting values that differ from the file of the language last
// applied (`languageDefaults`), and the user's own values that are set. Program state is left
// out. In the order of the key table.
std::vector<SettingValue> changedSettings(const Settings& settings);

}  // namespace tamo
