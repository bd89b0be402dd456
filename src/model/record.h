#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "model/entity.h"
#include "model/value.h"

namespace tamo {

class Context;

// One stored object (an invoice, a line, a client, ...), read and written by attribute key. It is
// owned by its context and lives as long as the context does, also after it was deleted (so that
// a deletion can be undone and pointers held by the interface never dangle). Every write goes
// through the context, which records it for saving and for undo.
//
// Naming a key the entity does not have is a programming error: it stops the program with a
// message naming entity and key.
class Record {
public:
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    const EntityDescription& entity() const { return *entity_; }
    bool is(std::string_view entityName) const { return entity_->name() == entityName; }
    Context& context() const { return *context_; }
    // The record's row in the store file; stable for the life of the record.
    qint64 primaryKey() const { return pk_; }
    bool isDeleted() const { return deleted_; }
    // Inserted, changed or deleted since the last save.
    bool hasChanges() const;

    const Value& value(std::string_view key) const;
    void setValue(std::string_view key, const Value& value);

    QString string(std::string_view key) const { return value(key).toString(); }
    int integer(std::string_view key) const { return value(key).toInt(); }
    bool boolean(std::string_view key) const { return value(key).toBool(); }
    double decimal(std::string_view key) const { return value(key).toDouble(); }
    QDateTime date(std::string_view key) const { return value(key).toDate(); }
    QString uniqueID() const { return string("uniqueID"); }

    // By position in entity().attributes(), for code that walks the description.
    const Value& valueAt(int attribute) const { return values_[size_t(attribute)]; }
    void setValueAt(int attribute, const Value& value);

    Record* toOne(std::string_view key) const;
    void setToOne(std::string_view key, Record* target);
    // The members of a to-many relationship, in no particular order. Loaded from the store the
    // first time they are asked for.
    const std::vector<Record*>& toMany(std::string_view key) const;
    void addToMany(std::string_view key, Record* member);
    void removeFromMany(std::string_view key, Record* member);

private:
    friend class Context;
    friend class StoreFile;

    struct Link {
        qint64 target = 0;             // to-one: primary key of the target, 0 for none
        std::vector<Record*> members;  // to-many: valid once loaded
        bool loaded = false;
    };
    struct Snapshot {
        std::vector<Value> values;
        std::vector<qint64> targets;
    };

    Record(Context* context, const EntityDescription* entity, qint64 pk);
    int attributeIndexOrDie(std::string_view key) const;
    int relationshipIndexOrDie(std::string_view key, bool toMany) const;

    Context* context_;
    const EntityDescription* entity_;
    qint64 pk_;
    std::vector<Value> values_;
    mutable std::vector<Link> links_;
    bool deleted_ = false;
    bool persisted_ = false;         // a row exists in the file as of the last save
    bool dirty_ = false;             // attributes or to-one targets changed since then
    bool pending_ = false;           // listed among the context's unsaved records
    std::optional<Snapshot> saved_;  // state of the row in the file, kept for rollback
};

}  // namespace tamo
