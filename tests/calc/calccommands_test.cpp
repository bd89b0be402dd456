#include "calc/numbering.h"
#include "cli/commandline.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(CalcCommandsTest, RecalcPrintsTheListsCountsAndNextNumberFollowsThem)
{
    TempProfile dir;
    const QString store = dir.path(u"store"_qs);
    const auto tamo = [&](const QStringList& words) {
        QString out, err;
        QTextStream o(&out), e(&err);
        const int code = runCommand(
            parseInvocation(QStringList{u"tamo"_qs, u"--store"_qs, store} + words), o, e);
        e.flush();
        EXPECT_EQ(code, 0) << err.toStdString();
        return (o.flush(), out);
    };
    tamo({u"generate-sample"_qs, u"--documents"_qs, u"30"_qs, u"--clients"_qs, u"4"_qs});
    const QStringList report = tamo({u"recalc"_qs}).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(report.size(), 5);
    const int invoices = report[0].section(u' ', 1, 1).toInt();
    EXPECT_EQ(invoices + report[1].section(u' ', 1, 1).toInt(), 30) << report[0].toStdString();
    EXPECT_TRUE(report[4].startsWith(u"Due: "));

    Settings settings(Profile::inDirectory(store).settingsFile);
    settings.set(key::invCount, 100);
    settings.set(key::invPattern, u"RE-%COUNT%"_qs);
    settings.set(key::clientPattern, u"K%COUNT%"_qs);
    EXPECT_EQ(tamo({u"next-number"_qs, u"invoice"_qs}),
              QStringLiteral("RE-%1\n").arg(101 + invoices));
    EXPECT_EQ(tamo({u"next-number"_qs, u"client"_qs}), u"K5\n");
}

}  // namespace
