#include "interchange/plistfile.h"
#include "platform/translations.h"

#include <QFile>
#include <QFileInfo>
#include <QTimeZone>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>

namespace tamo {

namespace {

// Milliseconds from 1970 to 2001-01-01 00:00 UTC.
constexpr qint64 kReferenceDateMs = 978307200000LL;

// What the tags of an XML property list say before it is built: how deeply its arrays and
// dictionaries nest, and the first date whose text is no date (libplist would read such a text
// as 1970 without a word). Comments, declarations and CDATA sections hold no tags.
struct XmlShape {
    int depth = 0;
    QString badDate;  // the text
    QString key;      // the key it stands under
    int record = 0;   // the record of a list it belongs to (1 for the first), 0 outside one
};

XmlShape scanXml(const QByteArray& bytes)
{
    const char* p = bytes.constData();
    const char* end = p + bytes.size();
    const auto startsWith = [&](const char* at, std::string_view text) {
        return std::string_view(at, size_t(end - at)).starts_with(text);
    };
    const auto skipPast = [&](const char* from, std::string_view marker) {
        const char* found = std::search(from, end, marker.begin(), marker.end());
        return found == end ? end : found + marker.size();
    };
    const auto isName = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
    XmlShape shape;
    int depth = 0;
    bool rootIsList = false;
    int record = 0;
    QString key;
    while ((p = std::find(p, end, '<')) != end) {
        const char* q = p + 1;
        if (q < end && *q == '!') {
            p = skipPast(q, startsWith(q, "!--") ? "-->" : startsWith(q, "![CDATA[") ? "]]>" : ">");
            continue;
        }
        const bool closing = q < end && *q == '/';
        q += closing ? 1 : 0;
        const char* nameEnd = q;
        while (nameEnd < end && isName(*nameEnd)) {
            ++nameEnd;
        }
        const std::string_view name(q, size_t(nameEnd - q));
        const char* tagEnd = std::find(nameEnd, end, '>');
        const bool empty = tagEnd != end && tagEnd > nameEnd && tagEnd[-1] == '/';
        const char* content = tagEnd == end ? end : tagEnd + 1;
        const auto text = [&] {
            return QString::fromUtf8(content, std::find(content, end, '<') - content).trimmed();
        };
        if (name == "dict" || name == "array") {
            if (closing) {
                --depth;
            } else if (!empty) {
                if (depth == 0) {
                    rootIsList = name == "array";
                } else if (depth == 1 && rootIsList) {
                    ++record;
                }
                shape.depth = std::max(shape.depth, ++depth);
            }
        } else if (!closing && name == "key") {
            key = text();
        } else if (!closing && name == "date" && !empty && shape.badDate.isNull() &&
                   !QDateTime::fromString(text(), Qt::ISODateWithMs).isValid()) {
            shape.badDate = text();
            shape.key = key;
            shape.record = rootIsList ? record : 0;
        }
        p = tagEnd;
    }
    return shape;
}

// The object table of a binary property list, read as far as nesting needs: each array, set or
// dictionary with the objects it refers to. The longest chain of references is the depth; a
// chain that comes back to itself gives -1. Malformed tables give 0 and are left to the parser.
int binaryNestingDepth(const QByteArray& bytes)
{
    const auto* data = reinterpret_cast<const uint8_t*>(bytes.constData());
    const auto size = uint64_t(bytes.size());
    if (size < 40) {
        return 0;
    }
    const auto number = [&](uint64_t at, int width, bool* ok) {
        uint64_t value = 0;
        if (width < 1 || width > 8 || at + uint64_t(width) > size) {
            *ok = false;
            return value;
        }
        for (int i = 0; i < width; ++i) {
            value = (value << 8) | data[at + uint64_t(i)];
        }
        return value;
    };
    bool ok = true;
    const uint64_t trailer = size - 32;
    const int offsetWidth = data[trailer + 6];
    const int refWidth = data[trailer + 7];
    const uint64_t count = number(trailer + 8, 8, &ok);
    const uint64_t top = number(trailer + 16, 8, &ok);
    const uint64_t table = number(trailer + 24, 8, &ok);
    if (!ok || count == 0 || top >= count || count > size || table >= size) {
        return 0;
    }
    // The references of object `index` (empty for anything but a container).
    const auto references = [&](uint64_t index, std::vector<uint64_t>* refs) {
        refs->clear();
        bool fine = true;
        const uint64_t at = number(table + index * uint64_t(offsetWidth), offsetWidth, &fine);
        if (!fine || at >= size) {
            return;
        }
        const uint8_t marker = data[at];
        const int kind = marker >> 4;
        if (kind != 0xA && kind != 0xC && kind != 0xD) {
            return;
        }
        uint64_t n = marker & 0x0F;
        uint64_t start = at + 1;
        if (n == 0x0F) {
            if (start >= size || (data[start] >> 4) != 0x1) {
                return;
            }
            const int width = 1 << (data[start] & 0x0F);
            n = number(start + 1, width, &fine);
            start += 1 + uint64_t(width);
        }
        const uint64_t entries = kind == 0xD ? 2 * n : n;
        if (!fine || entries > size || start + entries * uint64_t(refWidth) > size) {
            return;
        }
        for (uint64_t i = 0; i < entries; ++i) {
            const uint64_t ref = number(start + i * uint64_t(refWidth), refWidth, &fine);
            if (fine && ref < count) {
                refs->push_back(ref);
            }
        }
    };
    // Depth-first without recursion; each object is finished once (0: new, 1: open, 2: done).
    std::vector<uint8_t> state(count, 0);
    std::vector<int> depth(count, 1);
    std::vector<std::pair<uint64_t, std::vector<uint64_t>>> stack;
    std::vector<uint64_t> refs;
    references(top, &refs);
    stack.emplace_back(top, refs);
    state[top] = 1;
    while (!stack.empty()) {
        auto& [object, pending] = stack.back();
        if (pending.empty()) {
            state[object] = 2;
            const int finished = depth[object];
            stack.pop_back();
            if (!stack.empty()) {
                int& parent = depth[stack.back().first];
                parent = std::max(parent, finished + 1);
            }
            continue;
        }
        const uint64_t next = pending.back();
        pending.pop_back();
        if (state[next] == 1) {
            return -1;
        }
        if (state[next] == 2) {
            depth[object] = std::max(depth[object], depth[next] + 1);
            continue;
        }
        state[next] = 1;
        references(next, &refs);
        if (int(stack.size()) > kMaxPlistDepth) {
            return int(stack.size());
        }
        stack.emplace_back(next, refs);
    }
    return depth[top];
}

}  // namespace

std::vector<plist_t> arrayItems(plist_t array)
{
    std::vector<plist_t> items;
    if (plist_get_node_type(array) != PLIST_ARRAY) {
        return items;
    }
    items.reserve(plist_array_get_size(array));
    plist_array_iter it = nullptr;
    plist_array_new_iter(array, &it);
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(array, it, &item);
        if (!item) {
            break;
        }
        items.push_back(item);
    }
    std::free(it);
    return items;
}

