#include <QFile>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/commands.h"
#include "einvoice/rulecheck.h"
#include "einvoicefixture.h"
#include "support/commandrunner.h"
#include "ublschema.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class EinvoiceCommandsTest : public EinvoiceTest {
protected:
    // Runs `tamo --store` on this test's profile; the exit code and everything printed.
    std::pair<int, QString> tamo(const QStringList& words)
    {
        QString out, err;
        QTextStream o(&out), e(&err);
        const int code =
            runCommand(parseInvocation(
                           QStringList{u"tamo"_qs, u"--store"_qs, dir.path(u"profile"_qs)} + words),
                       o, e);
        o.flush();
        e.flush();
        return {code, out + err};
    }
    QString status() { return queryText(dir.storePath(), u"SELECT status FROM Invoice"_qs); }
};

TEST_F(EinvoiceCommandsTest, ChecksWritesMarksAndThenRefusesTheSentInvoice)
{
    Record* d = invoice(u"due=2099-12-31T12:00:00Z");  // the commands run on today's clock
    item(d, u"Design", u"baseAmount=100 unitCount=1");
    settings.remove(key::prefsSupplierIBAN);
    settings.set(key::markInvoiceAsSent, false);
    ASSERT_TRUE(session.saveContext());
    const QString n = u"RE-2026-017"_qs;

    auto result = tamo({u"einvoice-check"_qs, n});
    EXPECT_EQ(result.first, 1);
    EXPECT_TRUE(result.second.startsWith(
        u"not possible: step 5: the supplier setting prefsSupplierIBAN is empty\n"))
        << result.second.toStdString();
    const QString refused = dir.path(u"refused.xml"_qs), forced = dir.path(u"forced.xml"_qs);
    EXPECT_EQ(tamo({u"einvoice"_qs, n, refused}).first, 1);
    EXPECT_FALSE(QFile::exists(refused));
    result = tamo({u"einvoice"_qs, n, forced, u"--force"_qs});
    EXPECT_EQ(result.first, 0);
    EXPECT_TRUE(result.second.startsWith(u"Skipped the e-invoice readiness check (--force)"));
    EXPECT_TRUE(readFile(forced).contains(u"<cbc:ID></cbc:ID>"));  // the empty IBAN
    EXPECT_EQ(status(), u"0");

    tamo({u"settings"_qs, u"set"_qs, u"prefsSupplierIBAN"_qs, u"DE02120300000000202051"_qs});
    tamo({u"settings"_qs, u"set"_qs, u"markInvoiceAsSent"_qs, u"true"_qs});
    // Ready, but the untaxed line has no tax category in the standard file.
    result = tamo({u"einvoice-check"_qs, n});
    EXPECT_EQ(result.first, 1);
    EXPECT_TRUE(result.second.startsWith(u"possible\nBR-CO-04 fatal: Line 1 has no tax category."))
        << result.second.toStdString();
    tamo({u"settings"_qs, u"set"_qs, u"prefsEvoiceExemptionReason"_qs, u"Kleinunternehmer"_qs});
    EXPECT_EQ(tamo({u"einvoice-check"_qs, n, u"--conformant"_qs}),
              std::pair(0, u"possible\npasses the EN 16931 and XRechnung rules\n"_qs));
    EXPECT_EQ(tamo({u"einvoice-details"_qs, n, u"evoiceCty=Potsdam"_qs}).first, kUsageError);
    result = tamo({u"einvoice-details"_qs, n, u"evoiceCity=Potsdam"_qs});
    EXPECT_TRUE(result.second.contains(u"\nCity (evoiceCity): Potsdam\n"));

    const QString written = dir.path(u"invoice.xml"_qs);
    EXPECT_EQ(tamo({u"einvoice"_qs, n, written}).first, 0);
    EXPECT_EQ(UblSchema::invoice().problems(readFile(written)), QStringList());
    EXPECT_TRUE(readFile(written).contains(u"<cbc:CityName>Potsdam</cbc:CityName>"));
    EXPECT_EQ(status(), u"1");
    result = tamo({u"einvoice"_qs, n, dir.path(u"again.xml"_qs)});
    EXPECT_EQ(result.first, 1);
    EXPECT_TRUE(result.second.contains(u"already sent"));
    EXPECT_EQ(tamo({u"einvoice-details"_qs, n, u"evoiceCity=Bonn"_qs}).first, 1);
}

