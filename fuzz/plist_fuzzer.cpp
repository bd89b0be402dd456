// Any bytes as a property list: parsing must fail cleanly or give a tree that can be written
// back in both forms.

#include "interchange/plistfile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    auto parsed =
        tamo::parsePlist(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (parsed) {
        (void)tamo::serializePlist(parsed->get(), tamo::PlistFormat::Xml);
        (void)tamo::serializePlist(parsed->get(), tamo::PlistFormat::Binary);
    }
    return 0;
}