Error interchangeError(int code, QString message, QString reason)
{
    return Error{QString::fromLatin1(kInterchangeDomain), code, std::move(message),
                 std::move(reason)};
}

Result<QByteArray> readWholeFile(const QString& path, qint64 limit)
{
    const QFileInfo info(path);
    if (!info.exists() || info.isDir()) {
        return std::unexpected(
            interchangeError(kFileUnreadable, tr("The file “%1” could not be found.").arg(path)));
    }
    if (info.size() > limit) {
        return std::unexpected(
            interchangeError(kFileTooLarge,
                             tr("The file “%1” is too large to be a Tamo file (%2 MB).")
                                 .arg(info.fileName())
                                 .arg(info.size() >> 20),
                             tr("Nothing was read from it.")));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::unexpected(interchangeError(
            kFileUnreadable, tr("The file “%1” could not be read.").arg(path), file.errorString()));
    }
    // A file that grew after the size check is cut off and then fails to parse.
    return file.read(limit + 1);
}

Result<QByteArray> serializePlist(plist_t root, PlistFormat format)
{
    char* data = nullptr;
    uint32_t length = 0;
    if (format == PlistFormat::Xml) {
        plist_to_xml(root, &data, &length);
    } else {
        plist_to_bin(root, &data, &length);
    }
    if (!data) {
        return std::unexpected(interchangeError(
            kNoPropertyListForm, tr("The data could not be written as a property list.")));
    }
    QByteArray bytes(data, qsizetype(length));
    if (format == PlistFormat::Xml) {
        plist_to_xml_free(data);
    } else {
        plist_to_bin_free(data);
    }
    return bytes;
}

