#pragma once

#include <QCoreApplication>
#include <QString>

#include "model/appsession.h"

namespace tamo {

enum class StoreMove { Moved, AlreadyThere, Cancelled, Failed };

// The store folder of the Data pane and `tamo move-store`: after a question, the settings name
// the new folder and the store moves there (complete backup first, then the copy; the old
// folder keeps its files). An empty `folder` is the default folder. When the move fails, the
// settings go back to the folder the store is still in.
class StoreMover {
    Q_DECLARE_TR_FUNCTIONS(tamo::StoreMover)

public:
    explicit StoreMover(AppSession& session) : session_(session) {}

    // The folder the store is in now, and whether that is the default one.
    QString currentFolder() const;
    bool isDefaultFolder() const;

    StoreMove moveTo(const QString& folder);

private:
    AppSession& session_;
};

}  // namespace tamo
