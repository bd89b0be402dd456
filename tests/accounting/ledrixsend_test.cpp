#include <gtest/gtest.h>
#include <QDir>
#include <QFileInfo>

#include "accounting/ledrixsend.h"
#include "accountingfixture.h"

namespace tamo::test {
namespace {

QStringList keysOf(plist_t dictionary)
{
    QStringList keys;
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(dictionary, &it);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, it, &key, &value);
        if (!key) {
            break;
        }
        keys << QString::fromUtf8(key);
        free(key);
    }
    free(it);
    return keys;
}

class LedrixSendTest : public AccountingTest {
protected:
    LedrixSendTest() { send.setOpener(recordingOpener()); }

    // The export's dictionaries of the sheet's list.
    Plist exported()
    {
        auto array = send.exportArray();
        EXPECT_TRUE(array);
        return array ? std::move(*array) : Plist(plist_new_array());
    }

    LedrixSend send{session};
};

TEST_F(LedrixSendTest, TheSummaryItemEndsAtTheFirstEmptyValue)
{
    Record* unpaid = invoice(u"R-1"_qs, localAt(2026, 2, 1, 9), 1);
    Record* paidUnsent = invoice(u"R-2"_qs, localAt(2026, 2, 2, 9), 3);
    paidUnsent->setValue("paid", localAt(2026, 2, 10, 9));
    Record* complete = invoice(u"R-3"_qs, localAt(2026, 2, 3, 9), 3);
    complete->setValue("paid", localAt(2026, 2, 11, 9));
    complete->setValue("sent", localAt(2026, 2, 4, 9));
    Record* unnumbered = invoice(QString(), localAt(2026, 2, 4, 9), 1);
    list();
    send.sendToLedrix(0);

    const QStringList all = {u"amount"_qs,        u"title"_qs,         u"paidDate"_qs,
                             u"sentDate"_qs,      u"dateDate"_qs,      u"isTax1Applied"_qs,
                             u"isTax2Applied"_qs, u"isTax3Applied"_qs, u"subAmount"_qs,
                             u"tax1Amount"_qs,    u"tax1Percent"_qs,   u"tax2Amount"_qs,
                             u"tax2Percent"_qs,   u"tax3Amount"_qs,    u"tax3Percent"_qs};
    const std::pair<Record*, QStringList> cases[] = {
        {unpaid, all.mid(0, 2)},
        {paidUnsent, all.mid(0, 3)},
        {complete, all},
        {unnumbered, all.mid(0, 1)},
    };
    for (const auto& [record, keys] : cases) {
        EXPECT_EQ(keysOf(summaryItem(*record).get()), keys)
            << record->string("number").toStdString();
    }
    Plist summary = summaryItem(*complete);
    const auto flag = [&](const char* key) {
        uint8_t value = 2;
        plist_get_bool_val(plist_dict_get_item(summary.get(), key), &value);
        return value;
    };
    EXPECT_EQ(flag("isTax1Applied"), 1);
    EXPECT_EQ(flag("isTax2Applied"), 0);

    // In the export, each invoice carries its summary as its only item.
    Plist array = exported();
    ASSERT_EQ(plist_array_get_size(array.get()), 4u);
    for (uint32_t i = 0; i < 4; ++i) {
        plist_t items = plist_dict_get_item(plist_array_get_item(array.get(), i), "items");
        ASSERT_EQ(plist_array_get_size(items), 1u);
        EXPECT_EQ(plist_dict_get_item(plist_array_get_item(items, 0), "class"), nullptr);
    }
}

TEST_F(LedrixSendTest, TheItemsKindKeepsTheInvoicesOwnItems)
{
    invoice(u"R-1"_qs, localAt(2026, 2, 1, 9), 1);
    list();
    settings.set(key::prefsLedrixExportItemsKind, 1);
    send.sendToLedrix(0);
    Plist array = exported();
    plist_t items = plist_dict_get_item(plist_array_get_item(array.get(), 0), "items");
    ASSERT_EQ(plist_array_get_size(items), 1u);
    EXPECT_EQ(plistString(plist_dict_get_item(plist_array_get_item(items, 0), "class")), u"Item");
    EXPECT_EQ(plistString(plist_dict_get_item(plist_array_get_item(items, 0), "title")), u"Work");
}

