#pragma once

#include <QString>

namespace tamo {

inline constexpr auto kApplicationId = "app.tamo.Tamo";

// Where one user's data lives. The default profile follows the XDG folders; a profile made from
// a directory keeps everything inside it, so scripts and tests never touch the user's own data.
struct Profile {
    QString supportFolder;  // holds the store unless the settings name another folder
    QString dataFolder;     // previews, attachments, exports
    QString settingsFile;
    QString recoveryFolder;   // snapshots taken before wholesale replacements
    QString documentsFolder;  // the user's documents: the safety copy
    QString homeFolder;       // where other editions (Flatpak) keep their data

    static Profile standard();
    static Profile inDirectory(const QString& directory);
};

}  // namespace tamo
