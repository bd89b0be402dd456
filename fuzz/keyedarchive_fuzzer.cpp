// Any bytes as a keyed archive: reading must fail cleanly, and what it reads must archive and
// read again.

#include <cstdlib>

#include "interchange/keyedarchive.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    auto read =
        tamo::keyedUnarchive(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (!read) {
        return 0;
    }
    auto archived = tamo::keyedArchive(read->get());
    if (archived && !tamo::keyedUnarchive(*archived)) {
        std::abort();  // our own archive must always read back
    }
    return 0;
}
