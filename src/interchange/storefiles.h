#pragma once

#include <QLoggingCategory>
#include <QString>
#include <QStringList>

#include "model/context.h"
#include "platform/clock.h"
#include "platform/error.h"
#include "platform/prompter.h"

Q_DECLARE_LOGGING_CATEGORY(lcInterchange)

namespace tamo {

// The panels of the data actions: save panels may create folders, open panels choose files.
FileRequest savePanel(const QString& title, const QString& extension, const QString& proposedName);
FileRequest openPanel(const QString& title, const QString& extension);

// Writes a compact copy of the saved store to `target` (VACUUM INTO a file beside it, checked
// with SQLite's integrity check, then renamed into place), so that a failure never leaves half a
// file or removes an older one. The failure names the target and the cause.
Result<void> writeStoreCopy(Context& context, const QString& target);
// Checks that `path` can serve as the store: it passes SQLite's integrity check, it holds
// exactly Tamo's tables, columns and indexes (no trigger, view or anything else), and it opens as
// a store (an older layout is brought up to date). An error says why not, calling the file by
// `shownName`.
Result<void> checkStoreFile(const QString& path, const QString& shownName);
// Puts the store file `source` in place of the closed store at `live`, dropping the journal
// files of the store it replaces. The old file stays until the new one is in place.
Result<void> putStoreFile(const QString& source, const QString& live);
// The file beside `live` into which a replacement is copied and checked first.
QString incomingStorePath(const QString& live);

// The store snapshots in the recovery folder, taken before wholesale replacements. The ten
// newest are kept, and any older one that holds more records than every snapshot after it.
class RecoverySnapshots {
public:
    static constexpr int kKept = 10;

    explicit RecoverySnapshots(QString folder) : folder_(std::move(folder)) {}

    // Newest first.
    QStringList list() const;
    // The newest snapshot that holds more records than the store file `live` holds now (the one
    // to go back to after data went missing), else the newest; empty when there is none.
    QString newestHoldingMoreThan(const QString& live) const;
    // Writes a snapshot of the store (of the file `live` when no context is open; nothing when
    // there is no file either) and prunes the folder. When the newest snapshot holds exactly
    // this state, no new one is made and that one's path is returned. Returns the snapshot's
    // path, empty when there was nothing to keep.
    Result<QString> take(Context* context, const QString& live, const QDateTime& now,
                         const QString& reason);

private:
    void prune(const QStringList& newestFirst);

    QString folder_;
};

}  // namespace tamo
