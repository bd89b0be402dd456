#include <QRegularExpression>

#include "calc/numberformat.h"
#include "interchange/keyedarchive.h"
#include "render/designarchive.h"
#include "render/renderfixture.h"
#include "render/sampledocument.h"

using namespace tamo;
using namespace tamo::test;

namespace {

const QString kSources = QStringLiteral(TAMO_DESIGN_SOURCES);

QStringList titles(const std::vector<Record*>& designs)
{
    QStringList list;
    for (const Record* d : designs) {
        list << d->string("title");
    }
    return list;
}

// A session whose store set-up loads the shipped designs, as the application's does.
class DesignTest : public SessionTest {
protected:
    DesignTest() { designs.installHooks(); }

    Context& open() { return *session.managedObjectContext(); }

    DesignLibrary designs{session};
};

TEST_F(DesignTest, TheStoreSetUpLoadsTheShippedDesignsOnce)
{
    Context& context = open();
    const auto list = designs.designs();
    ASSERT_EQ(list.size(), 13u);
    EXPECT_TRUE(settings.boolean(key::isFirstStoreLoadEverDone));
    EXPECT_TRUE(settings.boolean(key::isTamo2TemplateLoadingDone));
    QStringList ids;
    const QStringList names = builtInDesignNames();
    for (size_t i = 0; i < list.size(); ++i) {
        const QString folder = kSources + u'/' + names[qsizetype(i)] + u'/';
        EXPECT_EQ(list[i]->string("title"), readFile(folder + u"title.txt"_qs).trimmed());
        EXPECT_EQ(list[i]->string("invoice"), readFile(folder + u"invoice.html"_qs));
        EXPECT_EQ(list[i]->string("item"), readFile(folder + u"item.html"_qs));
        EXPECT_EQ(list[i]->string("css"), readFile(folder + u"style.css"_qs));
        EXPECT_EQ(list[i]->boolean("isDefault"), i == 0 || i == 12) << i;
        ids << list[i]->uniqueID();
    }
    ids.removeDuplicates();
    EXPECT_EQ(ids.size(), 13);
    EXPECT_FALSE(context.hasChanges());

    // A second start of the same installation loads nothing again.
    AppSession again{dir.profile(), settings, clock, prompter};
    DesignLibrary second{again};
    second.installHooks();
    again.managedObjectContext();
    EXPECT_EQ(second.designs().size(), 13u);
    EXPECT_EQ(second.designs().front()->uniqueID(), ids.front());
}

TEST_F(DesignTest, AFirstStartThatEndedBeforeItsFlagsLoadsNothingTwice)
{
    open();
    // The process ended after the designs were saved and before the settings were written.
    settings.remove(key::isFirstStoreLoadEverDone);
    settings.remove(key::isTamo2TemplateLoadingDone);
    AppSession again{dir.profile(), settings, clock, prompter};
    DesignLibrary second{again};
    second.installHooks();
    ASSERT_NE(again.managedObjectContext(), nullptr);
    EXPECT_EQ(second.designs().size(), 13u);
    EXPECT_TRUE(settings.boolean(key::isFirstStoreLoadEverDone));
    EXPECT_TRUE(settings.boolean(key::isTamo2TemplateLoadingDone));
}

TEST_F(DesignTest, TogetherTheShippedDesignsUseEveryPlaceholder)
{
    open();
    QString all;
    for (const Record* d : designs.designs()) {
        all += d->string("invoice") + d->string("item") + d->string("css");
    }
    const QString placeholders = readFile(renderData(u"probe/invoice.html"_qs)) +
                                 readFile(renderData(u"probe/item.html"_qs));
    const QRegularExpression token(u"%[A-Z0-9]+%"_qs);
    int checked = 0;
    for (const auto& m : token.globalMatch(placeholders)) {
        EXPECT_TRUE(all.contains(m.captured())) << m.captured().toStdString();
        ++checked;
    }
    EXPECT_GT(checked, 80);
}

TEST_F(DesignTest, EveryShippedDesignFillsTheSampleCompletely)
{
    Context& context = open();
    applySampleSettings(settings);
    Record* sample = insertSampleDocument(context, QDateTime(QDate(2026, 3, 5), QTime(12, 0)));
    session.documents().setSelection({sample});
    InvoiceHtml html(session, designs);
    const QRegularExpression leftover(u"%[A-Z0-9]{3,}%"_qs);
    for (int i = 0; i < int(designs.designs().size()); ++i) {
        designs.selectDesign(i);
        const QString page = html.invoiceHTMLStringFromInvoice(*sample);
        EXPECT_FALSE(page.contains(leftover)) << i << leftover.match(page).captured().toStdString();
        EXPECT_TRUE(page.contains(u"Nordlicht Studio GmbH"));
        EXPECT_TRUE(page.contains(u"Concept workshop"));
    }
}

// Designs that show a part payment show beneath it, labelled, what is still due; the labels are
// the starting values' language until the person sets them.
TEST_F(DesignTest, APartPaymentShowsWhatIsStillDue)
{
    Context& context = open();
    applySampleSettings(settings);
    Record* sample = insertSampleDocument(context, QDateTime(QDate(2026, 3, 5), QTime(12, 0)));
    sample->setValue("status", 4);
    sample->setValue("paidAmount", 500.0);
    sample->setValue("dueAmount", sample->decimal("amount") - 500);
    session.documents().setSelection({sample});
    InvoiceHtml html(session, designs);
    const QString due = stringFromNumber(sample->decimal("dueAmount"));
    int showing = 0;
    for (Record* design : designs.designs()) {
        html.useDesign(design);
        const QString page = html.invoiceHTMLStringFromInvoice(*sample);
        if (!page.contains(u"−500.00")) {
            continue;  // this design shows no payment
        }
        ++showing;
        EXPECT_TRUE(page.contains(u"<th>Amount due</th><td>"_qs + due))
            << design->string("title").toStdString();
        EXPECT_TRUE(page.contains(u"✓ Paid")) << design->string("title").toStdString();
    }
    EXPECT_EQ(showing, 3);
    settings.set(key::languageDefaults, 1);
    EXPECT_TRUE(html.invoiceHTMLStringFromInvoice(*sample).contains(u"Offener Betrag"));
    settings.set(key::locAmountDue, u"Still to pay"_qs);
    EXPECT_TRUE(html.invoiceHTMLStringFromInvoice(*sample).contains(u"Still to pay"));
}

TEST_F(DesignTest, ExportAndImportRoundTripAndAnImportIsNeverTheDefault)
{
    open();
    designs.selectDesign(0);
    Record* original = designs.currentDesign();
    ASSERT_TRUE(original->boolean("isDefault"));
    const QString file = dir.path(u"Classic.design"_qs);
    prompter.queueFile(file);
    ASSERT_EQ(designs.exportDesign(), ActionResult::Done);
    EXPECT_EQ(prompter.fileRequests().last().title, u"Export Tamo Design");
    EXPECT_EQ(prompter.fileRequests().last().proposedName, u"Classic Letter");

    // The file is the keyed archive other programs read: root dictionary, "designDic".
    auto root = keyedUnarchive(readWholeFile(file).value());
    ASSERT_TRUE(root) << root.error().text().toStdString();
    plist_t dic = plist_dict_get_item(root->get(), "designDic");
    ASSERT_NE(dic, nullptr);
    EXPECT_EQ(plistString(plist_dict_get_item(dic, "class")), u"Design");
    EXPECT_EQ(plistString(plist_dict_get_item(dic, "title")), u"Classic Letter");

    prompter.queueFile(file);
    ASSERT_EQ(designs.importDesign(), ActionResult::Done);
    const auto list = designs.designs();
    ASSERT_EQ(list.size(), 14u);
    Record* imported = list.back();
    EXPECT_EQ(designs.currentDesign(), imported);
    for (const char* k : {"title", "invoice", "item", "css"}) {
        EXPECT_EQ(imported->string(k), original->string(k)) << k;
    }
    EXPECT_FALSE(imported->boolean("isDefault"));
    EXPECT_NE(imported->uniqueID(), original->uniqueID());  // the same file twice: two designs
}

TEST_F(DesignTest, ABrokenDesignFileIsRefusedWithAMessageAndChangesNothing)
{
    open();
    designs.selectDesign(3);
    auto write = [&](const QString& name, const QByteArray& bytes) {
        const QString path = dir.path(name);
        EXPECT_TRUE(writeFileAtomically(path, bytes).has_value());
        return path;
    };
    Plist noDesign(plist_new_dict());
    plist_dict_set_item(noDesign.get(), "tamoDic", plist_new_dict());
    Plist wrongKey(plist_new_dict());
    Plist badDesign(plist_new_dict());
    plist_dict_set_item(badDesign.get(), "isDefault", plist_new_string("maybe"));
    plist_dict_set_item(wrongKey.get(), "designDic", badDesign.release());
    const QString files[] = {
        write(u"text.design"_qs, "just text"),
        write(u"document.design"_qs, keyedArchive(noDesign.get()).value()),
        write(u"wrongtype.design"_qs, keyedArchive(wrongKey.get()).value()),
        dir.path(u"missing.design"_qs),
    };
    for (const QString& file : files) {
        prompter.queueFile(file);
        EXPECT_EQ(designs.importDesign(), ActionResult::Failed) << file.toStdString();
        ASSERT_FALSE(prompter.errors().isEmpty());
        EXPECT_FALSE(prompter.errors().last().text().isEmpty());
    }
    EXPECT_TRUE(prompter.errors()[0].text().contains(u"text.design"));
    EXPECT_TRUE(prompter.errors()[1].text().contains(u"designDic"));
    EXPECT_TRUE(prompter.errors()[2].text().contains(u"isDefault"));
    EXPECT_EQ(designs.designs().size(), 13u);
    EXPECT_EQ(designs.selectedIndex(), 3);
    EXPECT_FALSE(session.context()->hasChanges());
}

TEST_F(DesignTest, AddDeleteAndMakeDefault)
{
    open();
    Record* added = designs.addDesign();
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->string("title"), u"New Design");
    EXPECT_EQ(added->string("invoice"), readFile(kSources + u"/seed/Invoice.htm"_qs));
    EXPECT_EQ(added->string("item"), readFile(kSources + u"/seed/Item.htm"_qs));
    EXPECT_EQ(added->string("css"), readFile(kSources + u"/seed/CSS.css"_qs));
    EXPECT_FALSE(added->boolean("isDefault"));
    EXPECT_EQ(settings.integer(key::selectedDesign), 13);
    EXPECT_FALSE(session.context()->hasChanges());

