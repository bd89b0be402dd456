#include <QDir>
#include <QLabel>
#include <QStatusBar>

#include "app/appdelegate.h"
#include "app/mainwindow.h"
#include "calcfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(WindowSummaryTest, TheStatusBarShowsTheListsFiguresAndFollowsChanges)
{
    TempProfile dir;
    QDir().mkpath(dir.profile().supportFolder);
    {
        auto context = openContext(dir.storePath());
        set(context->insert("Invoice"), u"kind=1 status=1 amount=1234.5 due=2100-01-01T00:00:00Z");
        context->insert("Invoice");  // a quote
        ASSERT_TRUE(context->save());
    }
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    AppDelegate delegate(dir.profile());
    delegate.start();
    const QLabel* summary = delegate.window().statusBar()->findChild<QLabel*>();
    ASSERT_NE(summary, nullptr);
    EXPECT_EQ(summary->text(),
              u"Invoices: 1   Quotes: 1   Total: 1,234.50   Paid: 0.00   Due: 0.00");

    Context& context = *delegate.session().context();
    {
        UndoGroup add(context, u"New Invoice"_qs);
        set(context.insert("Invoice"), u"kind=1 status=3 amount=10");
    }
    EXPECT_EQ(summary->text(),
              u"Invoices: 2   Quotes: 1   Total: 1,244.50   Paid: 10.00   Due: 0.00");
}

}  // namespace
