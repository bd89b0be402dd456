#include "interchange/recorddictionary.h"
#include "platform/translations.h"

#include <QSet>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <unordered_set>

namespace tamo {

namespace {

QString qs(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

// Deeper than any graph of our entities can be written; a file nesting further is damaged.
constexpr int kMaxDepth = 32;

Error dictionaryError(QString message)
{
    return interchangeError(kWrongContent, std::move(message));
}

// Prefixes where in the file an error was found, outermost first.
Error within(Error e, const QString& where)
{
    e.message = where + QStringLiteral(": ") + e.message;
    return e;
}

QString typeName(AttributeType type)
{
    switch (type) {
    case AttributeType::String:
        return tr("text");
    case AttributeType::Integer:
        return tr("a whole number");
    case AttributeType::Boolean:
        return tr("a yes/no value");
    case AttributeType::Decimal:
        return tr("a number");
    case AttributeType::Date:
        return tr("a date");
    }
    return {};
}

Result<Value> attributeValue(plist_t node, std::string_view key, AttributeType type)
{
    if (type == AttributeType::String && plist_get_node_type(node) == PLIST_STRING) {
        return Value(plistString(node));
    }
    const auto raw = valueFromPlist(node);
    const auto wrong = [&] {
        return std::unexpected(
            dictionaryError(tr("“%1” holds %2 where %3 belongs")
                                .arg(qs(key), plistKindName(node), typeName(type))));
    };
    if (!raw) {
        return wrong();
    }
    const Value value = decodedValueFrom(*raw, key);
    if (type == AttributeType::Integer && value.type() == AttributeType::Decimal) {
        const double d = value.toDouble();
        if (!std::isfinite(d) || d < -2147483648.0 || d >= 2147483648.0) {
            return std::unexpected(
                dictionaryError(tr("“%1” holds %2, which is too large for a whole number")
                                    .arg(qs(key), QString::number(d, 'g', 17))));
        }
    }
    auto stored = value.coerced(type);
    if (!stored || (type == AttributeType::Date && !stored->toDate().isValid())) {
        return wrong();
    }
    return *stored;
}

// Values that fit the attribute's type but mean nothing: a status is one of the five codes.
Result<void> checkRange(const EntityDescription& entity, std::string_view key, const Value& value)
{
    if (entity.name() == "Invoice" && key == "status" && !value.isNull() &&
        (value.toInt() < 0 || value.toInt() > 4)) {
        return std::unexpected(dictionaryError(
            tr("“status” holds %1, which is no status (0 to 4)").arg(value.toString())));
    }
    return {};
}

// One walk serves both checking (no context: nothing is inserted) and creating, so that what
// was checked is exactly what is created.
class DictionaryWalker {
public:
    explicit DictionaryWalker(Context* context) : context_(context) {}

    Result<Record*> create(const EntityDescription& entity, plist_t dictionary, int depth)
    {
        Record* record = context_ ? context_->insert(entity.name()) : nullptr;
        if (auto r = populate(entity, record, dictionary, depth); !r) {
            return std::unexpected(r.error());
        }
        return record;
    }

    Result<void> populate(const EntityDescription& entity, Record* record, plist_t dictionary,
                          int depth)
    {
        if (depth > kMaxDepth) {
            return std::unexpected(dictionaryError(tr("the records nest too deeply")));
        }
        return forEachDictionaryEntry(
            dictionary, [&](std::string_view key, plist_t node) -> Result<void> {
                if (key == "class") {
                    return {};
                }
                std::string_view attributeKey = key;
                if (key.starts_with(kDateKeyPrefix)) {
                    attributeKey = key.substr(kDateKeyPrefix.size());
                }
                if (const int a = entity.attributeIndex(attributeKey); a >= 0) {
                    const AttributeType type = entity.attributes()[size_t(a)].type;
                    if (!record && type == AttributeType::String &&
                        plist_get_node_type(node) == PLIST_STRING) {
                        return {};  // text always fits a text attribute
                    }
                    auto value = attributeValue(node, key, type);
                    if (!value) {
                        return std::unexpected(value.error());
                    }
                    if (auto range = checkRange(entity, attributeKey, *value); !range) {
                        return range;
                    }
                    if (record) {
                        record->setValueAt(a, *value);
                    }
                    return {};
                }
                if (const int r = entity.relationshipIndex(key); r >= 0 && key == attributeKey) {
                    return relate(entity.relationships()[size_t(r)], record, node, depth);
                }
                return std::unexpected(dictionaryError(
                    tr("a record of kind %1 has no entry “%2”").arg(entity.qName(), qs(key))));
            });
    }

private:
    Result<void> relate(const RelationshipDescription& relationship, Record* owner, plist_t node,
                        int depth)
    {
        const QString key = qs(relationship.key);
        const plist_type type = plist_get_node_type(node);
        if (relationship.toMany && type == PLIST_ARRAY) {
            const std::vector<plist_t> entries = arrayItems(node);
            for (size_t i = 0; i < entries.size(); ++i) {
                auto member = nested(relationship, entries[i], depth);
                if (!member) {
                    return std::unexpected(
                        within(member.error(), tr("%1, entry %2").arg(key).arg(i + 1)));
                }
                if (owner) {
                    owner->addToMany(relationship.key, *member);
                }
            }
            return {};
        }
        if (!relationship.toMany && type == PLIST_DICT) {
            auto target = nested(relationship, node, depth);
            if (!target) {
                return std::unexpected(within(target.error(), key));
            }
            if (owner) {
                owner->setToOne(relationship.key, *target);
            }
            return {};
        }
        return std::unexpected(dictionaryError(
            tr("“%1” holds %2 where %3 belongs")
                .arg(key, plistKindName(node),
                     relationship.toMany ? tr("a list of records") : tr("a record"))));
    }

    Result<Record*> nested(const RelationshipDescription& relationship, plist_t node, int depth)
    {
        if (plist_get_node_type(node) != PLIST_DICT) {
            return std::unexpected(
                dictionaryError(tr("%1 stands where a record belongs").arg(plistKindName(node))));
        }
        const EntityDescription& destination = *Model::tamo().entity(relationship.destination);
        if (plist_t name = plist_dict_get_item(node, "class")) {
            const QString className = plistString(name);
            if (className != destination.qName()) {
                return std::unexpected(
                    dictionaryError(tr("a record of kind “%1” stands where one of kind %2 belongs")
                                        .arg(className, destination.qName())));
            }
        }
        return create(destination, node, depth + 1);
    }

    Context* context_;
};

// "Record 3 (RE-2026-0012)": the position in the file and what the person knows it by.
QString recordLabel(uint32_t position, plist_t dictionary)
{
    QString name;
    for (const char* key : {"number", "title", "uniqueID"}) {
        plist_t node = plist_get_node_type(dictionary) == PLIST_DICT
                           ? plist_dict_get_item(dictionary, key)
                           : nullptr;
        if (name.isEmpty() && node) {
            name = plistString(node).left(60);
        }
    }
    return name.isEmpty() ? tr("Record %1").arg(position)
                          : tr("Record %1 (%2)").arg(position).arg(name);
}

// Records are found again by their uniqueID (the list filter, notifications, the command line):
// a created record whose identity another record of its kind has gets a new one.
int keepIdentitiesUnique(Context& context, const std::vector<Record*>& created)
{
    if (created.empty()) {
        return 0;
    }
    const std::unordered_set<const Record*> fresh(created.begin(), created.end());
    QSet<QString> taken;
    for (const Record* r : context.fetch(created.front()->entity().name())) {
        if (!fresh.contains(r)) {
            taken.insert(r->uniqueID());
        }
    }
    int renamed = 0;
    for (Record* r : created) {
        if (taken.contains(r->uniqueID())) {
            r->setValue("uniqueID", Context::makeUniqueID());
            ++renamed;
        }
        taken.insert(r->uniqueID());
    }
    return renamed;
}

const EntityDescription* entityNamed(const Context& context, plist_t dictionary,
                                     std::string_view forced, Error* error)
{
    QString name = qs(forced);
    if (forced.empty()) {
        plist_t node = plist_dict_get_item(dictionary, "class");
        name = node ? plistString(node) : QString();
    }
    const EntityDescription* entity = context.model().entity(name.toStdString());
    if (!entity) {
        *error =
            dictionaryError(name.isEmpty() ? tr("a record names no kind")
                                           : tr("there are no records of kind “%1”").arg(name));
    }
    return entity;
}

Result<Plist> write(const Record& record, TraversalHistory& history)
{
    const auto visited = [&](const Record* r) {
        return std::find(history.begin(), history.end(), r) != history.end();
    };
    history.push_back(&record);
    const EntityDescription& entity = record.entity();
    Plist dictionary(plist_new_dict());
    plist_dict_set_item(dictionary.get(), "class", plist_new_string(entity.name().c_str()));
    const auto& attributes = entity.attributes();
    for (size_t i = 0; i < attributes.size(); ++i) {
        const Value& value = record.valueAt(int(i));
        if (value.isNull()) {
            continue;
        }
        plist_t node = plistFromValue(value);
        if (!node) {
            return std::unexpected(interchangeError(
                kNoPropertyListForm,
                tr("The %1 record %2 holds %3 in “%4”, which a property list cannot "
                   "hold.")
                    .arg(entity.qName(), record.uniqueID(), value.toString(),
                         qs(attributes[i].key))));
        }
        plist_dict_set_item(dictionary.get(), attributes[i].key.c_str(), node);
    }
    for (const RelationshipDescription& relationship : entity.relationships()) {
        if (relationship.toMany) {
            Plist list(plist_new_array());
            for (const Record* member : record.toMany(relationship.key)) {
                if (visited(member)) {
                    continue;
                }
                auto written = write(*member, history);
                if (!written) {
                    return written;
                }
                plist_array_append_item(list.get(), written->release());
            }
            plist_dict_set_item(dictionary.get(), relationship.key.c_str(), list.release());
        } else if (const Record* target = record.toOne(relationship.key);
                   target && !visited(target)) {
            auto written = write(*target, history);
            if (!written) {
                return written;
            }
            plist_dict_set_item(dictionary.get(), relationship.key.c_str(), written->release());
        }
    }
    return dictionary;
}

}  // namespace

Result<Plist> toDictionary(const Record& record)
{
    return toDictionaryWithTraversalHistory(record, nullptr);
}

Result<Plist> toDictionaryWithTraversalHistory(const Record& record, TraversalHistory* history)
{
    if (history) {
        return write(record, *history);
    }
    TraversalHistory own;
    return write(record, own);
}

Result<Plist> toDictionaryList(const std::vector<Record*>& records)
{
    Plist list(plist_new_array());
    for (const Record* record : records) {
        auto dictionary = toDictionary(*record);
        if (!dictionary) {
            return dictionary;
        }
        plist_array_append_item(list.get(), dictionary->release());
    }
    return list;
}

Value decodedValueFrom(const Value& value, std::string_view key)
{
    if (key.starts_with(kDateKeyPrefix) && value.isNumber()) {
        return Value(dateFromAppleTime(value.toDouble()));
    }
    return value;
}

Result<void> checkDictionary(plist_t dictionary, const EntityDescription& entity)
{
    if (plist_get_node_type(dictionary) != PLIST_DICT) {
        return std::unexpected(
            dictionaryError(tr("%1 stands where a record belongs").arg(plistKindName(dictionary))));
    }
    return DictionaryWalker(nullptr).populate(entity, nullptr, dictionary, 0);
}

Result<Record*> createManagedObjectFromDictionary(plist_t dictionary, Context& context)
{
    return createManagedObjectFromDictionary(dictionary, context, {});
}

Result<Record*> createManagedObjectFromDictionary(plist_t dictionary, Context& context,
                                                  std::string_view entityName, int* renamed)
{
    if (plist_get_node_type(dictionary) != PLIST_DICT) {
        return std::unexpected(
            dictionaryError(tr("%1 stands where a record belongs").arg(plistKindName(dictionary))));
    }
    Error error;
    const EntityDescription* entity = entityNamed(context, dictionary, entityName, &error);
    if (!entity) {
        return std::unexpected(error);
    }
    if (auto checked = checkDictionary(dictionary, *entity); !checked) {
        return std::unexpected(checked.error());
    }
    auto created = DictionaryWalker(&context).create(*entity, dictionary, 0);
    if (created) {
        const int given = keepIdentitiesUnique(context, {*created});
        if (renamed) {
            *renamed = given;
        }
    }
    return created;
}

Result<std::vector<Record*>> createManagedObjectsFromList(Plist owned, Context& context,
                                                          std::string_view entityName, int* renamed)
{
    plist_t list = owned.get();
    if (plist_get_node_type(list) != PLIST_ARRAY) {
        return std::unexpected(dictionaryError(
            tr("It holds %1 where a list of records belongs.").arg(plistKindName(list))));
    }
    const EntityDescription& entity = *context.model().entity(entityName);
    const std::vector<plist_t> entries = arrayItems(list);
    const auto count = uint32_t(entries.size());
    for (uint32_t i = 0; i < count; ++i) {
        if (auto checked = checkDictionary(entries[i], entity); !checked) {
            return std::unexpected(within(checked.error(), recordLabel(i + 1, entries[i])));
        }
    }
    std::vector<Record*> created;
    created.reserve(count);
    DictionaryWalker walker(&context);
    for (uint32_t i = 0; i < count; ++i) {
        auto record = walker.create(entity, plist_array_get_item(list, 0), 0);
        if (!record) {
            return std::unexpected(record.error());
        }
        created.push_back(*record);
        plist_array_remove_item(list, 0);
    }
    const int given = keepIdentitiesUnique(context, created);
    if (renamed) {
        *renamed = given;
    }
    return created;
}

Result<void> populateFromDictionary(Record& record, plist_t dictionary)
{
    if (auto checked = checkDictionary(dictionary, record.entity()); !checked) {
        return checked;
    }
    return DictionaryWalker(&record.context()).populate(record.entity(), &record, dictionary, 0);
}

Record* clone(const Record& record)
{
    return cloneBySkippingAttributes(record, {});
}

Record* cloneBySkippingAttributes(const Record& record, const QStringList& skipped)
{
    Record* copy = record.context().insert(record.entity().name());
    const auto& attributes = record.entity().attributes();
    for (size_t i = 0; i < attributes.size(); ++i) {
        if (!skipped.contains(qs(attributes[i].key))) {
            copy->setValueAt(int(i), record.valueAt(int(i)));
        }
    }
    return copy;
}

}  // namespace tamo
