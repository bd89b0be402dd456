// Files from outside that are built to hurt: nesting that would overflow the stack, archives that
// would take hours, records that take another's identity, values that mean nothing.

#include <QtEndian>

#include "interchange/keyedarchive.h"
#include "interchangefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// Writes binary property lists by hand: libplist's own writer recurses as deeply as the list
// nests, and takes its time over lists of many objects.
class BinaryListWriter {
public:
    // Each object's bytes; references are object numbers, written in four bytes.
    quint32 add(QByteArray object)
    {
        objects_.push_back(std::move(object));
        return quint32(objects_.size() - 1);
    }
    void replace(quint32 index, QByteArray object) { objects_[index] = std::move(object); }
    static QByteArray number(quint32 value)
    {
        const quint32 big = qToBigEndian(value);
        return QByteArray(reinterpret_cast<const char*>(&big), 4);
    }
    static QByteArray text(const QByteArray& ascii)
    {
        return ascii.size() < 15 ? char(0x50 | ascii.size()) + ascii
                                 : "\x5F\x12" + number(quint32(ascii.size())) + ascii;
    }
    static QByteArray uid(quint32 value) { return "\x83" + number(value); }
    static QByteArray integer(quint32 value) { return "\x12" + number(value); }
    static QByteArray array(const std::vector<quint32>& members)
    {
        QByteArray bytes = "\xAF\x12" + number(quint32(members.size()));
        for (quint32 m : members) {
            bytes += number(m);
        }
        return bytes;
    }
    static QByteArray dictionary(const std::vector<std::pair<quint32, quint32>>& entries)
    {
        QByteArray keys, values;
        for (const auto& [k, v] : entries) {
            keys += number(k);
            values += number(v);
        }
        return "\xDF\x12" + number(quint32(entries.size())) + keys + values;
    }

    QByteArray finish(quint32 top) const
    {
        QByteArray bytes("bplist00");
        QByteArray offsets;
        for (const QByteArray& object : objects_) {
            offsets += number(quint32(bytes.size()));
            bytes += object;
        }
        const auto table = quint64(bytes.size());
        bytes += offsets + QByteArray(6, '\0') + char(4) + char(4);
        for (const quint64 value : {quint64(objects_.size()), quint64(top), table}) {
            const quint64 big = qToBigEndian(value);
            bytes.append(reinterpret_cast<const char*>(&big), 8);
        }
        return bytes;
    }

private:
    std::vector<QByteArray> objects_;
};

// Arrays nested `levels` deep.
QByteArray deepBinaryList(quint32 levels)
{
    BinaryListWriter list;
    for (quint32 i = 0; i < levels; ++i) {
        list.add(i + 1 == levels ? BinaryListWriter::array({}) : BinaryListWriter::array({i + 1}));
    }
    return list.finish(0);
}

// A keyed archive of a list of `count` texts, as Apple's archiver lays it out.
QByteArray archivedTexts(quint32 count)
{
    using W = BinaryListWriter;
    W list;
    const auto key = [&](const char* name) { return list.add(W::text(name)); };
    // The archive's objects: "$null", the list, its texts, the list's class.
    std::vector<quint32> objects{list.add(W::text("$null"))};
    const quint32 listObject = list.add({});  // filled in below
    objects.push_back(listObject);
    std::vector<quint32> members;
    for (quint32 i = 0; i < count; ++i) {
        objects.push_back(list.add(W::text("s" + QByteArray::number(i))));
        members.push_back(list.add(W::uid(i + 2)));
    }
    const quint32 classObject = list.add(W::dictionary(
        {{key("$classname"), list.add(W::text("NSArray"))},
         {key("$classes"),
          list.add(W::array({list.add(W::text("NSArray")), list.add(W::text("NSObject"))}))}}));
    objects.push_back(classObject);
    const QByteArray listBytes = W::dictionary({{key("NS.objects"), list.add(W::array(members))},
                                                {key("$class"), list.add(W::uid(count + 2))}});
    const quint32 top = list.add(
        W::dictionary({{key("$archiver"), list.add(W::text("NSKeyedArchiver"))},
                       {key("$objects"), list.add(W::array(objects))},
                       {key("$top"), list.add(W::dictionary({{key("root"), list.add(W::uid(1))}}))},
                       {key("$version"), list.add(W::integer(100000))}}));
    list.replace(listObject, listBytes);
    return list.finish(top);
}

class ReadersTest : public InterchangeTest {
protected:
    ActionResult restore(const QByteArray& records)
    {
        const QString path = file(u"restore.tamoinvoices"_qs);
        EXPECT_TRUE(writeFileAtomically(path,
                                        "<?xml version=\"1.0\"?><plist version=\"1.0\">"
                                        "<array>" +
                                            records + "</array></plist>"));
        user.queueFile(path);
        return ops.restoreTamoData();
    }
};

