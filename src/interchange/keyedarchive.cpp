#include "interchange/keyedarchive.h"
#include "platform/translations.h"

#include <array>
#include <cmath>
#include <string>
#include <unordered_map>
#include <vector>

namespace tamo {

namespace {

constexpr int kMaxDepth = 64;
constexpr uint64_t kArchiverVersion = 100000;

Error archiveError(QString reason)
{
    return interchangeError(kWrongContent, tr("The file is not a readable archive."),
                            std::move(reason));
}

std::unexpected<Error> refuse(QString reason)
{
    return std::unexpected(archiveError(std::move(reason)));
}

uint64_t uidValue(plist_t node)
{
    uint64_t uid = 0;
    plist_get_uid_val(node, &uid);
    return uid;
}

plist_t uidArray(const std::vector<uint64_t>& uids)
{
    plist_t array = plist_new_array();
    for (uint64_t uid : uids) {
        plist_array_append_item(array, plist_new_uid(uid));
    }
    return array;
}

class Archiver {
public:
    Archiver() : objects_(plist_new_array()) { append(plist_new_string("$null")); }

    Result<uint64_t> encode(plist_t node, int depth)
    {
        if (depth > kMaxDepth) {
            return std::unexpected(interchangeError(
                kNoPropertyListForm, tr("The data nests too deeply to be archived.")));
        }
        switch (plist_get_node_type(node)) {
        case PLIST_STRING:
            return string(plistString(node).toStdString());
        case PLIST_UINT:
        case PLIST_REAL:
        case PLIST_BOOLEAN:
        case PLIST_DATA:
            return append(plist_copy(node));
        case PLIST_DATE: {
            int32_t seconds = 0;
            int32_t micro = 0;
            plist_get_date_val(node, &seconds, &micro);
            plist_t date = plist_new_dict();
            plist_dict_set_item(date, "NS.time", plist_new_real(seconds + micro / 1e6));
            plist_dict_set_item(date, "$class", plist_new_uid(classRecord("NSDate")));
            return append(date);
        }
        case PLIST_ARRAY:
            return container(node, depth, false);
        case PLIST_DICT:
            return container(node, depth, true);
        default:
            return std::unexpected(interchangeError(
                kNoPropertyListForm, tr("The data holds a value that cannot be archived.")));
        }
    }

    Plist finish(uint64_t root)
    {
        Plist archive(plist_new_dict());
        plist_dict_set_item(archive.get(), "$version", plist_new_uint(kArchiverVersion));
        plist_dict_set_item(archive.get(), "$archiver", plist_new_string("NSKeyedArchiver"));
        plist_t top = plist_new_dict();
        plist_dict_set_item(top, "root", plist_new_uid(root));
        plist_dict_set_item(archive.get(), "$top", top);
        plist_dict_set_item(archive.get(), "$objects", objects_.release());
        return archive;
    }

private:
    uint64_t append(plist_t node)
    {
        plist_array_append_item(objects_.get(), node);
        return count_++;
    }

    uint64_t string(const std::string& text)
    {
        const auto [it, added] = strings_.try_emplace(text, count_);
        if (added) {
            append(plist_new_string(text.c_str()));
        }
        return it->second;
    }

    uint64_t classRecord(const char* name)
    {
        const auto [it, added] = classes_.try_emplace(name, count_);
        if (added) {
            plist_t record = plist_new_dict();
            plist_dict_set_item(record, "$classname", plist_new_string(name));
            plist_t chain = plist_new_array();
            plist_array_append_item(chain, plist_new_string(name));
            plist_array_append_item(chain, plist_new_string("NSObject"));
            plist_dict_set_item(record, "$classes", chain);
            append(record);
        }
        return it->second;
    }

