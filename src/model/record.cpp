#include "model/record.h"

#include "model/context.h"

namespace tamo {

Record::Record(Context* context, const EntityDescription* entity, qint64 pk)
    : context_(context),
      entity_(entity),
      pk_(pk),
      values_(entity->attributes().size()),
      links_(entity->relationships().size())
{
}

bool Record::hasChanges() const
{
    return pending_ && (deleted_ ? persisted_ : (!persisted_ || dirty_));
}

int Record::attributeIndexOrDie(std::string_view key) const
{
    const int index = entity_->attributeIndex(key);
    if (index < 0) {
        context_->fail(
            QStringLiteral("%1 has no attribute \"%2\"")
                .arg(entity_->qName(), QString::fromUtf8(key.data(), qsizetype(key.size()))));
    }
    return index;
}

int Record::relationshipIndexOrDie(std::string_view key, bool toMany) const
{
    const int index = entity_->relationshipIndex(key);
    if (index < 0 || entity_->relationships()[size_t(index)].toMany != toMany) {
        context_->fail(QStringLiteral("%1 has no %2 relationship \"%3\"")
                           .arg(entity_->qName(),
                                toMany ? QStringLiteral("to-many") : QStringLiteral("to-one"),
                                QString::fromUtf8(key.data(), qsizetype(key.size()))));
    }
    return index;
}

const Value& Record::value(std::string_view key) const
{
    return values_[size_t(attributeIndexOrDie(key))];
}

void Record::setValue(std::string_view key, const Value& value)
{
    context_->setValueAt(*this, attributeIndexOrDie(key), value);
}

void Record::setValueAt(int attribute, const Value& value)
{
    if (attribute < 0 || size_t(attribute) >= values_.size()) {
        context_->fail(
            QStringLiteral("%1 has no attribute number %2").arg(entity_->qName()).arg(attribute));
    }
    context_->setValueAt(*this, attribute, value);
}

Record* Record::toOne(std::string_view key) const
{
    const int index = relationshipIndexOrDie(key, false);
    const qint64 target = links_[size_t(index)].target;
    if (target == 0) {
        return nullptr;
    }
    const auto& destination = entity_->relationships()[size_t(index)].destination;
    return context_->object(*context_->model().entity(destination), target);
}

void Record::setToOne(std::string_view key, Record* target)
{
    const int index = relationshipIndexOrDie(key, false);
    const auto& relationship = entity_->relationships()[size_t(index)];
    if (target && !target->is(relationship.destination)) {
        context_->fail(QStringLiteral("%1.%2 cannot point to a %3")
                           .arg(entity_->qName(), QString::fromStdString(relationship.key),
                                target->entity().qName()));
    }
    context_->setTarget(*this, index, target);
}

const std::vector<Record*>& Record::toMany(std::string_view key) const
{
    const int index = relationshipIndexOrDie(key, true);
    Link& link = links_[size_t(index)];
    if (!link.loaded) {
        context_->loadMembers(const_cast<Record&>(*this), index);
    }
    return link.members;
}

void Record::addToMany(std::string_view key, Record* member)
{
    const int index = relationshipIndexOrDie(key, true);
    member->setToOne(entity_->relationships()[size_t(index)].inverse, this);
}

void Record::removeFromMany(std::string_view key, Record* member)
{
    const int index = relationshipIndexOrDie(key, true);
    const auto& inverse = entity_->relationships()[size_t(index)].inverse;
    if (member->toOne(inverse) == this) {
        member->setToOne(inverse, nullptr);
    }
}

}  // namespace tamo
