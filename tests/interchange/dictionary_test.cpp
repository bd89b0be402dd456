#include <QFile>

#include "interchange/keyedarchive.h"
#include "interchangefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// XML property lists keep dates to the second.
Value sampleFor(AttributeType type, size_t salt)
{
    const Value value = sampleValue(type, salt);
    return value.isDate() ? Value(value.toDate().addMSecs(-value.toDate().time().msec())) : value;
}

plist_t entry(plist_t dictionary, const char* key)
{
    return plist_dict_get_item(dictionary, key);
}

enum class Format { Xml, KeyedArchive };

// Writes the dictionary in the format and reads it back as another program would find it.
Plist throughFile(plist_t dictionary, Format format)
{
    auto bytes = format == Format::Xml ? serializePlist(dictionary, PlistFormat::Xml)
                                       : keyedArchive(dictionary);
    EXPECT_TRUE(bytes.has_value());
    auto read = format == Format::Xml ? parsePlist(*bytes) : keyedUnarchive(*bytes);
    EXPECT_TRUE(read.has_value()) << (read ? "" : read.error().text().toStdString());
    return read ? std::move(*read) : Plist();
}

class DictionaryTest : public ::testing::TestWithParam<Format> {
protected:
    TempProfile dir;
    std::unique_ptr<Context> context = openContext(dir.path(u"a.zqdb"_qs));
    std::unique_ptr<Context> other = openContext(dir.path(u"b.zqdb"_qs));
};

TEST_F(DictionaryTest, AnInvoiceHoldsItsLinesOnceAndTheLinesDoNotHoldItAgain)
{
    Record* invoice = sampleInvoice(*context, u"A"_qs, u"2026-001"_qs);
    auto dictionary = toDictionary(*invoice);
    ASSERT_TRUE(dictionary);
    EXPECT_EQ(plistString(entry(dictionary->get(), "class")), u"Invoice");
    EXPECT_EQ(entry(dictionary->get(), "subject"), nullptr);  // empty attributes leave no key
    plist_t items = entry(dictionary->get(), "items");
    ASSERT_EQ(plist_array_get_size(items), 2u);
    for (uint32_t i = 0; i < 2; ++i) {
        EXPECT_EQ(plistString(entry(plist_array_get_item(items, i), "class")), u"Item");
        EXPECT_EQ(entry(plist_array_get_item(items, i), "invoice"), nullptr);
    }

    auto empty = toDictionary(*context->insert("Invoice"));
    ASSERT_EQ(plist_get_node_type(entry(empty->get(), "items")), PLIST_ARRAY);
    EXPECT_EQ(plist_array_get_size(entry(empty->get(), "items")), 0u);
}

TEST_F(DictionaryTest, EachTopLevelRecordStartsAFreshHistory)
{
    // Lines of two invoices share a template: it is written inside both invoices.
    Record* a = sampleInvoice(*context, u"A"_qs, u"1"_qs);
    Record* b = sampleInvoice(*context, u"B"_qs, u"2"_qs);
    Record* shared = context->insert("Template");
    a->toMany("items").front()->setToOne("template", shared);
    b->toMany("items").front()->setToOne("template", shared);

    for (Record* top : {a, b}) {
        TraversalHistory history;
        auto dictionary = toDictionaryWithTraversalHistory(*top, &history);
        ASSERT_TRUE(dictionary);
        plist_t line = plist_array_get_item(entry(dictionary->get(), "items"), 0);
        plist_t templ = entry(line, "template");
        ASSERT_NE(templ, nullptr);
        // The template's other line leads to the other invoice, whose lines are all written.
        plist_t otherLine = plist_array_get_item(entry(templ, "items"), 0);
        plist_t otherInvoice = entry(otherLine, "invoice");
        ASSERT_NE(otherInvoice, nullptr);
        EXPECT_EQ(plist_array_get_size(entry(otherInvoice, "items")), 1u);
        EXPECT_EQ(history.size(), 7u);  // a caller's history keeps every record visited
    }
}

TEST_P(DictionaryTest, EveryAttributeOfEveryEntityRoundTrips)
{
    for (const EntityDescription& entity : Model::tamo().entities()) {
        SCOPED_TRACE(entity.name());
        Record* r = context->insert(entity.name());
        for (size_t i = 0; i < entity.attributes().size(); ++i) {
            r->setValueAt(int(i), sampleFor(entity.attributes()[i].type, i));
        }
        if (entity.name() == "Invoice") {
            r->setValue("status", 4);  // the only integer with a range: a status is 0 to 4
        }
        auto dictionary = toDictionary(*r);
        ASSERT_TRUE(dictionary);
        Plist read = throughFile(dictionary->get(), GetParam());
        auto copy = createManagedObjectFromDictionary(read.get(), *other);
        ASSERT_TRUE(copy) << copy.error().text().toStdString();
        for (size_t i = 0; i < entity.attributes().size(); ++i) {
            EXPECT_EQ((*copy)->valueAt(int(i)), r->valueAt(int(i))) << entity.attributes()[i].key;
        }
    }
}