    // A container takes its number before its members, as Apple's archiver numbers them.
    Result<uint64_t> container(plist_t node, int depth, bool isDictionary)
    {
        const uint64_t self = append(plist_new_bool(0));
        std::vector<uint64_t> keys;
        std::vector<uint64_t> values;
        const auto add = [&](plist_t member) -> Result<void> {
            auto uid = encode(member, depth + 1);
            if (!uid) {
                return std::unexpected(uid.error());
            }
            values.push_back(*uid);
            return {};
        };
        if (isDictionary) {
            plist_dict_iter it = nullptr;
            plist_dict_new_iter(node, &it);
            for (;;) {
                char* key = nullptr;
                plist_t member = nullptr;
                plist_dict_next_item(node, it, &key, &member);
                if (!member) {
                    std::free(key);
                    break;
                }
                keys.push_back(string(key ? key : ""));
                std::free(key);
                if (auto added = add(member); !added) {
                    std::free(it);
                    return std::unexpected(added.error());
                }
            }
            std::free(it);
        } else {
            for (plist_t member : arrayItems(node)) {
                if (auto added = add(member); !added) {
                    return std::unexpected(added.error());
                }
            }
        }
        plist_t object = plist_new_dict();
        if (isDictionary) {
            plist_dict_set_item(object, "NS.keys", uidArray(keys));
        }
        plist_dict_set_item(object, "NS.objects", uidArray(values));
        plist_dict_set_item(object, "$class",
                            plist_new_uid(classRecord(isDictionary ? "NSDictionary" : "NSArray")));
        plist_array_set_item(objects_.get(), object, uint32_t(self));
        return self;
    }

    Plist objects_;
    uint64_t count_ = 0;
    std::unordered_map<std::string, uint64_t> strings_;
    std::unordered_map<std::string, uint64_t> classes_;
};

enum class Kind { Dictionary, Array, String, Data, Date, Decimal, Null, Unknown };

// Reads the 128-bit mantissa of an archived decimal number (eight 16-bit words, least
// significant first) into decimal digits.
QString mantissaDigits(std::array<uint16_t, 8> words, int length)
{
    QString digits;
    bool nonZero = true;
    while (nonZero) {
        uint32_t remainder = 0;
        nonZero = false;
        for (int i = length - 1; i >= 0; --i) {
            const uint32_t current = (remainder << 16) | words[size_t(i)];
            words[size_t(i)] = uint16_t(current / 10);
            remainder = current % 10;
            nonZero = nonZero || words[size_t(i)] != 0;
        }
        digits.prepend(QChar(u'0' + char16_t(remainder)));
    }
    return digits;
}

class Unarchiver {
public:
    Result<Plist> run(plist_t archive)
    {
        if (plist_get_node_type(archive) != PLIST_DICT) {
            return refuse(tr("It holds no keyed archive."));
        }
        plist_t archiver = plist_dict_get_item(archive, "$archiver");
        plist_t objects = plist_dict_get_item(archive, "$objects");
        plist_t top = plist_dict_get_item(archive, "$top");
        plist_t root = top && plist_get_node_type(top) == PLIST_DICT
                           ? plist_dict_get_item(top, "root")
                           : nullptr;
        if ((archiver && plistString(archiver) != u"NSKeyedArchiver") || !objects ||
            plist_get_node_type(objects) != PLIST_ARRAY || !root ||
            plist_get_node_type(root) != PLIST_UID) {
            return refuse(tr("It holds no keyed archive."));
        }
        // Objects are found by number; gathered once, each is found in constant time.
        objects_ = arrayItems(objects);
        count_ = uint32_t(objects_.size());
        active_.assign(count_, false);
        budget_ = 1024 + 4 * uint64_t(count_);
        for (plist_t object : objects_) {
            if (plist_get_node_type(object) != PLIST_DICT) {
                continue;
            }
            for (const char* key : {"NS.keys", "NS.objects"}) {
                plist_t refs = plist_dict_get_item(object, key);
                if (refs && plist_get_node_type(refs) == PLIST_ARRAY) {
                    budget_ += 4 * uint64_t(plist_array_get_size(refs));
                }
            }
        }
        auto decoded = decode(root, 0);
        if (decoded && !*decoded) {
            return refuse(tr("Its root object is empty."));
        }
        return decoded;
    }

private:
    Result<Plist> decode(plist_t reference, int depth)
    {
        if (plist_get_node_type(reference) != PLIST_UID) {
            return refuse(
                tr("It holds %1 where an object reference belongs.").arg(plistKindName(reference)));
        }
        const uint64_t uid = uidValue(reference);
        if (uid >= count_) {
            return refuse(tr("It refers to object %1 of %2.").arg(uid).arg(count_));
        }
        if (budget_-- == 0) {
            return refuse(tr("Its objects unfold far beyond the size of the file."));
        }
        if (depth > kMaxDepth) {
            return refuse(tr("Its objects nest too deeply."));
        }
        if (uid == 0) {
            return Plist();  // "$null"
        }
        plist_t object = objects_[size_t(uid)];
        switch (plist_get_node_type(object)) {
        case PLIST_STRING:
        case PLIST_UINT:
        case PLIST_REAL:
        case PLIST_BOOLEAN:
        case PLIST_DATA:
            return Plist(plist_copy(object));
        case PLIST_DATE:
            // A date beyond what libplist's reader can hold arrives with meaningless parts.
            if (plist_t date = plistFromValue(*valueFromPlist(object))) {
                return Plist(date);
            }
            return refuse(tr("A date lies too far from today."));
        case PLIST_DICT:
            break;
        default:
            return refuse(tr("Object %1 is %2.").arg(uid).arg(plistKindName(object)));
        }
        if (active_[uid]) {
            return refuse(tr("Object %1 contains itself.").arg(uid));
        }
        active_[uid] = true;
        auto result = decodeObject(object, depth);
        active_[uid] = false;
        return result;
    }

