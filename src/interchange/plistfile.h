#pragma once

#include <plist/plist.h>
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "model/value.h"
#include "platform/error.h"
#include "platform/filewriting.h"

namespace tamo {

inline constexpr auto kInterchangeDomain = "Tamo.interchange";

// Error codes of the interchange module.
enum InterchangeError {
    kFileUnreadable = 1,
    kFileTooLarge,
    kNotAPropertyList,
    kWrongContent,
    kNoPropertyListForm,
    kFileNotWritten,
    kStoreFileProblem,
};

Error interchangeError(int code, QString message, QString reason = {});

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};
// Owns a libplist node and everything below it.
using Plist = std::unique_ptr<void, PlistDeleter>;

enum class PlistFormat { Xml, Binary };

// Backups of 10,000 documents are some 50 MiB; anything far beyond is not a file of ours and
// would only exhaust memory.
inline constexpr qint64 kMaxInterchangeFileSize = qint64(512) << 20;

Result<QByteArray> readWholeFile(const QString& path, qint64 limit = kMaxInterchangeFileSize);

Result<QByteArray> serializePlist(plist_t root, PlistFormat format);
// Deeper than any file of Tamo's nests (a record's relationships nest at most 32 records deep,
// each a dictionary in a list); the readers recurse, so deeper nesting is refused before parsing.
inline constexpr int kMaxPlistDepth = 256;

// An XML or binary property list, told apart by its first bytes. A list nesting deeper than
// kMaxPlistDepth, and an XML list with a date whose text is no date (named with its key and
// record), are refused without being parsed.
Result<Plist> parsePlist(const QByteArray& bytes);
Result<Plist> readPlistFile(const QString& path);

// Dates in property lists and keyed archives count seconds from 2001-01-01 00:00 UTC.
double appleTimeFrom(const QDateTime& date);
// Invalid when the number is not a time a date can hold.
QDateTime dateFromAppleTime(double seconds);

// The property-list form of an attribute value; nullptr when it has none (a date before 1933 or
// after 2068: libplist keeps a date's seconds in 32 bits).
plist_t plistFromValue(const Value& value);
// The value of a text, number, boolean or date node; nullopt for any other node. Integers
// beyond 32 bits become decimals.
std::optional<Value> valueFromPlist(plist_t node);

// The members of an array node in order, gathered in one pass: libplist finds a member of a
// parsed array by walking from the first, so indexing one member after another is quadratic.
std::vector<plist_t> arrayItems(plist_t array);

QString plistString(plist_t node);

// Calls `f(key, node)` for each entry of a dictionary node in its order, until `f` fails.
template <typename F>
Result<void> forEachDictionaryEntry(plist_t dictionary, F&& f)
{
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(dictionary, &it);
    Result<void> result;
    for (;;) {
        char* key = nullptr;
        plist_t node = nullptr;
        plist_dict_next_item(dictionary, it, &key, &node);
        if (!node) {
            std::free(key);
            break;
        }
        result = f(std::string_view(key ? key : ""), node);
        std::free(key);
        if (!result) {
            break;
        }
    }
    std::free(it);
    return result;
}

// A short English name of the node's kind for messages ("text", "a list", ...).
QString plistKindName(plist_t node);

}  // namespace tamo