TEST_P(DictionaryTest, LinesComeBackWithTheirInvoice)
{
    auto dictionary = toDictionary(*sampleInvoice(*context, u"A"_qs, u"7"_qs));
    Plist read = throughFile(dictionary->get(), GetParam());
    auto copy = createManagedObjectFromDictionary(read.get(), *other);
    ASSERT_TRUE(copy);
    ASSERT_EQ((*copy)->toMany("items").size(), 2u);
    double units = 0;
    for (const Record* line : (*copy)->toMany("items")) {
        EXPECT_EQ(line->toOne("invoice"), *copy);
        units += line->decimal("unitCount");
    }
    EXPECT_EQ(units, 7.5);
}

INSTANTIATE_TEST_SUITE_P(Formats, DictionaryTest,
                         ::testing::Values(Format::Xml, Format::KeyedArchive),
                         [](const auto& info) {
                             return info.param == Format::Xml ? "Xml" : "KeyedArchive";
                         });

TEST_F(DictionaryTest, AnInvoiceBackupIsWrittenInApplesXmlLayout)
{
    Record* invoice = sampleInvoice(*context, u"A"_qs, u"2026-001"_qs);
    auto list = toDictionaryList({invoice});
    auto xml = serializePlist(list->get(), PlistFormat::Xml);
    const QString golden = QStringLiteral(TAMO_TEST_DATA "/invoice.tamoinvoices");
    if (qEnvironmentVariableIsSet("TAMO_UPDATE_GOLDEN")) {
        ASSERT_TRUE(writeFileAtomically(golden, *xml));
    }
    EXPECT_EQ(QString::fromUtf8(*xml), readFile(golden));
}

TEST_F(DictionaryTest, DictionariesThatDoNotFitAreRefusedBeforeAnythingIsInserted)
{
    const struct {
        const char* dictionary;
        const char* message;
    } cases[] = {
        {"<dict><key>class</key><string>Nope</string></dict>", "no records of kind “Nope”"},
        {"<dict><key>colour</key><string>red</string></dict>", "no entry “colour”"},
        {"<dict><key>amount</key><string>12,50</string></dict>", "“amount” holds text"},
        {"<dict><key>kind</key><integer>99999999999</integer></dict>", "too large"},
        {"<dict><key>date</key><real>3</real></dict>", "where a date belongs"},
        {"<dict><key>title</key><data>AAE=</data></dict>", "binary data"},
        {"<dict><key>items</key><string>x</string></dict>", "a list of records belongs"},
        {"<dict><key>items</key><array><string>x</string></array></dict>", "items, entry 1"},
        {"<dict><key>items</key><array><dict><key>class</key><string>Address</string></dict>"
         "</array></dict>",
         "kind “Address” stands where one of kind Item belongs"},
        {"<dict><key>items</key><array><dict><key>invoice</key><array/></dict></array></dict>",
         "“invoice” holds a list where a record belongs"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.dictionary);
        QByteArray dictionary(c.dictionary);
        if (!dictionary.startsWith("<dict><key>class")) {
            dictionary.insert(6, "<key>class</key><string>Invoice</string>");
        }
        const QByteArray xml = "<?xml version=\"1.0\"?><plist version=\"1.0\"><array>" +
                               dictionary + "</array></plist>";
        auto list = parsePlist(xml);
        ASSERT_TRUE(list);
        auto created =
            createManagedObjectFromDictionary(plist_array_get_item(list->get(), 0), *context);
        ASSERT_FALSE(created);
        EXPECT_TRUE(created.error().message.contains(QString::fromUtf8(c.message)))
            << created.error().message.toStdString();
        EXPECT_FALSE(context->hasChanges());
    }
}

TEST_F(DictionaryTest, AFileFarLargerThanAnyBackupIsNotRead)
{
    const QString path = dir.path(u"huge.tamoinvoices"_qs);
    ASSERT_TRUE(writeFileAtomically(path, QByteArray(4096, ' ')));
    auto read = readWholeFile(path, 1024);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().code, kFileTooLarge);
    EXPECT_TRUE(read.error().message.contains(u"too large"));
}

TEST_F(DictionaryTest, RecordsNestedWithoutEndAreRefused)
{
    // Line → template → line → template ... as a damaged or hostile file might hold.
    Plist root(plist_new_dict());
    plist_t current = root.get();
    for (int i = 0; i < 200; ++i) {
        plist_t templ = plist_new_dict();
        plist_t line = plist_new_dict();
        plist_dict_set_item(line, "template", templ);
        plist_t items = plist_new_array();
        plist_array_append_item(items, line);
        plist_dict_set_item(current, "items", items);
        current = templ;
    }
    auto created = createManagedObjectFromDictionary(root.get(), *context, "Invoice");
    ASSERT_FALSE(created);
    EXPECT_TRUE(created.error().message.contains(u"nest too deeply"));
    EXPECT_FALSE(context->hasChanges());
}

TEST_F(DictionaryTest, CloningCopiesAttributesButNoRelationships)
{
    Record* invoice = sampleInvoice(*context, u"A"_qs, u"9"_qs);
    Record* copy = cloneBySkippingAttributes(*invoice, {u"uniqueID"_qs, u"number"_qs});
    EXPECT_NE(copy->uniqueID(), invoice->uniqueID());
    EXPECT_TRUE(copy->value("number").isNull());
    EXPECT_EQ(copy->value("title"), invoice->value("title"));
    EXPECT_EQ(copy->value("date"), invoice->value("date"));
    EXPECT_TRUE(copy->toMany("items").empty());
    EXPECT_EQ(clone(*invoice)->uniqueID(), invoice->uniqueID());
}

}  // namespace