    Result<Plist> decodeObject(plist_t object, int depth)
    {
        QString className;
        switch (kindOf(object, &className)) {
        case Kind::Dictionary:
            return decodeDictionary(object, depth);
        case Kind::Array:
            return decodeArray(object, depth);
        case Kind::String:
            return decodeString(object);
        case Kind::Data: {
            plist_t data = member(object, "NS.data", PLIST_DATA);
            data = data ? data : member(object, "NS.bytes", PLIST_DATA);
            return data ? Result<Plist>(Plist(plist_copy(data)))
                        : refuse(tr("A data object holds no bytes."));
        }
        case Kind::Date:
            return decodeDate(object);
        case Kind::Decimal:
            return decodeDecimal(object);
        case Kind::Null:
            return Plist();
        case Kind::Unknown:
            break;
        }
        return refuse(
            tr("It holds an object of class “%1”, which Tamo does not read.").arg(className));
    }

    Kind kindOf(plist_t object, QString* className)
    {
        plist_t classRef = plist_dict_get_item(object, "$class");
        plist_t record = nullptr;
        if (classRef && plist_get_node_type(classRef) == PLIST_UID && uidValue(classRef) < count_) {
            record = objects_[size_t(uidValue(classRef))];
        }
        if (!record || plist_get_node_type(record) != PLIST_DICT) {
            *className = QStringLiteral("(none)");
            return Kind::Unknown;
        }
        QStringList names;
        if (plist_t name = plist_dict_get_item(record, "$classname")) {
            names << plistString(name);
        }
        if (plist_t chain = plist_dict_get_item(record, "$classes");
            chain && plist_get_node_type(chain) == PLIST_ARRAY) {
            for (plist_t name : arrayItems(chain)) {
                names << plistString(name);
            }
        }
        *className = names.value(0);
        const std::pair<const char16_t*, Kind> known[] = {
            {u"NSDecimalNumber", Kind::Decimal},
            {u"NSDecimalNumberPlaceholder", Kind::Decimal},
            {u"NSDictionary", Kind::Dictionary},
            {u"NSArray", Kind::Array},
            {u"NSSet", Kind::Array},
            {u"NSOrderedSet", Kind::Array},
            {u"NSString", Kind::String},
            {u"NSData", Kind::Data},
            {u"NSDate", Kind::Date},
            {u"NSNull", Kind::Null}};
        for (const auto& [name, kind] : known) {
            if (names.contains(QString::fromUtf16(name))) {
                return kind;
            }
        }
        return Kind::Unknown;
    }

    static plist_t member(plist_t object, const char* key, plist_type type)
    {
        plist_t node = plist_dict_get_item(object, key);
        return node && plist_get_node_type(node) == type ? node : nullptr;
    }

    Result<Plist> decodeDictionary(plist_t object, int depth)
    {
        plist_t keys = member(object, "NS.keys", PLIST_ARRAY);
        plist_t values = member(object, "NS.objects", PLIST_ARRAY);
        const std::vector<plist_t> keyList = keys ? arrayItems(keys) : std::vector<plist_t>();
        const std::vector<plist_t> valueList = values ? arrayItems(values) : std::vector<plist_t>();
        if (!keys || !values || keyList.size() != valueList.size()) {
            return refuse(tr("A dictionary has no matching keys and values."));
        }
        Plist dictionary(plist_new_dict());
        for (size_t i = 0; i < keyList.size(); ++i) {
            auto key = decode(keyList[i], depth + 1);
            if (!key) {
                return key;
            }
            if (!*key || plist_get_node_type(key->get()) != PLIST_STRING) {
                return refuse(tr("A dictionary has a key that is not text."));
            }
            auto value = decode(valueList[i], depth + 1);
            if (!value) {
                return value;
            }
            if (*value) {
                plist_dict_set_item(dictionary.get(), plistString(key->get()).toUtf8().constData(),
                                    value->release());
            }
        }
        return dictionary;
    }

