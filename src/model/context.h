#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "model/entity.h"
#include "model/record.h"
#include "model/undo.h"
#include "platform/error.h"

namespace tamo {

class StoreFile;

struct SortDescriptor {
    std::string key;
    bool ascending = true;
};

using Predicate = std::function<bool(const Record&)>;

// Orders records by the given keys, the first deciding first; a missing value sorts first.
void sortRecords(std::vector<Record*>& records, const std::vector<SortDescriptor>& sort);
int compareValues(const Value& a, const Value& b);

// What one closed group of changes did, sent with objectsDidChange.
struct ChangeSet {
    std::vector<Record*> inserted;
    std::vector<Record*> updated;
    std::vector<Record*> deleted;

    bool isEmpty() const { return inserted.empty() && updated.empty() && deleted.empty(); }
    bool touches(std::string_view entity) const;
};

// The one object context of the application: every record is read and written through it, it
// knows what changed since the last save, writes exactly that in one transaction, and can undo
// and redo the user's actions group by group.
class Context : public QObject {
    Q_OBJECT

public:
    // Opens (or creates) the store file, bringing an older layout up to date.
    static Result<std::unique_ptr<Context>> open(const QString& path,
                                                 const Model& model = Model::tamo());
    // Opens the file for reading only, on a snapshot of the moment (see StoreFile).
    static Result<std::unique_ptr<Context>> openReadOnly(const QString& path,
                                                         const Model& model = Model::tamo());
    ~Context() override;

    const Model& model() const { return model_; }
    QString path() const;
    bool isReadOnly() const;
    // The first failure to read records from the file, if any: the records it should have
    // given are missing from what the context shows.
    const std::optional<Error>& readFailure() const { return readFailure_; }

    // A fresh identity, as every new record gets one.
    static QString makeUniqueID();
    // A new record with a fresh uniqueID and no other values.
    Record* insert(std::string_view entity);
    // Deletes the record and whatever its cascading relationships hold.
    void remove(Record* record);
    std::vector<Record*> fetch(std::string_view entity, const Predicate& predicate = {},
                               const std::vector<SortDescriptor>& sort = {});
    int count(std::string_view entity);
    Record* findByUniqueID(std::string_view entity, const QString& uniqueID);

    // How many records of the entity are in memory; lines and the like load only when used.
    int materialisedCount(std::string_view entity);

    bool hasChanges() const;
    // Writes what changed since the last save in one transaction. On failure nothing is written,
    // the changes stay in memory and the error says why.
    Result<void> save();
    // Forgets every unsaved change and the undo history.
    void rollback();
    // Takes what is in memory as the saved state without writing it: a store open for reading
    // only keeps what the statistics pass worked out.
    void adoptChanges();

    // A small value kept in the store with the records and saved in the same transaction, so
    // that a step and the note that it was done are written together or not at all.
    QString storeMark(const QString& key);
    void setStoreMark(const QString& key, const QString& value);

    UndoManager& undoManager() { return undo_; }
    void beginUndoGroup(const QString& name);
    void endUndoGroup();
    void undo();
    void redo();

    // Writes a compact copy of the saved store to another file.
    Result<void> copyStoreTo(const QString& path);

signals:
    void objectsDidChange(const tamo::ChangeSet& changes);
    void didSave();
    void undoStateChanged();

private:
    friend class Record;

    struct EntityState {
        const EntityDescription* entity = nullptr;
        std::map<qint64, std::unique_ptr<Record>> records;  // every materialised record
        qint64 nextKey = 1;
        bool allLoaded = false;
    };

    Context(const Model& model, std::unique_ptr<StoreFile> file);

    EntityState& state(std::string_view entity);
    EntityState& state(const EntityDescription& entity);
    void loadAll(EntityState& state);
    Record* materialise(EntityState& state, qint64 pk);
    Record* object(const EntityDescription& entity, qint64 pk);
    void loadMembers(Record& owner, int relationship);
    void fail(const QString& message) const;
    void noteReadFailure(const Error& error, const EntityDescription& entity);
    void clearPending();

    // Mutations, recorded for undo and saving.
    enum class Change { Inserted, Updated, Deleted };
    class Step;
    void setValueAt(Record& record, int attribute, const Value& value);
    void setTarget(Record& record, int relationship, Record* target);
    void applyTarget(Record& record, int relationship, qint64 target);
    void detachFromOwner(Record& record, int relationship);
    void attachToOwner(Record& record, int relationship);
    void kill(Record& record);
    void revive(Record& record);
    void markPending(Record& record);
    void touch(Record& record);
    void noteChange(Record& record, Change change);
    void record(UndoManager::Step step);
    void rebuildMemberLists();
    void announce();

    const Model& model_;
    std::unique_ptr<StoreFile> file_;
    std::vector<EntityState> states_;
    std::vector<Record*> pending_;
    UndoManager undo_;
    std::unordered_set<Record*> noted_[3];  // by Change, until the next announcement
    std::optional<Error> readFailure_;
    std::vector<std::pair<QString, QString>> pendingMarks_;
};

// Keeps the changes made during its life together as one undoable step.
class UndoGroup {
public:
    UndoGroup(Context& context, const QString& name) : context_(context)
    {
        context_.beginUndoGroup(name);
    }
    ~UndoGroup() { context_.endUndoGroup(); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

private:
    Context& context_;
};

// Changes made during its life are not undoable (bulk loads, generated data).
class WithoutUndo {
public:
    explicit WithoutUndo(Context& context) : undo_(context.undoManager()) { undo_.disable(); }
    ~WithoutUndo() { undo_.enable(); }
    WithoutUndo(const WithoutUndo&) = delete;
    WithoutUndo& operator=(const WithoutUndo&) = delete;

private:
    UndoManager& undo_;
};

}  // namespace tamo

Q_DECLARE_METATYPE(tamo::ChangeSet)
