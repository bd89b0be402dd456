#include "platform/contacts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStringDecoder>

namespace tamo {

namespace {

// One content line: GROUP.NAME;PARAM=VALUE,...:VALUE
struct Property {
    QString name;  // upper case, group removed
    QString group;
    QList<std::pair<QString, QString>> parameters;  // names upper case
    QString value;

    QStringList parameterValues(const QString& wanted) const
    {
        QStringList values;
        for (const auto& [n, v] : parameters) {
            if (n == wanted) {
                for (const QString& part : v.split(u',', Qt::SkipEmptyParts)) {
                    values << part.trimmed().toLower();
                }
            }
        }
        return values;
    }
    // Types given as TYPE=work or, in old cards, as bare parameters (EMAIL;WORK;INTERNET).
    QStringList types() const
    {
        QStringList t = parameterValues(u"TYPE"_qs);
        for (const auto& [n, v] : parameters) {
            if (v.isNull()) {
                t << n.toLower();
            }
        }
        return t;
    }
};

// Lines that begin with a blank continue the one before; quoted-printable values end a line
// with "=" to continue it.
QStringList unfold(const QString& text)
{
    QStringList lines;
    for (QString line : text.split(u'\n')) {
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
        if (!lines.isEmpty() && (line.startsWith(u' ') || line.startsWith(u'\t'))) {
            lines.last() += line.mid(1);
        } else if (!lines.isEmpty() && lines.last().endsWith(u'=') &&
                   lines.last().contains(u"QUOTED-PRINTABLE"_qs, Qt::CaseInsensitive)) {
            lines.last().chop(1);
            lines.last() += line;
        } else {
            lines << line;
        }
    }
    return lines;
}

QString decodeQuotedPrintable(const QString& value, const QString& charset)
{
    QByteArray bytes;
    const QByteArray raw = value.toLatin1();
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] == '=' && i + 2 < raw.size()) {
            bool ok = false;
            const int byte = raw.mid(i + 1, 2).toInt(&ok, 16);
            if (ok) {
                bytes.append(char(byte));
                i += 2;
                continue;
            }
        }
        bytes.append(raw[i]);
    }
    if (charset.isEmpty() || charset.compare(u"UTF-8"_qs, Qt::CaseInsensitive) == 0) {
        return QString::fromUtf8(bytes);
    }
    QStringDecoder decoder(charset.toLatin1().constData());
    return decoder.isValid() ? QString(decoder(bytes)) : QString::fromLatin1(bytes);
}

std::optional<Property> parseLine(const QString& line)
{
    // The value starts after the first colon that is not inside a quoted parameter value.
    bool quoted = false;
    qsizetype colon = -1;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'"') {
            quoted = !quoted;
        } else if (line[i] == u':' && !quoted) {
            colon = i;
            break;
        }
    }
    if (colon <= 0) {
        return std::nullopt;
    }
    Property p;
    p.value = line.mid(colon + 1);
    QStringList head;
    QString current;
    quoted = false;
    for (QChar c : line.left(colon)) {
        if (c == u'"') {
            quoted = !quoted;
        } else if (c == u';' && !quoted) {
            head << current;
            current.clear();
        } else {
            current += c;
        }
    }
    head << current;
    QString name = head.takeFirst().trimmed();
    if (const qsizetype dot = name.indexOf(u'.'); dot >= 0) {
        p.group = name.left(dot).toLower();
        name = name.mid(dot + 1);
    }
    p.name = name.toUpper();
    for (const QString& parameter : head) {
        const qsizetype eq = parameter.indexOf(u'=');
        if (eq < 0) {
            p.parameters.append({parameter.trimmed().toUpper(), QString()});
        } else {
            QString value = parameter.mid(eq + 1);
            value.remove(u'"');
            p.parameters.append({parameter.left(eq).trimmed().toUpper(), value});
        }
    }
    const QStringList encoding = p.parameterValues(u"ENCODING"_qs);
    if (encoding.contains(u"quoted-printable"_qs)) {
        const QStringList charset = p.parameterValues(u"CHARSET"_qs);
        p.value = decodeQuotedPrintable(p.value, charset.value(0));
    }
    return p;
}

// Splits a structured value at unescaped separators and resolves the escapes.
QStringList components(const QString& value, QChar separator = u';')
{
    QStringList parts;
    QString current;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c == u'\\' && i + 1 < value.size()) {
            const QChar next = value[++i];
            current += (next == u'n' || next == u'N') ? QChar(u'\n') : next;
        } else if (c == separator) {
            parts << current;
            current.clear();
        } else {
            current += c;
        }
    }
    parts << current;
    return parts;
}

QString text(const QString& value)
{
    return components(value, QChar()).join(QString());
}

QString countryCodeFor(const QString& country)
{
    const QString trimmed = country.trimmed();
    if (trimmed.size() == 2 && trimmed.at(0).isLetter() && trimmed.at(1).isLetter()) {
        return trimmed.toUpper();
    }
    for (int t = 1; t <= int(QLocale::LastTerritory); ++t) {
        const auto territory = QLocale::Territory(t);
        if (QLocale::territoryToString(territory).compare(trimmed, Qt::CaseInsensitive) == 0) {
            return QLocale::territoryToCode(territory);
        }
    }
    return {};
}

