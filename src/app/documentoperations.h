#pragma once

#include "documents/clients.h"
#include "documents/lifecycle.h"
#include "documents/lineitems.h"

namespace tamo {

// The core operations the window calls on the current document, one set per session.
struct DocumentOperations {
    explicit DocumentOperations(AppSession& session, NotificationScheduler* scheduler = nullptr)
        : lifecycle(session, scheduler), lines(session), clients(session)
    {
    }

    DocumentLifecycle lifecycle;
    LineItems lines;
    Clients clients;
};

}  // namespace tamo