    Result<Plist> decodeArray(plist_t object, int depth)
    {
        plist_t values = member(object, "NS.objects", PLIST_ARRAY);
        if (!values) {
            return refuse(tr("A list has no members."));
        }
        Plist array(plist_new_array());
        for (plist_t member : arrayItems(values)) {
            auto value = decode(member, depth + 1);
            if (!value) {
                return value;
            }
            if (*value) {
                plist_array_append_item(array.get(), value->release());
            }
        }
        return array;
    }

    Result<Plist> decodeString(plist_t object)
    {
        if (plist_t text = member(object, "NS.string", PLIST_STRING)) {
            return Plist(plist_copy(text));
        }
        if (plist_t bytes = member(object, "NS.bytes", PLIST_DATA)) {
            uint64_t length = 0;
            const char* data = plist_get_data_ptr(bytes, &length);
            const QByteArray text = QString::fromUtf8(data, qsizetype(length)).toUtf8();
            return Plist(plist_new_string(text.constData()));
        }
        return refuse(tr("A text object holds no text."));
    }

    Result<Plist> decodeDate(plist_t object)
    {
        plist_t time = plist_dict_get_item(object, "NS.time");
        const auto seconds = time ? valueFromPlist(time) : std::nullopt;
        if (!seconds || !seconds->isNumber()) {
            return refuse(tr("A date holds no time."));
        }
        // To the millisecond, as the store keeps dates; the same rounding on every reading keeps
        // a date stable through any number of round trips.
        const QDateTime date = dateFromAppleTime(seconds->toDouble());
        plist_t node = date.isValid() ? plistFromValue(Value(date)) : nullptr;
        if (!node) {
            return refuse(tr("A date lies too far from today."));
        }
        return Plist(node);
    }

    Result<Plist> decodeDecimal(plist_t object)
    {
        // Out-of-range numbers become -1000, which every check below refuses.
        const auto integer = [&](const char* key) {
            plist_t node = plist_dict_get_item(object, key);
            const auto v = node ? valueFromPlist(node) : std::nullopt;
            const double d = v && v->isNumber() ? v->toDouble() : 0.0;
            return d > -1000.0 && d < 1000.0 ? int(d) : -1000;
        };
        const int length = integer("NS.length");
        const int exponent = integer("NS.exponent");
        const bool negative = integer("NS.negative") != 0;
        const bool littleEndian = integer("NS.mantissa.bo") == 1;
        plist_t mantissa = member(object, "NS.mantissa", PLIST_DATA);
        uint64_t size = 0;
        const auto* bytes =
            mantissa ? reinterpret_cast<const uint8_t*>(plist_get_data_ptr(mantissa, &size))
                     : nullptr;
        if (length < 0 || length > 8 || exponent < -128 || exponent > 127 || !bytes ||
            size < uint64_t(2 * length)) {
            return refuse(tr("A decimal number is malformed."));
        }
        if (length == 0) {
            // A decimal without digits is zero, or "not a number" when negative.
            return Plist(plist_new_real(negative ? std::nan("") : 0.0));
        }
        std::array<uint16_t, 8> words{};
        for (int i = 0; i < length; ++i) {
            const uint8_t a = bytes[2 * i];
            const uint8_t b = bytes[2 * i + 1];
            words[size_t(i)] = littleEndian ? uint16_t(a | (b << 8)) : uint16_t((a << 8) | b);
        }
        const QString text = (negative ? QStringLiteral("-") : QString()) +
                             mantissaDigits(words, length) + u'e' + QString::number(exponent);
        return Plist(plist_new_real(text.toDouble()));
    }

    std::vector<plist_t> objects_;
    uint32_t count_ = 0;
    std::vector<bool> active_;
    uint64_t budget_ = 0;
};

}  // namespace

Result<QByteArray> keyedArchive(plist_t root)
{
    Archiver archiver;
    auto rootUid = archiver.encode(root, 0);
    if (!rootUid) {
        return std::unexpected(rootUid.error());
    }
    Plist archive = archiver.finish(*rootUid);
    return serializePlist(archive.get(), PlistFormat::Binary);
}

Result<Plist> keyedUnarchive(const QByteArray& bytes)
{
    auto parsed = parsePlist(bytes);
    if (!parsed) {
        return parsed;
    }
    return Unarchiver().run(parsed->get());
}

}  // namespace tamo