std::optional<Contact> contactFrom(const QList<Property>& properties)
{
    Contact c;
    bool named = false;
    QHash<QString, QString> groupCountryCodes;  // item1.X-ABADR:de
    for (const Property& p : properties) {
        if (p.name == u"X-ABADR" && !p.group.isEmpty()) {
            groupCountryCodes.insert(p.group, p.value.trimmed().toUpper());
        }
    }
    for (const Property& p : properties) {
        if (p.name == u"N") {
            const QStringList n = components(p.value);
            c.lastName = n.value(0).trimmed();
            c.firstName = n.value(1).trimmed();
            named = named || !c.lastName.isEmpty() || !c.firstName.isEmpty();
        } else if (p.name == u"FN") {
            c.formattedName = text(p.value).trimmed();
            named = named || !c.formattedName.isEmpty();
        } else if (p.name == u"ORG") {
            c.organization = components(p.value).value(0).trimmed();
        } else if (p.name == u"UID") {
            c.uid = text(p.value).trimmed();
        } else if (p.name == u"EMAIL") {
            const QString address = text(p.value).trimmed();
            if (!address.isEmpty()) {
                c.emails.append({address, p.types()});
            }
        } else if (p.name == u"ADR") {
            const QStringList a = components(p.value);
            PostalAddress address;
            // post office box; extended address; street; locality; region; postal code; country
            address.street = QStringList{a.value(1), a.value(2)}
                                 .filter(QRegularExpression(u"\\S"_qs))
                                 .join(u'\n')
                                 .trimmed();
            address.city = a.value(3).trimmed();
            address.state = a.value(4).trimmed();
            address.zip = a.value(5).trimmed();
            address.country = a.value(6).trimmed();
            address.countryCode = groupCountryCodes.value(p.group);
            if (address.countryCode.isEmpty()) {
                address.countryCode = countryCodeFor(address.country);
            }
            address.preferred =
                p.types().contains(u"pref"_qs) || !p.parameterValues(u"PREF"_qs).isEmpty();
            c.addresses.append(address);
        }
    }
    if (!named && c.organization.isEmpty()) {
        return std::nullopt;
    }
    return c;
}

}  // namespace

QString Contact::displayName() const
{
    if (!formattedName.isEmpty()) {
        return formattedName;
    }
    const QString name = QStringList{firstName, lastName}.join(u' ').trimmed();
    return name.isEmpty() ? organization : name;
}

PostalAddress Contact::primaryAddress() const
{
    for (const PostalAddress& a : addresses) {
        if (a.preferred) {
            return a;
        }
    }
    return addresses.value(0);
}

QString Contact::preferredEmail() const
{
    if (emails.size() >= 2) {
        for (const EmailAddress& e : emails) {
            if (e.labels.contains(u"work"_qs)) {
                return e.address;
            }
        }
    }
    return emails.isEmpty() ? QString() : emails.first().address;
}

ContactBook ContactBook::parse(const QByteArray& vcardText)
{
    ContactBook book;
    QList<Property> card;
    bool inCard = false;
    bool cardBroken = false;
    for (const QString& line : unfold(QString::fromUtf8(vcardText))) {
        if (line.trimmed().isEmpty()) {
            continue;
        }
        const auto property = parseLine(line);
        const QString name = property ? property->name : QString();
        if (name == u"BEGIN" &&
            property->value.trimmed().compare(u"VCARD"_qs, Qt::CaseInsensitive) == 0) {
            if (inCard) {
                ++book.brokenCards;  // a card that never ended
            }
            inCard = true;
            cardBroken = false;
            card.clear();
        } else if (name == u"END" && inCard) {
            auto contact = cardBroken ? std::nullopt : contactFrom(card);
            if (contact) {
                book.contacts.append(*contact);
            } else {
                ++book.brokenCards;
            }
            inCard = false;
        } else if (inCard) {
            if (property) {
                card.append(*property);
            } else {
                cardBroken = true;
            }
        }
    }
    if (inCard) {
        ++book.brokenCards;
    }
    return book;
}

ContactBook ContactBook::load(const QString& fileOrFolder)
{
    ContactBook book;
    QStringList files;
    const QFileInfo info(fileOrFolder);
    if (info.isDir()) {
        for (const QFileInfo& f : QDir(fileOrFolder)
                                      .entryInfoList({u"*.vcf"_qs, u"*.vcard"_qs, u"*.VCF"_qs},
                                                     QDir::Files, QDir::Name)) {
            files << f.absoluteFilePath();
        }
    } else if (!fileOrFolder.isEmpty()) {
        files << fileOrFolder;
    }
    for (const QString& path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            book.unreadableFiles << path;
            continue;
        }
        ContactBook part = parse(file.readAll());
        book.contacts += part.contacts;
        book.brokenCards += part.brokenCards;
    }
    return book;
}

}  // namespace tamo