TEST_F(EinvoiceCommandsTest, ChecksAsJsonAndWritesTheConformantFileOrRefusesIt)
{
    Record* d = invoice(
        u"due=2099-12-31T12:00:00Z tax1Percent=0.19 isDiscountEnabled=true "
        u"discountKind=0 discountAmount=50");
    setTexts(d, {{"discountTitle", u"Loyalty"}});
    item(d, u"Design", u"baseAmount=450 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    Record* event = invoice(u"due=2099-12-31T12:00:00Z tax1Percent=0.19 tax2Percent=0.07");
    event->setValue("number", u"RE-2026-018"_qs);
    item(event, u"Event",
         u"baseAmount=200 unitCount=1 isTax1Applied=true tax1Percent=0.19 isTax2Applied=true "
         u"tax2Percent=0.07");
    ASSERT_TRUE(session.saveContext());
    const QString n = u"RE-2026-017"_qs;

    const auto json = [&](QStringList words) {
        const auto [code, out] = tamo(words << u"--json"_qs);
        return std::pair(code, QJsonDocument::fromJson(out.section(u'\n', 0, 0).toUtf8()).object());
    };
    auto [code, check] = json({u"einvoice-check"_qs, n});
    EXPECT_EQ(code, 1);
    EXPECT_TRUE(check[u"ready"_qs].toBool());
    const QJsonArray findings = check[u"findings"_qs].toArray();
    const auto lineTotal = std::find_if(findings.begin(), findings.end(), [](const QJsonValue& f) {
        return f[u"rule"_qs] == u"BR-CO-10"_qs;
    });
    ASSERT_NE(lineTotal, findings.end());
    EXPECT_EQ((*lineTotal)[u"severity"_qs], u"fatal"_qs);
    EXPECT_EQ((*lineTotal)[u"field"_qs], u"E-Invoice sheet: prefsEvoiceConformantBool"_qs);

    // The conformant file keeps every rule; only the changed amount due is noted.
    std::tie(code, check) = json({u"einvoice-check"_qs, n, u"--conformant"_qs});
    EXPECT_EQ(code, 0);
    ASSERT_EQ(check[u"findings"_qs].toArray().size(), 1);
    EXPECT_EQ(check[u"findings"_qs][0][u"rule"_qs], u"TAMO-AMOUNT"_qs);
    EXPECT_EQ(check[u"findings"_qs][0][u"severity"_qs], u"warning"_qs);

    // The setting makes it the default; --standard still asks for the other.
    tamo({u"settings"_qs, u"set"_qs, u"prefsEvoiceConformantBool"_qs, u"true"_qs});
    EXPECT_EQ(json({u"einvoice-check"_qs, n}).first, 0);
    EXPECT_EQ(json({u"einvoice-check"_qs, n, u"--standard"_qs}).first, 1);

    const QString refused = dir.path(u"event.xml"_qs);
    const auto [refusedCode, refusedText] = tamo({u"einvoice"_qs, u"RE-2026-018"_qs, refused});
    EXPECT_EQ(refusedCode, 1);
    EXPECT_TRUE(refusedText.contains(u"Line 1 has 2 taxes"));
    EXPECT_FALSE(QFile::exists(refused));

    const QString written = dir.path(u"conformant.xml"_qs);
    EXPECT_EQ(tamo({u"einvoice"_qs, n, written}).first, 0);
    const QString xml = readFile(written);
    EXPECT_EQ(UblSchema::invoice().problems(xml), QStringList());
    EXPECT_TRUE(xml.contains(u"<cbc:AllowanceChargeReason>Loyalty</cbc:AllowanceChargeReason>"));
    EXPECT_TRUE(checkEinvoiceRules(*parseUbl(xml)).empty());
}

using ExportGuardTest = EinvoiceTest;

TEST_F(ExportGuardTest, RefusesWhatCannotBeWrittenAndAsksBeforeARejectedFile)
{
    Record* d = invoice(u"tax1Percent=0.19 tax2Percent=0.07");
    Record* line = item(d, u"Event",
                        u"baseAmount=200 unitCount=1 isTax1Applied=true "
                        u"tax1Percent=0.19 isTax2Applied=true tax2Percent=0.07");
    EinvoiceActions actions(session);
    EXPECT_FALSE(actions.mayExport({true, {}, {}}));
    EXPECT_EQ(prompter.alerts().back().title, u"Error!");
    EXPECT_TRUE(prompter.alerts().back().text.startsWith(u"Line 1 has 2 taxes"));

    prompter.queueAnswer(u"Cancel"_qs);
    EXPECT_FALSE(actions.mayExport({}));  // several categories on one line
    EXPECT_EQ(prompter.alerts().back().title, u"This e-invoice will likely be rejected");

    line->setValue("isTax2Applied", false);
    totals.calculateInvoice(*d);
    const auto asked = prompter.alerts().size();
    EXPECT_TRUE(actions.mayExport({}));
    EXPECT_EQ(prompter.alerts().size(), asked);
}

}  // namespace
