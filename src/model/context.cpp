#include "model/context.h"

#include <QLoggingCategory>
#include <QUuid>
#include <algorithm>

#include "model/storefile.h"

Q_LOGGING_CATEGORY(lcContext, "tamo.context")

namespace tamo {

namespace {

template <typename T>
void eraseValue(std::vector<T>& list, const T& value)
{
    list.erase(std::remove(list.begin(), list.end(), value), list.end());
}

template <typename T>
bool containsValue(const std::vector<T>& list, const T& value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

}  // namespace

// Opens an undo group around one mutation made outside any group, so that every change is
// undoable and announced.
class Context::Step {
public:
    explicit Step(Context& c) : c_(c), opened_(!c.undo_.isGrouping() && !c.undo_.isReplaying())
    {
        if (opened_) {
            c_.beginUndoGroup({});
        }
    }
    ~Step()
    {
        if (opened_) {
            c_.endUndoGroup();
        }
    }

private:
    Context& c_;
    bool opened_;
};

Context::Context(const Model& model, std::unique_ptr<StoreFile> file)
    : model_(model), file_(std::move(file))
{
    for (const EntityDescription& entity : model_.entities()) {
        EntityState s;
        s.entity = &entity;
        s.nextKey = file_->maxPrimaryKey(entity) + 1;
        states_.push_back(std::move(s));
    }
}

Context::~Context() = default;

Result<std::unique_ptr<Context>> Context::open(const QString& path, const Model& model)
{
    auto file = StoreFile::open(path, model);
    if (!file) {
        return std::unexpected(file.error());
    }
    return std::unique_ptr<Context>(new Context(model, std::move(*file)));
}

QString Context::makeUniqueID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

Result<std::unique_ptr<Context>> Context::openReadOnly(const QString& path, const Model& model)
{
    auto file = StoreFile::openReadOnly(path, model);
    if (!file) {
        return std::unexpected(file.error());
    }
    return std::unique_ptr<Context>(new Context(model, std::move(*file)));
}

QString Context::path() const
{
    return file_->path();
}

bool Context::isReadOnly() const
{
    return file_->isReadOnly();
}

void Context::noteReadFailure(const Error& error, const EntityDescription& entity)
{
    qCCritical(lcContext).noquote() << "Failed to load" << entity.qName() << error.text();
    if (!readFailure_) {
        readFailure_ = error;
    }
}

void Context::fail(const QString& message) const
{
    qFatal("Programming error: %s", qPrintable(message));
}

Context::EntityState& Context::state(std::string_view entity)
{
    for (EntityState& s : states_) {
        if (s.entity->name() == entity) {
            return s;
        }
    }
    fail(QStringLiteral("there is no entity \"%1\"")
             .arg(QString::fromUtf8(entity.data(), qsizetype(entity.size()))));
    return states_.front();
}

Context::EntityState& Context::state(const EntityDescription& entity)
{
    return states_[size_t(&entity - model_.entities().data())];
}

Record* Context::materialise(EntityState& s, qint64 pk)
{
    auto record = std::unique_ptr<Record>(new Record(this, s.entity, pk));
    file_->read(*record);
    record->persisted_ = true;
    Record* r = record.get();
    s.records.emplace(pk, std::move(record));
    return r;
}

void Context::loadAll(EntityState& s)
{
    if (s.allLoaded) {
        return;
    }
    auto loaded = file_->selectAll(*s.entity, [&](qint64 pk) {
        if (!s.records.contains(pk)) {
            materialise(s, pk);
        }
    });
    if (!loaded) {
        noteReadFailure(loaded.error(), *s.entity);
        return;
    }
    s.allLoaded = true;
}

Record* Context::object(const EntityDescription& entity, qint64 pk)
{
    EntityState& s = state(entity);
    if (auto it = s.records.find(pk); it != s.records.end()) {
        return it->second.get();
    }
    if (s.allLoaded) {
        return nullptr;
    }
    Record* found = nullptr;
    auto r = file_->selectOne(entity, pk, [&] { found = materialise(s, pk); });
    if (!r) {
        noteReadFailure(r.error(), entity);
    }
    return found;
}

void Context::loadMembers(Record& owner, int relationship)
{
    Record::Link& link = owner.links_[size_t(relationship)];
    if (link.loaded) {
        return;
    }
    link.loaded = true;
    if (!owner.persisted_ && !owner.deleted_) {
        return;  // a new record has no rows in the file yet
    }
    const auto& rel = owner.entity().relationships()[size_t(relationship)];
    const EntityDescription& destination = *model_.entity(rel.destination);
    const int inverse = destination.relationshipIndex(rel.inverse);
    EntityState& s = state(destination);
    auto r = file_->selectWhere(destination, rel.inverse, owner.pk_, [&](qint64 pk) {
        auto it = s.records.find(pk);
        Record* member = it != s.records.end() ? it->second.get() : materialise(s, pk);
        // A record already in memory may have moved away from this owner since the last save.
        if (!member->deleted_ && member->links_[size_t(inverse)].target == owner.pk_) {
            link.members.push_back(member);
        }
    });
    if (!r) {
        noteReadFailure(r.error(), destination);
    }
}

Record* Context::insert(std::string_view entity)
{
    Step step(*this);
    EntityState& s = state(entity);
    const qint64 pk = s.nextKey++;
    auto owned = std::unique_ptr<Record>(new Record(this, s.entity, pk));
    Record* r = owned.get();
    for (Record::Link& link : r->links_) {
        link.loaded = true;
    }
    r->values_[size_t(s.entity->attributeIndex("uniqueID"))] = Value(makeUniqueID());
    s.records.emplace(pk, std::move(owned));
    revive(*r);
    record({[this, r] { kill(*r); }, [this, r] { revive(*r); }});
    return r;
}

void Context::remove(Record* r)
{
    if (!r || r->deleted_) {
        return;
    }
    Step step(*this);
    const auto& relationships = r->entity().relationships();
    for (size_t i = 0; i < relationships.size(); ++i) {
        const auto& rel = relationships[i];
        if (!rel.toMany) {
            continue;
        }
        const std::vector<Record*> members = r->toMany(rel.key);
        for (Record* member : members) {
            if (rel.deleteRule == DeleteRule::Cascade) {
                remove(member);
            } else {
                member->setToOne(rel.inverse, nullptr);
            }
        }
    }
    kill(*r);
    record({[this, r] { revive(*r); }, [this, r] { kill(*r); }});
}

std::vector<Record*> Context::fetch(std::string_view entity, const Predicate& predicate,
                                    const std::vector<SortDescriptor>& sort)
{
    EntityState& s = state(entity);
    loadAll(s);
    std::vector<Record*> result;
    result.reserve(s.records.size());
    for (const auto& [pk, r] : s.records) {
        if (!r->deleted_ && (!predicate || predicate(*r))) {
            result.push_back(r.get());
        }
    }
    sortRecords(result, sort);
    return result;
}

int Context::materialisedCount(std::string_view entity)
{
    return int(state(entity).records.size());
}

int Context::count(std::string_view entity)
{
    return int(fetch(entity).size());
}

Record* Context::findByUniqueID(std::string_view entity, const QString& uniqueID)
{
    const auto found =
        fetch(entity, [&](const Record& r) { return r.string("uniqueID") == uniqueID; });
    return found.empty() ? nullptr : found.front();
}

void Context::record(UndoManager::Step step)
{
    undo_.record(std::move(step));
}

void Context::markPending(Record& r)
{
    if (!r.pending_) {
        r.pending_ = true;
        pending_.push_back(&r);
    }
}

void Context::touch(Record& r)
{
    markPending(r);
    if (r.persisted_ && !r.saved_) {
        Record::Snapshot snapshot{r.values_, {}};
        for (const Record::Link& link : r.links_) {
            snapshot.targets.push_back(link.target);
        }
        r.saved_ = std::move(snapshot);
    }
    r.dirty_ = true;
}

void Context::noteChange(Record& r, Change change)
{
    noted_[size_t(change)].insert(&r);
}

void Context::setValueAt(Record& r, int attribute, const Value& value)
{
    const AttributeDescription& description = r.entity().attributes()[size_t(attribute)];
    const std::optional<Value> stored = value.coerced(description.type);
    if (!stored) {
        fail(QStringLiteral("%1.%2 holds %3 values, not %4")
                 .arg(r.entity().qName(), QString::fromStdString(description.key),
                      QString::fromLatin1(attributeTypeName(description.type)),
                      QString::fromLatin1(attributeTypeName(value.type()))));
    }
    Value& slot = r.values_[size_t(attribute)];
    if (slot == *stored) {
        return;
    }
    Step step(*this);
    touch(r);
    Value old = std::exchange(slot, *stored);
    noteChange(r, Change::Updated);
    if (undo_.isEnabled()) {  // bulk loads skip building steps that would be dropped
        record({[this, &r, attribute, old] { setValueAt(r, attribute, old); },
                [this, &r, attribute, now = *stored] { setValueAt(r, attribute, now); }});
    }
}

void Context::setTarget(Record& r, int relationship, Record* target)
{
    const qint64 old = r.links_[size_t(relationship)].target;
    const qint64 now = target ? target->pk_ : 0;
    if (old == now) {
        return;
    }
    Step step(*this);
    applyTarget(r, relationship, now);
    if (undo_.isEnabled()) {
        record({[this, &r, relationship, old] { applyTarget(r, relationship, old); },
                [this, &r, relationship, now] { applyTarget(r, relationship, now); }});
    }
}

void Context::applyTarget(Record& r, int relationship, qint64 target)
{
    Record::Link& link = r.links_[size_t(relationship)];
    if (link.target == target) {
        return;
    }
    touch(r);
    if (!r.deleted_) {
        detachFromOwner(r, relationship);
    }
    link.target = target;
    if (!r.deleted_) {
        attachToOwner(r, relationship);
    }
    noteChange(r, Change::Updated);
}

// The owner's member list is only kept once it was loaded; an unloaded list is read from the
// file, with the in-memory targets deciding, when it is first asked for.
void Context::detachFromOwner(Record& r, int relationship)
{
    const qint64 target = r.links_[size_t(relationship)].target;
    if (target == 0) {
        return;
    }
    const auto& rel = r.entity().relationships()[size_t(relationship)];
    const EntityDescription& destination = *model_.entity(rel.destination);
    EntityState& owners = state(destination);
    if (auto it = owners.records.find(target); it != owners.records.end()) {
        Record& owner = *it->second;
        Record::Link& members = owner.links_[size_t(destination.relationshipIndex(rel.inverse))];
        if (members.loaded) {
            eraseValue(members.members, &r);
        }
        noteChange(owner, Change::Updated);
    }
}

void Context::attachToOwner(Record& r, int relationship)
{
    const qint64 target = r.links_[size_t(relationship)].target;
    if (target == 0) {
        return;
    }
    const auto& rel = r.entity().relationships()[size_t(relationship)];
    const EntityDescription& destination = *model_.entity(rel.destination);
    if (Record* owner = object(destination, target)) {
        const int inverse = destination.relationshipIndex(rel.inverse);
        loadMembers(*owner, inverse);
        auto& members = owner->links_[size_t(inverse)].members;
        if (!containsValue(members, &r)) {
            members.push_back(&r);
        }
        noteChange(*owner, Change::Updated);
    }
}

// Deleting and reviving only flip the record's state and its place in its owners' lists; its
// values and targets stay, so that undo can bring it back whole.
void Context::kill(Record& r)
{
    r.deleted_ = true;
    markPending(r);
    const auto& relationships = r.entity().relationships();
    for (size_t i = 0; i < relationships.size(); ++i) {
        if (!relationships[i].toMany) {
            detachFromOwner(r, int(i));
        }
    }
    noteChange(r, Change::Deleted);
}

void Context::revive(Record& r)
{
    r.deleted_ = false;
    markPending(r);
    const auto& relationships = r.entity().relationships();
    for (size_t i = 0; i < relationships.size(); ++i) {
        if (!relationships[i].toMany) {
            attachToOwner(r, int(i));
        }
    }
    noteChange(r, Change::Inserted);
}

bool Context::hasChanges() const
{
    return !pendingMarks_.empty() || std::any_of(pending_.begin(), pending_.end(),
                                                 [](const Record* r) { return r->hasChanges(); });
}

Result<void> Context::save()
{
    std::vector<Record*> changed;
    for (Record* r : pending_) {
        if (r->hasChanges()) {
            changed.push_back(r);
        }
    }
    if (!changed.empty() || !pendingMarks_.empty()) {
        if (auto written = file_->write(changed, pendingMarks_); !written) {
            qCWarning(lcContext).noquote() << "Unable to save the store:" << written.error().text();
            return written;
        }
    }
    clearPending();
    if (!changed.empty()) {
        emit didSave();
    }
    return {};
}

void Context::clearPending()
{
    for (Record* r : pending_) {
        r->persisted_ = !r->deleted_;
        r->dirty_ = false;
        r->pending_ = false;
        r->saved_.reset();
    }
    pending_.clear();
    pendingMarks_.clear();
}

void Context::adoptChanges()
{
    clearPending();
}

QString Context::storeMark(const QString& key)
{
    for (const auto& [k, v] : pendingMarks_) {
        if (k == key) {
            return v;
        }
    }
    auto value = file_->mark(key);
    return value ? *value : QString();
}

void Context::setStoreMark(const QString& key, const QString& value)
{
    std::erase_if(pendingMarks_, [&](const auto& mark) { return mark.first == key; });
    pendingMarks_.emplace_back(key, value);
}

void Context::rollback()
{
    for (Record* r : pending_) {
        if (r->persisted_) {
            if (r->saved_) {
                r->values_ = std::move(r->saved_->values);
                for (size_t i = 0; i < r->links_.size(); ++i) {
                    r->links_[i].target = r->saved_->targets[i];
                }
            }
            r->deleted_ = false;
            noteChange(*r, Change::Updated);
        } else {
            r->deleted_ = true;
            noteChange(*r, Change::Deleted);
        }
        r->dirty_ = false;
        r->pending_ = false;
        r->saved_.reset();
    }
    pending_.clear();
    pendingMarks_.clear();
    rebuildMemberLists();
    undo_.clear();
    announce();
}

void Context::rebuildMemberLists()
{
    for (EntityState& s : states_) {
        for (auto& [pk, r] : s.records) {
            for (Record::Link& link : r->links_) {
                link.members.clear();
            }
        }
    }
    for (EntityState& s : states_) {
        const auto& relationships = s.entity->relationships();
        for (auto& [pk, r] : s.records) {
            for (size_t i = 0; i < relationships.size(); ++i) {
                if (relationships[i].toMany || r->deleted_ || r->links_[i].target == 0) {
                    continue;
                }
                const EntityDescription& destination = *model_.entity(relationships[i].destination);
                EntityState& owners = state(destination);
                auto it = owners.records.find(r->links_[i].target);
                if (it == owners.records.end()) {
                    continue;
                }
                Record::Link& link =
                    it->second
                        ->links_[size_t(destination.relationshipIndex(relationships[i].inverse))];
                if (link.loaded) {
                    link.members.push_back(r.get());
                }
            }
        }
    }
}

void Context::beginUndoGroup(const QString& name)
{
    undo_.beginGroup(name);
}

void Context::endUndoGroup()
{
    if (undo_.endGroup()) {
        announce();
    }
}

void Context::undo()
{
    undo_.undo();
    announce();
}

void Context::redo()
{
    undo_.redo();
    announce();
}

void Context::announce()
{
    ChangeSet changes;
    changes.inserted.assign(noted_[0].begin(), noted_[0].end());
    changes.updated.assign(noted_[1].begin(), noted_[1].end());
    changes.deleted.assign(noted_[2].begin(), noted_[2].end());
    for (auto& set : noted_) {
        set.clear();
    }
    if (!changes.isEmpty()) {
        emit objectsDidChange(changes);
    }
    emit undoStateChanged();
}

Result<void> Context::copyStoreTo(const QString& path)
{
    return file_->copyTo(path);
}

}  // namespace tamo
