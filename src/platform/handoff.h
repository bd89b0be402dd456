#pragma once

#include <QObject>
#include <QStringList>

#include "platform/error.h"

class QLocalServer;
class QLocalSocket;

namespace tamo {

// One running Tamo per store. The window listens on a local socket named after the application
// id and the store folder; a later `tamo` for the same store hands its arguments (tamo:// URLs,
// absolute file paths, or nothing: "come to the front") to that window and ends.

// The socket's name for the store in `storeFolder` (the folder is compared after resolving links).
// It lies in the user's runtime folder when there is one, so that other users cannot reach it.
QString handoffSocketName(const QString& storeFolder);

// Hands `arguments` to the Tamo listening at `name`. True once that Tamo has taken them; false
// when none listens or it did not answer within `timeoutMs`.
bool handOff(const QString& name, const QStringList& arguments, int timeoutMs = 5000);

// The listening side, kept by the window.
class HandoffListener : public QObject {
    Q_OBJECT

public:
    explicit HandoffListener(QObject* parent = nullptr);
    ~HandoffListener() override;

    // Starts listening. A socket left behind by a Tamo that ended without removing it is replaced;
    // one that another Tamo still listens on is an error.
    Result<void> listen(const QString& name);
    // Stops listening; a later `tamo` for the store starts on its own.
    void close();
    QString name() const;

signals:
    // Another `tamo` handed these over. Emitted after it was answered, from the event loop, so
    // that a receiver may show dialogs.
    void received(const QStringList& arguments);

private:
    void accept();
    void read(QLocalSocket* socket);

    QLocalServer* server_;
};

}  // namespace tamo
