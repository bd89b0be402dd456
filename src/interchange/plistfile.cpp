#include "interchange/plistfile.h"

#include <QFile>
#include <QFileInfo>
#include <QTimeZone>
#include <cmath>
#include <limits>

namespace tamo {

namespace {

// Milliseconds from 1970 to 2001-01-01 00:00 UTC.
constexpr qint64 kReferenceDateMs = 978307200000LL;

}  // namespace

Error interchangeError(int code, QString message, QString reason)
{
    return Error{QString::fromLatin1(kInterchangeDomain), code, std::move(message),
                 std::move(reason)};
}

Result<QByteArray> readWholeFile(const QString& path, qint64 limit)
{
    const QFileInfo info(path);
    if (!info.exists() || info.isDir()) {
        return std::unexpected(interchangeError(
            kFileUnreadable, QStringLiteral("The file “%1” could not be found.").arg(path)));
    }
    if (info.size() > limit) {
        return std::unexpected(
            interchangeError(kFileTooLarge,
                             QStringLiteral("The file “%1” is too large to be a Tamo file (%2 MB).")
                                 .arg(info.fileName())
                                 .arg(info.size() >> 20),
                             QStringLiteral("Nothing was read from it.")));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::unexpected(interchangeError(
            kFileUnreadable, QStringLiteral("The file “%1” could not be read.").arg(path),
            file.errorString()));
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
        return std::unexpected(
            interchangeError(kNoPropertyListForm,
                             QStringLiteral("The data could not be written as a property list.")));
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
        return std::unexpected(interchangeError(
            kNotAPropertyList, QStringLiteral("The file is empty or not a property list.")));
    }
    plist_t root = nullptr;
    const auto length = uint32_t(bytes.size());
    if (plist_is_binary(bytes.constData(), length)) {
        plist_from_bin(bytes.constData(), length, &root);
    } else {
        plist_from_xml(bytes.constData(), length, &root);
    }
    if (!root) {
        return std::unexpected(
            interchangeError(kNotAPropertyList,
                             QStringLiteral("The file is not a property list, or it is damaged.")));
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
        e.message =
            QStringLiteral("The file “%1” could not be read.").arg(QFileInfo(path).fileName());
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
        return QStringLiteral("a yes/no value");
    case PLIST_UINT:
    case PLIST_REAL:
        return QStringLiteral("a number");
    case PLIST_STRING:
        return QStringLiteral("text");
    case PLIST_ARRAY:
        return QStringLiteral("a list");
    case PLIST_DICT:
        return QStringLiteral("a record");
    case PLIST_DATE:
        return QStringLiteral("a date");
    case PLIST_DATA:
        return QStringLiteral("binary data");
    default:
        return QStringLiteral("an object reference");
    }
}

}  // namespace tamo