Result<Plist> parsePlist(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > kMaxInterchangeFileSize) {
        return std::unexpected(
            interchangeError(kNotAPropertyList, tr("The file is empty or not a property list.")));
    }
    // libplist's readers recurse once per level: a list nested far enough ends the process.
    const bool binary = plist_is_binary(bytes.constData(), uint32_t(bytes.size()));
    XmlShape shape;
    if (binary) {
        shape.depth = binaryNestingDepth(bytes);
    } else {
        shape = scanXml(bytes);
    }
    if (shape.depth < 0 || shape.depth > kMaxPlistDepth) {
        return std::unexpected(interchangeError(
            kNotAPropertyList, shape.depth < 0
                                   ? tr("The file refers to itself in a loop.")
                                   : tr("The file nests deeper than any Tamo file does.")));
    }
    if (!shape.badDate.isNull()) {
        QString message =
            tr("“%1” holds “%2”, which is not a date.").arg(shape.key, shape.badDate.left(60));
        if (shape.record > 0) {
            message = tr("Record %1: %2").arg(shape.record).arg(message);
        }
        return std::unexpected(interchangeError(kNotAPropertyList, message));
    }
    plist_t root = nullptr;
    const auto length = uint32_t(bytes.size());
    if (plist_is_binary(bytes.constData(), length)) {
        plist_from_bin(bytes.constData(), length, &root);
    } else {
        plist_from_xml(bytes.constData(), length, &root);
    }
    if (!root) {
        return std::unexpected(interchangeError(
            kNotAPropertyList, tr("The file is not a property list, or it is damaged.")));
    }
    return Plist(root);
}

Result<Plist> readPlistFile(const QString& path)
{
    auto bytes = readWholeFile(path);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    auto parsed = parsePlist(*bytes);
    if (!parsed) {
        Error e = parsed.error();
        e.message = tr("The file “%1” could not be read.").arg(QFileInfo(path).fileName());
        e.reason = parsed.error().message;
        return std::unexpected(e);
    }
    return parsed;
}

double appleTimeFrom(const QDateTime& date)
{
    return double(date.toMSecsSinceEpoch() - kReferenceDateMs) / 1000.0;
}

QDateTime dateFromAppleTime(double seconds)
{
    // QDateTime holds some 292 million years either way; stay well inside.
    if (!std::isfinite(seconds) || std::abs(seconds) > 1e14) {
        return {};
    }
    const auto ms = qint64(std::llround(seconds * 1000.0)) + kReferenceDateMs;
    return QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc());
}

plist_t plistFromValue(const Value& value)
{
    switch (value.type()) {
    case AttributeType::String:
        return plist_new_string(value.toString().toUtf8().constData());
    case AttributeType::Integer:
        return plist_new_uint(uint64_t(qint64(value.toInt())));
    case AttributeType::Boolean:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case AttributeType::Decimal:
        return plist_new_real(value.toDouble());
    case AttributeType::Date: {
        const qint64 ms = value.toDate().toMSecsSinceEpoch() - kReferenceDateMs;
        const qint64 seconds = ms >= 0 ? ms / 1000 : -((-ms + 999) / 1000);
        if (seconds < std::numeric_limits<int32_t>::min() ||
            seconds > std::numeric_limits<int32_t>::max()) {
            return nullptr;
        }
        return plist_new_date(int32_t(seconds), int32_t((ms - seconds * 1000) * 1000));
    }
    }
    return nullptr;
}

std::optional<Value> valueFromPlist(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return Value(plistString(node));
    case PLIST_UINT: {
        uint64_t raw = 0;
        plist_get_uint_val(node, &raw);
        const auto number = qint64(raw);
        if (number >= std::numeric_limits<qint32>::min() &&
            number <= std::numeric_limits<qint32>::max()) {
            return Value(int(number));
        }
        return Value(double(number));
    }
    case PLIST_REAL: {
        double d = 0;
        plist_get_real_val(node, &d);
        return Value(d);
    }
    case PLIST_BOOLEAN: {
        uint8_t b = 0;
        plist_get_bool_val(node, &b);
        return Value(b != 0);
    }
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t micro = 0;
        plist_get_date_val(node, &seconds, &micro);
        const qint64 ms = qint64(seconds) * 1000 + micro / 1000 + kReferenceDateMs;
        return Value(QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc()));
    }
    default:
        return std::nullopt;
    }
}

QString plistString(plist_t node)
{
    uint64_t length = 0;
    const char* text =
        plist_get_node_type(node) == PLIST_STRING ? plist_get_string_ptr(node, &length) : nullptr;
    return text ? QString::fromUtf8(text, qsizetype(length)) : QString();
}

QString plistKindName(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return tr("a yes/no value");
    case PLIST_UINT:
    case PLIST_REAL:
        return tr("a number");
    case PLIST_STRING:
        return tr("text");
    case PLIST_ARRAY:
        return tr("a list");
    case PLIST_DICT:
        return tr("a record");
    case PLIST_DATE:
        return tr("a date");
    case PLIST_DATA:
        return tr("binary data");
    default:
        return tr("an object reference");
    }
}

}  // namespace tamo
