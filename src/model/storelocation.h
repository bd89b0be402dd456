#pragma once

#include <QString>
#include <memory>

#include "model/context.h"
#include "platform/error.h"
#include "platform/profile.h"
#include "settings/settings.h"

namespace tamo {

inline constexpr auto kStoreFileName = "Tamo.zqdb";
inline constexpr auto kStoreErrorDomain = "YOUR_ERROR_DOMAIN";
inline constexpr int kFileInsteadOfFolderError = 101;

// The folder of the store: the one the user chose when `useCustomPath` is on, else the
// support folder.
QString storeFolder(const Settings& settings, const Profile& profile);
QString storeFilePath(const Settings& settings, const Profile& profile);

// Makes sure a folder stands at `path`, creating it with its parents when nothing is there.
// A file in its place is error 101.
Result<void> ensureFolder(const QString& path);

// Writes the open store's saved state to `target`, first removing any store files there.
Result<void> migrateStore(Context& context, const QString& target);

}  // namespace tamo
