#include <QFile>
#include <functional>

#include "einvoicefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

using Step = Readiness::Step;

struct ReadinessCase {
    const char* name;
    std::function<void(EinvoiceTest&, Record*)> change;
    Step step;
    const char* key = "";
};

void PrintTo(const ReadinessCase& c, std::ostream* os)
{
    *os << c.name;
}

class ReadinessTest : public EinvoiceTest, public ::testing::WithParamInterface<ReadinessCase> {};

const ReadinessCase kReadinessCases[] = {
    {"Complete", [](auto&, auto) {}, Step::Possible},
    {"StaleAmountIsRecalculatedFirst", [](auto&, Record* d) { set(d, u"amount=0"); },
     Step::Possible},
    {"ZeroAmountWithItems",
     [](auto&, Record* d) { set(d->toMany("items").front(), u"baseAmount=0"); }, Step::Amount},
    {"NegativeAmountPasses",
     [](auto&, Record* d) { set(d->toMany("items").front(), u"baseAmount=-20"); }, Step::Possible},
    {"AmountWithoutItems",
     [](auto& t, Record* d) {
         t.context.remove(d->toMany("items").front());
         set(d, u"isShippingEnabled=true shippingAmount=10");
     },
     Step::Items},
    {"DiscountAfterTaxes", [](auto& t, auto) { t.settings.set(key::beforeTaxesBool, false); },
     Step::DiscountBeforeTaxes},
    {"SupplierSettingOfSpacesPasses",
     [](auto& t, auto) { t.settings.set(key::prefsSupplierCity, u"  "_qs); }, Step::Possible},
    {"FirstEmptySupplierSettingInCheckOrder",
     [](auto& t, auto) {
         t.settings.remove(key::prefsSupplierCity);
         t.settings.set(key::prefsSupplierIBAN, QString());
     },
     Step::SupplierSetting, "prefsSupplierIBAN"},
    {"FirstEmptyInvoiceValueInCheckOrder",
     [](auto&, Record* d) {
         d->setValue("evoiceCity", Value());
         setTexts(d, {{"evoicePostalCode", u""}});
     },
     Step::InvoiceValue, "evoicePostalCode"},
    {"NoCurrentDocument", [](auto& t, auto) { t.session.documents().setSelection({}); },
     Step::NoDocument},
};

TEST_P(ReadinessTest, StopsAtTheFirstFailingStep)
{
    Record* d = invoice();
    item(d, u"Design", u"baseAmount=100 unitCount=1");
    GetParam().change(*this, d);
    const Readiness readiness = EinvoiceActions(session).isEvoiceActionPossible();
    EXPECT_EQ(readiness.step, GetParam().step) << readiness.reason().toStdString();
    EXPECT_EQ(readiness.key, QString::fromLatin1(GetParam().key));
}

INSTANTIATE_TEST_SUITE_P(Cases, ReadinessTest, ::testing::ValuesIn(kReadinessCases),
                         [](const auto& info) { return std::string(info.param.name); });

using EinvoiceActionsTest = EinvoiceTest;

TEST_F(EinvoiceActionsTest, ExportMarksAnInvoiceSentSavesAndWritesTheChosenFile)
{
    Record* d = invoice(u"tax1Percent=0.19");
    setTexts(d, {{"number", u"RE/2026/017"}});
    item(d, u"Design", u"baseAmount=100 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    EinvoiceActions actions(session);
    ASSERT_TRUE(actions.isEvoiceActionPossible().possible());
    const QString path = dir.path(u"invoice.xml"_qs);
    prompter.queueFile(path);
    actions.exportEvoiceAction();

    ASSERT_EQ(prompter.fileRequests().size(), 1);
    const FileRequest& panel = prompter.fileRequests().front();
    EXPECT_EQ(panel.title, u"Save E-Invoice XML File");
    EXPECT_EQ(panel.extensions, QStringList{u"xml"_qs});
    EXPECT_EQ(panel.proposedName, u"Maria Muster Design - Invoice - RE-2026-017");
    EXPECT_EQ(d->integer("status"), 1);
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(readFile(path), actions.evoiceXMLString());
    EXPECT_TRUE(readFile(path).contains(u"<cbc:ID>RE/2026/017</cbc:ID>"));

    // Sent now: both sheets refuse, with the alert, and nothing else changes.
    EXPECT_FALSE(actions.mayChangeCurrentInvoice());
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts().front().title, u"Error!");
    EXPECT_TRUE(prompter.alerts().front().text.startsWith(
        u"The selected invoice is marked as already sent."));
}

TEST_F(EinvoiceActionsTest, OnlyInvoicesAreMarkedAndOnlyWhenTheSettingsAskForIt)
{
    const struct {
        int kind;
        bool markSetting;
        int status;
    } cases[] = {{1, true, 1}, {0, true, 0}, {1, false, 0}};
    for (const auto& c : cases) {
        settings.set(key::markInvoiceAsSent, c.markSetting);
        Record* d = invoice();
        d->setValue("kind", c.kind);
        item(d, u"Design", u"baseAmount=100 unitCount=1");
        prompter.queueFile(QString());  // the panel is cancelled; the marking has happened
        EinvoiceActions(session).exportEvoiceAction();
        EXPECT_EQ(d->integer("status"), c.status) << c.kind << c.markSetting;
    }
}

TEST_F(EinvoiceActionsTest, AFileThatCannotBeWrittenIsReportedAndLeavesNothingBehind)
{
    invoice();
    const QString path = dir.path(u"missing-folder/invoice.xml"_qs);
    const auto written = EinvoiceActions(session).writeEvoiceXML(path);
    ASSERT_FALSE(written.has_value());
    EXPECT_TRUE(written.error().message.contains(path));
    EXPECT_FALSE(QFile::exists(path));
}

}  // namespace