TEST_F(LedrixSendTest, TheSheetFiltersByTheStoredRangeAndKind)
{
    invoice(u"Q-1"_qs, localAt(2026, 3, 2, 9), 3, 0);  // a quote never goes
    invoice(u"R-0"_qs, localAt(2026, 3, 1, 8), 0);     // created: not dispatched
    invoice(u"R-1"_qs, localAt(2026, 3, 1, 10), 1);
    invoice(u"R-2"_qs, localAt(2026, 3, 2, 10), 2);
    invoice(u"R-3"_qs, localAt(2026, 3, 3, 10), 3);
    invoice(u"R-4"_qs, localAt(2026, 3, 4, 10), 4);
    list();
    send.sendToLedrix(0);
    // Opening the sheet covers every listed invoice.
    EXPECT_EQ(settings.date(key::prefsLedrixExportBeginDate), localAt(2026, 3, 1, 8));
    EXPECT_EQ(settings.date(key::prefsLedrixExportEndDate), localAt(2026, 3, 4, 10));

    const auto numbers = [&] {
        QStringList n;
        for (const Record* r : send.ledrixArray()) {
            n << r->string("number");
        }
        return n;
    };
    const std::pair<int, QStringList> kinds[] = {
        {0, {u"R-4"_qs, u"R-3"_qs, u"R-2"_qs, u"R-1"_qs}},
        {1, {u"R-3"_qs}},
        {2, {u"R-2"_qs}},
    };
    for (const auto& [kind, expected] : kinds) {
        settings.set(key::prefsLedrixExportKind, kind);
        send.doTheLedrixFilter();
        EXPECT_EQ(numbers(), expected) << "kind " << kind;
        EXPECT_EQ(settings.integer(key::prefsLedrixExportCount), expected.size());
    }

    // The stored end is compared as it is: a later invoice of the same day is left out.
    settings.set(key::prefsLedrixExportKind, 0);
    settings.set(key::prefsLedrixExportBeginDate, localAt(2026, 3, 1, 12));
    settings.set(key::prefsLedrixExportEndDate, localAt(2026, 3, 3, 9));
    send.doTheLedrixFilter();
    EXPECT_EQ(numbers(), QStringList{u"R-2"_qs});
}

TEST_F(LedrixSendTest, ExportWritesTheTargetsFileAndHandsItOver)
{
    invoice(u"R-1"_qs, localAt(2026, 3, 1, 10), 1);
    list();
    for (const auto& [tag, name] :
         {std::pair{0, u"kelvaneExport.ldxtamo"_qs}, std::pair{7, u"kelvaneExport.kelvtamo"_qs}}) {
        opened.clear();
        send.sendToLedrix(tag);
        std::optional<bool> sent;
        send.closeLedrixSheet([&](bool ok) { sent = ok; });
        const QString path = QDir(session.applicationDataDirectory()).filePath(name);
        EXPECT_EQ(sent, true);
        EXPECT_EQ(opened, QStringList{path});
        auto read = readPlistFile(path);
        ASSERT_TRUE(read);
        EXPECT_EQ(plist_array_get_size(read->get()), 1u);
    }
    EXPECT_TRUE(prompter.alerts().isEmpty());
}

TEST_F(LedrixSendTest, EachFailureHasItsAlertAndTheSheetGoesOn)
{
    invoice(u"R-1"_qs, localAt(2026, 3, 1, 10), 1);
    list();
    send.sendToLedrix(0);
    // A folder where the file belongs: it cannot be written, and the opener still runs.
    ASSERT_TRUE(QDir().mkpath(send.exportPath()));
    send.setOpener(recordingOpener(false));
    std::optional<bool> sent;
    send.closeLedrixSheet([&](bool ok) { sent = ok; });
    EXPECT_EQ(sent, false);
    EXPECT_EQ(opened, QStringList{send.exportPath()});
    ASSERT_EQ(prompter.alerts().size(), 2);
    EXPECT_EQ(prompter.alerts()[0].title, u"Error!");
    EXPECT_EQ(prompter.alerts()[0].text, u"Could not write Ledrix/Kelvane export data.");
    EXPECT_TRUE(
        prompter.alerts()[1].text.startsWith(u"Ledrix/Kelvane export file couldn't be "
                                             u"opened."));
    EXPECT_TRUE(QFileInfo(send.exportPath()).isDir());
}

}  // namespace
}  // namespace tamo::test
