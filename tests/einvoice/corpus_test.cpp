#include <QRandomGenerator>
#include <QRegularExpression>

#include "rulefixture.h"
#include "ublschema.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class Corpus : public RuleTest {
protected:
    // CORPUS_SEED=N draws another corpus.
    QRandomGenerator random{seed()};

    static quint32 seed()
    {
        const int chosen = qEnvironmentVariableIntValue("CORPUS_SEED");
        return chosen != 0 ? quint32(chosen) : 20260301u;
    }

    bool chance(int percent) { return int(random.bounded(100)) < percent; }
    // A number with up to three decimals, the precision the totals work with.
    QString amount(int from, int to)
    {
        const double places[] = {1, 10, 100, 1000};
        const double scale = places[random.bounded(4)];
        return QString::number(std::round((from + random.generateDouble() * (to - from)) * scale) /
                               scale);
    }
    QString rate()
    {
        const char* rates[] = {"0", "0.05", "0.07", "0.19", "0.0725", "0.2"};
        return QString::fromLatin1(rates[random.bounded(6)]);
    }
    // Long texts with characters XML has to escape, and beyond Latin-1.
    QString text()
    {
        const QString pieces[] = {u"Design"_qs,          u" & "_qs,     u"<Print>"_qs,
                                  u"Müller \"GmbH\""_qs, u"Ωmega €"_qs, u"\U0001F4E6"_qs,
                                  u"  spaced  "_qs};
        QString t;
        for (int n = 1 + int(random.bounded(40)); n > 0; --n) {
            t += pieces[random.bounded(7)];
        }
        return t;
    }

    Record* randomDocument()
    {
        settings.set(key::tax2IsCompound, chance(20));
        settings.set(key::tax3IsCompound, chance(20));
        Record* d = invoice();
        d->setValue("kind", chance(20) ? 0 : 1);  // quotes are written as invoices too
        for (int n = 1; n <= 3; ++n) {
            d->setValue(QStringLiteral("tax%1Percent").arg(n).toStdString(), rate().toDouble());
        }
        if (chance(50)) {
            d->setValue("isShippingEnabled", true);
            d->setValue("shippingAmount", amount(0, 50).toDouble());
            d->setValue("shippingTitle", text());
            for (int n = 1; n <= 3; ++n) {
                d->setValue(QStringLiteral("isShippingTax%1Enabled").arg(n).toStdString(),
                            chance(30));
            }
        }
        if (chance(50)) {
            d->setValue("isDiscountEnabled", true);
            d->setValue("discountKind", int(random.bounded(2)));
            d->setValue("discountPercent", amount(0, 1).toDouble() / 2);
            d->setValue("discountAmount", amount(0, 80).toDouble());
            d->setValue("discountTitle", text());
        }
        for (int lines = int(random.bounded(7)); lines > 0; --lines) {
            Record* line = item(d, u"", u"");
            line->setValue("title", text());
            line->setValue("baseAmount", amount(chance(15) ? -200 : 0, 900).toDouble());
            line->setValue("unitCount", amount(0, 25).toDouble());
            for (int n = 1; n <= 3; ++n) {
                const std::string tax = std::to_string(n);
                line->setValue("isTax" + tax + "Applied", chance(n == 1 ? 60 : 20));
                line->setValue("tax" + tax + "Percent", rate().toDouble());
                if (n > 1) {
                    line->setValue("isTax" + tax + "Compound", chance(15));
                }
            }
        }
        return d;
    }
};

// Random documents of every shape Tamo holds (0 to 3 taxes per line, untaxed and negative
// lines, discounts of both kinds, taxed shipping, compound settings, quotes, long texts) go
// through both writers and the rules.
TEST_F(Corpus, EveryShapeIsWrittenAndCheckedAndTheConformantFilePasses)
{
    const QRegularExpression ruleId(
        u"^(BR-[A-Z0-9-]+|UBL-SR-48|PEPPOL-EN16931-R\\d{3}|SCHEMA)$"_qs);
    const char* exemptions[] = {"E", "AE", "K", "G", "O", "Z"};
    int conformantFiles = 0;
    for (int round = 0; round < 150; ++round) {
        Record* d = randomDocument();
        SCOPED_TRACE(round);

        // The standard file: whatever it breaks, the rules say so in their own terms, and they
        // flag exactly the files the schema rejects (a file without lines breaks BR-16 too).
        const UblDocument written = standard(d);
        const QString xml = serialise(written);
        const std::vector<Finding> findings = checkEinvoiceRules(written);
        for (const Finding& f : findings) {
            EXPECT_TRUE(ruleId.match(f.rule).hasMatch()) << f.rule.toStdString();
            EXPECT_FALSE(f.message.isEmpty());
        }
        const RuleSet rules = rulesOf(findings);
        EXPECT_EQ(UblSchema::invoice().problems(xml).isEmpty(),
                  !rules.contains("SCHEMA") && !rules.contains("BR-16"))
            << describe(findings);
        // The file read back breaks the same rules as the tree it was written from.
        EXPECT_EQ(rulesOf(checkEinvoiceRules(*parseUbl(xml))), rules);

        // The conformant file passes, or is refused with a reason that names a place.
        const char* category = exemptions[random.bounded(6)];
        const auto document = conformant(d, category);
        if (!document) {
            EXPECT_EQ(document.error().rule, u"TAMO-CONFORMANT");
            EXPECT_FALSE(document.error().field.isNone());
            continue;
        }
        ++conformantFiles;
        const bool noItems = d->toMany("items").empty();
        EXPECT_EQ(UblSchema::invoice().problems(serialise(*document)).isEmpty(), !noItems);
        for (const Finding& f : checkEinvoiceRules(*document)) {
            // Outside the scope of VAT nothing may be taxed, and a file without items has no
            // line: both are the user's choice to make.
            const bool allowed =
                (std::string_view(category) == "O" && f.rule.startsWith(u"BR-O")) ||
                (noItems && f.rule == u"BR-16");
            EXPECT_TRUE(!f.fatal() || allowed)
                << category << " " << f.rule.toStdString() << ": " << f.message.toStdString();
        }
    }
    EXPECT_GT(conformantFiles, 30);
}

}  // namespace
