#pragma once

#include <QtGlobal>

#include "platform/clock.h"
#include "platform/error.h"

namespace tamo {

class Context;

struct SampleOptions {
    int documents = 100;
    int itemsPerDocument = 5;  // every document gets exactly this many lines
    int clients = 20;
    quint32 seed = 1;
};

struct SampleCounts {
    int documents = 0;
    int items = 0;
    int clients = 0;
};

// Fills the store with realistic sample clients (Address), catalog entries (RecentItem), documents
// (Invoice, both invoices kind 1 and quotes kind 0) and their lines (Item), then saves once.
// Deterministic for a given seed and clock, apart from the uniqueIDs the context hands out. Not
// undoable. Meant for an empty store: client and document numbers start afresh.
Result<SampleCounts> generateSample(Context& context, const Clock& clock,
                                    const SampleOptions& options);

}  // namespace tamo
