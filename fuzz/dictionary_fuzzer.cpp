// Any property list as record dictionaries, as a restore or an import reads them: refused with a
// message or created, never a crash or a write outside the records it creates.

#include <QTemporaryDir>

#include "interchange/recorddictionary.h"

namespace {

tamo::Context& context()
{
    static QTemporaryDir folder;
    static auto opened = tamo::Context::open(folder.filePath(QStringLiteral("Tamo.zqdb")));
    if (!opened) {
        std::abort();
    }
    return **opened;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    auto parsed =
        tamo::parsePlist(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (!parsed) {
        return 0;
    }
    tamo::Context& store = context();
    if (plist_get_node_type(parsed->get()) == PLIST_ARRAY) {
        (void)tamo::createManagedObjectsFromList(std::move(*parsed), store, "Invoice");
    } else {
        auto created = tamo::createManagedObjectFromDictionary(parsed->get(), store);
        if (created) {
            (void)tamo::toDictionary(**created);
        }
    }
    store.rollback();
    return 0;
}
