#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/value.h"

namespace tamo {

struct AttributeDescription {
    std::string key;
    AttributeType type;
};

enum class DeleteRule { Nullify, Cascade };

struct RelationshipDescription {
    std::string key;
    std::string destination;
    std::string inverse;
    bool toMany = false;
    DeleteRule deleteRule = DeleteRule::Nullify;
};

// What records of one entity hold: attribute keys with their types and relationship keys with
// their kind, in a fixed order that generic code (dictionaries, backups) can rely on.
class EntityDescription {
public:
    EntityDescription(std::string name, std::vector<AttributeDescription> attributes,
                      std::vector<RelationshipDescription> relationships);

    const std::string& name() const { return name_; }
    QString qName() const { return QString::fromLatin1(name_); }
    const std::vector<AttributeDescription>& attributes() const { return attributes_; }
    const std::vector<RelationshipDescription>& relationships() const { return relationships_; }

    // -1 when the entity has no such key.
    int attributeIndex(std::string_view key) const;
    int relationshipIndex(std::string_view key) const;

private:
    struct KeyHash {
        using is_transparent = void;
        size_t operator()(std::string_view key) const { return std::hash<std::string_view>{}(key); }
    };
    using Index = std::unordered_map<std::string, int, KeyHash, std::equal_to<>>;

    std::string name_;
    std::vector<AttributeDescription> attributes_;
    std::vector<RelationshipDescription> relationships_;
    Index attributeIndex_;
    Index relationshipIndex_;
};

// The entities of Tamo's store.
class Model {
public:
    // Raised whenever the stored layout gains something; older stores are brought up to date
    // when they are opened.
    static constexpr int kSchemaVersion = 3;

    static const Model& tamo();

    const std::vector<EntityDescription>& entities() const { return entities_; }
    // nullptr when there is no such entity.
    const EntityDescription* entity(std::string_view name) const;

private:
    Model();
    std::vector<EntityDescription> entities_;
};

}  // namespace tamo