    designs.makeDefaultDesign();
    int defaults = 0;
    for (const Record* d : designs.designs()) {
        defaults += d->boolean("isDefault");
    }
    EXPECT_EQ(defaults, 1);
    EXPECT_TRUE(added->boolean("isDefault"));

    prompter.queueAnswer(u"Cancel"_qs);
    EXPECT_FALSE(designs.deleteDesign());
    EXPECT_EQ(designs.designs().size(), 14u);
    EXPECT_EQ(prompter.alerts().last().title, u"Delete Design");
    EXPECT_EQ(prompter.alerts().last().buttons, (QStringList{u"Delete"_qs, u"Cancel"_qs}));

    designs.selectDesign(5);
    const QString sixth = designs.designs()[5]->string("title");
    const QString seventh = designs.designs()[6]->string("title");
    prompter.queueAnswer(u"Delete"_qs);
    EXPECT_TRUE(designs.deleteDesign());
    EXPECT_FALSE(titles(designs.designs()).contains(sixth));
    EXPECT_EQ(designs.currentDesign()->string("title"), seventh);
    EXPECT_EQ(settings.integer(key::selectedDesign), 5);
}

TEST_F(DesignTest, WithoutDesignsThePageIsTheFailureText)
{
    open();
    while (!designs.designs().empty()) {
        designs.selectDesign(int(designs.designs().size()) - 1);
        prompter.queueAnswer(u"Delete"_qs);
        ASSERT_TRUE(designs.deleteDesign());
    }
    EXPECT_EQ(designs.currentDesign(), nullptr);
    EXPECT_EQ(designs.selectedIndex(), -1);
    InvoiceHtml html(session, designs);
    EXPECT_EQ(html.invoiceHTMLString(), designFailureText());
}

TEST_F(DesignTest, AStoredPositionOutOfRangeSelectsTheFirstDesign)
{
    open();
    settings.set(key::selectedDesign, 40);
    designs.setDesignInt();
    EXPECT_EQ(settings.integer(key::selectedDesign), 0);
    settings.set(key::selectedDesign, 7);
    EXPECT_EQ(designs.currentDesign(), designs.designs()[7]);
    EXPECT_EQ(session.hooks().selectedDesignIndex(), 7);
}

}  // namespace
