#pragma once

#include <QByteArray>

#include "interchange/plistfile.h"

namespace tamo {

// The keyed-archive layout that Apple's NSKeyedArchiver writes: a binary property list holding
// "$archiver" = "NSKeyedArchiver", "$version" = 100000, "$top" = {"root": UID}, and "$objects",
// which begins with "$null" and holds every object once: strings, numbers, booleans and data
// inline; dictionaries (NS.keys, NS.objects), arrays (NS.objects) and dates (NS.time) as
// dictionaries whose "$class" refers to a class record ("$classname", "$classes").

// Archives a tree of dictionaries, arrays, text, numbers, booleans, dates and data.
Result<QByteArray> keyedArchive(plist_t root);

// Reads such an archive (binary or XML) back into a plain tree. Besides what keyedArchive writes
// it understands the mutable classes, strings and data kept in objects, sets (as lists), NSNull
// and archived decimal numbers (read as doubles). Anything else, references out of range,
// objects that contain themselves and graphs that would unfold far beyond the file's size are
// refused with a message.
Result<Plist> keyedUnarchive(const QByteArray& bytes);

}  // namespace tamo
