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

// Writes a compact copy of the saved store to `target` (VACUUM INTO a file beside it, then
// renamed into place), so that a failure never leaves half a file or removes an older one.
Result<void> writeStoreCopy(Context& context, const QString& target);
// Opens `path` as a Tamo store (bringing an older layout up to date) and closes it again; an
// error says why it cannot serve as one, calling it by `shownName`.
Result<void> checkStoreFile(const QString& path, const QString& shownName);
// Puts the store file `source` in place of the closed store at `live`, dropping the journal
// files of the store it replaces. The old file stays until the new one is in place.
Result<void> putStoreFile(const QString& source, const QString& live);
// The file beside `live` into which a replacement is copied and checked first.
QString incomingStorePath(const QString& live);

// The store snapshots in the recovery folder, taken before wholesale replacements.
class RecoverySnapshots {
public:
    static constexpr int kKept = 10;

    explicit RecoverySnapshots(QString folder) : folder_(std::move(folder)) {}

    // Newest first.
    QStringList list() const;
    // Writes a snapshot of the store (of the file `live` when no context is open; nothing when
    // there is no file either) and drops all but the newest ten. Returns the snapshot's path,
    // empty when there was nothing to keep.
    Result<QString> take(Context* context, const QString& live, const QDateTime& now,
                         const QString& reason);

private:
    QString folder_;
};

}  // namespace tamo
