#include <QProcess>
#include <QStandardPaths>

#include "interchange/keyedarchive.h"
#include "interchangefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// An archive made of the given $objects, rooted at object 1.
QByteArray archiveOf(plist_t objects, uint64_t root = 1)
{
    Plist archive(plist_new_dict());
    plist_dict_set_item(archive.get(), "$archiver", plist_new_string("NSKeyedArchiver"));
    plist_dict_set_item(archive.get(), "$version", plist_new_uint(100000));
    plist_t top = plist_new_dict();
    plist_dict_set_item(top, "root", plist_new_uid(root));
    plist_dict_set_item(archive.get(), "$top", top);
    plist_dict_set_item(archive.get(), "$objects", objects);
    return *serializePlist(archive.get(), PlistFormat::Binary);
}

plist_t objects(std::initializer_list<plist_t> list)
{
    plist_t array = plist_new_array();
    plist_array_append_item(array, plist_new_string("$null"));
    for (plist_t node : list) {
        plist_array_append_item(array, node);
    }
    return array;
}

plist_t classRecord(const char* name)
{
    plist_t record = plist_new_dict();
    plist_dict_set_item(record, "$classname", plist_new_string(name));
    plist_t chain = plist_new_array();
    plist_array_append_item(chain, plist_new_string(name));
    plist_dict_set_item(record, "$classes", chain);
    return record;
}

// An NSArray object whose members are the given objects; its class record is object 2.
plist_t arrayObject(std::initializer_list<uint64_t> members, uint64_t classUid = 2)
{
    plist_t object = plist_new_dict();
    plist_t refs = plist_new_array();
    for (uint64_t uid : members) {
        plist_array_append_item(refs, plist_new_uid(uid));
    }
    plist_dict_set_item(object, "NS.objects", refs);
    plist_dict_set_item(object, "$class", plist_new_uid(classUid));
    return object;
}

TEST(KeyedArchiveTest, PythonsPlistlibReadsOurArchiveAsTheSameGraph)
{
    const QString python = QStandardPaths::findExecutable(u"python3"_qs);
    if (python.isEmpty()) {
        GTEST_SKIP() << "python3 is not installed";
    }
    TempProfile dir;
    auto context = openContext(dir.path(u"a.zqdb"_qs));
    Record* invoice = sampleInvoice(*context, u"A"_qs, u"2026-001"_qs);
    invoice->setValue("due", utc(2040, 2, 29, 23, 59, 58));
    auto list = toDictionaryList({invoice, context->insert("Invoice")});
    ASSERT_TRUE(list);
    ASSERT_TRUE(writeFileAtomically(dir.path(u"graph.invdump"_qs), *keyedArchive(list->get())));
    ASSERT_TRUE(writeFileAtomically(dir.path(u"graph.plist"_qs),
                                    *serializePlist(list->get(), PlistFormat::Xml)));

    QProcess p;
    p.start(python, {QStringLiteral(TAMO_TEST_SOURCE "/interchange/check_keyed_archive.py"),
                     dir.path(u"graph.invdump"_qs), dir.path(u"graph.plist"_qs)});
    ASSERT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString()
                               << p.readAllStandardError().toStdString();
}

TEST_F(InterchangeTest, ADocumentArchivedByAnotherWriterIsImportedWithItsDecimalsAndDates)
{
    store();
    user.queueFile(QStringLiteral(TAMO_TEST_DATA "/foreign-document.tamo"));
    ASSERT_EQ(ops.importInvoice(), ActionResult::Done)
        << user.errors().value(0).text().toStdString();

    const auto invoices = session.context()->fetch("Invoice");
    ASSERT_EQ(invoices.size(), 1u);
    const Record* invoice = invoices.front();
    EXPECT_EQ(session.documents().current(), invoice);
    EXPECT_EQ(invoice->string("number"), u"RE-2019-042");
    EXPECT_EQ(invoice->integer("kind"), 1);
    EXPECT_EQ(invoice->decimal("amount"), -119.0);
    EXPECT_EQ(invoice->date("date"), utc(2020, 1, 6, 10, 40).addMSecs(500));
    EXPECT_EQ(invoice->date("due"), utc(2020, 1, 20, 10, 40));  // from "dAtEaTtr:due"
    ASSERT_EQ(invoice->toMany("items").size(), 1u);
    const Record* line = invoice->toMany("items").front();
    EXPECT_EQ(line->string("title"), u"Beratung");
    EXPECT_EQ(line->decimal("unitCount"), 1.5);
    EXPECT_EQ(line->decimal("baseAmount"), 123.4567890123456789);
    EXPECT_TRUE(line->boolean("isTax1Applied"));
}

TEST(KeyedArchiveTest, BrokenArchivesAreRefusedWithAReason)
{
    const QByteArray good =
        archiveOf(objects({arrayObject({3}), classRecord("NSArray"), plist_new_string("x")}));
    ASSERT_TRUE(keyedUnarchive(good));

    QByteArray sharing;  // every list holds the one before twice: 2^60 members unfolded
    {
        plist_t list = objects({plist_new_string("leaf"), classRecord("NSArray")});
        for (uint64_t i = 3; i < 63; ++i) {
            const uint64_t previous = i == 3 ? 1 : i - 1;
            plist_array_append_item(list, arrayObject({previous, previous}));
        }
        sharing = archiveOf(list, 62);
    }
    const struct {
        const char* name;
        QByteArray bytes;
        const char* reason;
    } cases[] = {
        {"truncated", good.left(good.size() / 2), "not a property list"},
        {"random bytes", QByteArray(300, '\x9c'), "not a property list"},
        {"a plain list", *serializePlist(Plist(plist_new_array()).get(), PlistFormat::Binary),
         "no keyed archive"},
        {"reference out of range", archiveOf(objects({arrayObject({9}), classRecord("NSArray")})),
         "object 9 of 3"},
        {"an object that contains itself",
         archiveOf(objects({arrayObject({1}), classRecord("NSArray")})), "contains itself"},
        {"an unknown class", archiveOf(objects({arrayObject({}), classRecord("NSURL")})),
         "class “NSURL”"},
        {"shared lists unfolding without end", sharing, "unfold far beyond"},
        {"a dictionary key that is no text",
         archiveOf(objects({[] {
                                plist_t d = arrayObject({3});
                                plist_t keys = plist_new_array();
                                plist_array_append_item(keys, plist_new_uid(3));
                                plist_dict_set_item(d, "NS.keys", keys);
                                return d;
                            }(),
                            classRecord("NSDictionary"), plist_new_uint(5)})),
         "key that is not text"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto read = keyedUnarchive(c.bytes);
        ASSERT_FALSE(read);
        EXPECT_TRUE(read.error().text().contains(QString::fromUtf8(c.reason)))
            << read.error().text().toStdString();
    }
}

}  // namespace
