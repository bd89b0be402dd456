#pragma once

#include <QStringList>
#include <string_view>
#include <vector>

#include "interchange/plistfile.h"
#include "model/context.h"

namespace tamo {

// The records written so far below one top-level record: each is written once, at its first
// visit, and references back to it are cut.
using TraversalHistory = std::vector<const Record*>;

// A record as a dictionary: "class" names its entity; every attribute with a value under its
// key; every to-many relationship as a list (present even when empty) and every to-one
// relationship as a nested dictionary, leaving out records already in the history. Fails only
// for a value without a property-list form, naming record and key.
Result<Plist> toDictionary(const Record& record);
// With no history, the call keeps its own for the walk.
Result<Plist> toDictionaryWithTraversalHistory(const Record& record, TraversalHistory* history);

// A list of the records' dictionaries, each with a history of its own.
Result<Plist> toDictionaryList(const std::vector<Record*>& records);

// Values of keys that begin with "dAtEaTtr:" (written by other programs) are seconds since
// 2001-01-01 UTC and become dates; every other value is returned as it is.
inline constexpr std::string_view kDateKeyPrefix = "dAtEaTtr:";
Value decodedValueFrom(const Value& value, std::string_view key);

// Reading never looks for existing records: every nested dictionary becomes a new record. The
// whole dictionary is checked before anything is inserted, so a dictionary that does not fit
// the entities (an unknown "class", a key the entity lacks, text where a number belongs, a status
// that is none, records nested without end) gives a message and leaves the context as it was.
// A created record whose uniqueID another record of its kind has already could not be found by
// it: it gets a new one, and `renamed` (when given) counts it.
Result<Record*> createManagedObjectFromDictionary(plist_t dictionary, Context& context);
// As above, with the entity given instead of read from "class" (the restores do this).
Result<Record*> createManagedObjectFromDictionary(plist_t dictionary, Context& context,
                                                  std::string_view entity, int* renamed = nullptr);
// Every dictionary of `list` as a record of `entity`, whatever its "class" says; all of them are
// checked before the first is inserted. Each dictionary is freed as soon as its record exists, so
// that the records of a large file reuse its memory. Errors name the record by its position and
// number or uniqueID.
Result<std::vector<Record*>> createManagedObjectsFromList(Plist list, Context& context,
                                                          std::string_view entity,
                                                          int* renamed = nullptr);
Result<void> populateFromDictionary(Record& record, plist_t dictionary);
// Checks without inserting.
Result<void> checkDictionary(plist_t dictionary, const EntityDescription& entity);

// A new record of the same entity in the same context with every attribute copied, the uniqueID
// included, except the keys listed; relationships are not copied.
Record* clone(const Record& record);
Record* cloneBySkippingAttributes(const Record& record, const QStringList& skipped);

}  // namespace tamo