TEST_F(ReadersTest, NestingBeyondAnyTamoFileIsRefusedBeforeParsing)
{
    const QByteArray xml = "<?xml version=\"1.0\"?><plist version=\"1.0\">" +
                           QByteArray("<array>").repeated(200'000) +
                           QByteArray("</array>").repeated(200'000) + "</plist>";
    for (const QByteArray& bytes : {xml, deepBinaryList(200'000)}) {
        const auto parsed = parsePlist(bytes);
        ASSERT_FALSE(parsed.has_value());
        EXPECT_EQ(parsed.error().message, u"The file nests deeper than any Tamo file does.");
    }
    // As deep as Tamo's own files go is read.
    EXPECT_TRUE(parsePlist(deepBinaryList(kMaxPlistDepth)).has_value());
    EXPECT_FALSE(keyedUnarchive(deepBinaryList(300'000)).has_value());
}

TEST_F(ReadersTest, ALargeArchiveIsReadInOnePassOverItsObjects)
{
    // Reading an object by its number once walked the object list from its start: hours for an
    // archive of this size, a second now.
    auto read = keyedUnarchive(archivedTexts(300'000));
    ASSERT_TRUE(read.has_value()) << read.error().text().toStdString();
    const std::vector<plist_t> texts = arrayItems(read->get());
    ASSERT_EQ(texts.size(), 300'000u);
    EXPECT_EQ(plistString(texts.front()), u"s0");
    EXPECT_EQ(plistString(texts.back()), u"s299999");
}

TEST_F(ReadersTest, RestoredRecordsWithATakenIdentityGetNewOnes)
{
    sampleInvoice(store(), u"KEEP"_qs, u"K-1"_qs);
    ASSERT_TRUE(session.saveContext());
    // The list shows nothing, so the restore deletes nothing and K-1 stays.
    session.documents().setFilter(1, [](const Record&) { return false; });
    const QByteArray record =
        "<dict><key>uniqueID</key><string>%1</string>"
        "<key>number</key><string>%2</string></dict>";
    ASSERT_EQ(restore(QByteArray(record).replace("%1", "DUP").replace("%2", "R-1") +
                      QByteArray(record).replace("%1", "DUP").replace("%2", "R-2") +
                      QByteArray(record).replace("%1", "KEEP").replace("%2", "R-3")),
              ActionResult::Done);
    QSet<QString> ids;
    for (const Record* r : store().fetch("Invoice")) {
        ids.insert(r->uniqueID());
    }
    EXPECT_EQ(ids.size(), 4);
    EXPECT_EQ(store().findByUniqueID("Invoice", u"KEEP"_qs)->string("number"), u"K-1");
    EXPECT_EQ(store().findByUniqueID("Invoice", u"DUP"_qs)->string("number"), u"R-1");
    ASSERT_EQ(user.alerts().size(), 2);  // the warning, then what was done
    EXPECT_EQ(user.alerts()[1].title, u"Hint!");
    EXPECT_TRUE(user.alerts()[1].text.startsWith(u"2 record(s) carried an identity"));
}

TEST_F(ReadersTest, AStatusOrDateThatMeansNothingIsRefusedWithTheRecordNamed)
{
    const struct {
        QByteArray records;
        const char16_t* reason;
    } cases[] = {
        {"<dict><key>number</key><string>R-1</string></dict>"
         "<dict><key>number</key><string>R-2</string><key>status</key><integer>7</integer></dict>",
         u"Record 2 (R-2): “status” holds 7, which is no status (0 to 4)"},
        {"<dict><key>status</key><integer>-1</integer></dict>",
         u"Record 1: “status” holds -1, which is no status (0 to 4)"},
        {"<dict><key>number</key><string>R-1</string></dict>"
         "<dict><key>number</key><string>R-2</string></dict>"
         "<dict><key>due</key><date>next Tuesday</date></dict>",
         u"Record 3: “due” holds “next Tuesday”, which is not a date."},
        {"<dict><key>date</key><date>2026-02-30T09:00:00Z</date></dict>",
         u"Record 1: “date” holds “2026-02-30T09:00:00Z”, which is not a date."},
        {"<dict><key>dAtEaTtr:date</key><string>yesterday</string></dict>",
         u"Record 1: “dAtEaTtr:date” holds text where a date belongs"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(QString::fromUtf16(c.reason).toStdString());
        EXPECT_EQ(restore(c.records), ActionResult::Failed);
        EXPECT_TRUE(user.errors().last().reason.startsWith(QString::fromUtf16(c.reason)))
            << user.errors().last().text().toStdString();
    }
}

}  // namespace
