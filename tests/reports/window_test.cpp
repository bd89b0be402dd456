#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QWebEnginePage>
#include <QWebEngineView>

#include "app/mainwindow.h"
#include "app/popover.h"
#include "app/reportswindow.h"
#include "reportsfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class ReportsWindowTest : public ReportsTest {
protected:
    ReportsWindowTest()
    {
        for (int i = 0; i < 4; ++i) {
            Record* d = add({1, 3, 100.0 + i, 90, 0, 100.0 + i});
            d->setValue("customerName", i == 0 ? u"Anna Berg"_qs : u"Someone Else"_qs);
        }
        installReportActions(window, session);
    }

    QAction* showAction() { return window.findChild<QAction*>(u"showReportsWindow"_qs); }
    ReportsWindow* reports() { return window.findChild<ReportsWindow*>(); }
    QString listed() { return reports()->findChild<QLabel*>(u"reportListed"_qs)->text(); }

    // Whether the page's own script has drawn its charts.
    bool chartsDrawn()
    {
        std::optional<bool> drawn;
        reports()->view()->page()->runJavaScript(
            u"!!(window.Chart && Chart.getChart('statusChart') && Chart.getChart('moneyChart'))"_qs,
            [&](const QVariant& v) { drawn = v.toBool(); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return drawn.has_value(); }, 10000));
        return drawn.value_or(false);
    }

    MainWindow window{session};
};

TEST_F(ReportsWindowTest, TheWindowShowsTheListedInvoicesWithTheirCharts)
{
    ASSERT_NE(showAction(), nullptr);
    EXPECT_TRUE(window.findChild<QToolBar*>(u"mainToolBar"_qs)->actions().contains(showAction()));
    EXPECT_NE(window.menuBar()->findChild<QMenu*>(u"reportsMenu"_qs), nullptr);

    // First use: the hint, and the range set to this moment.
    showAction()->trigger();
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts()[0].title, u"Hint!"_qs);
    EXPECT_TRUE(settings.boolean(key::isReportHintShown));
    EXPECT_EQ(settings.date(key::reportDateL), clock.now());
    EXPECT_EQ(settings.date(key::reportDateR), clock.now());
    ASSERT_NE(reports(), nullptr);
    EXPECT_TRUE(reports()->isVisible());
    QSignalSpy shown(reports(), &ReportsWindow::reportShown);
    ASSERT_TRUE(shown.wait(20000));
    EXPECT_TRUE(shown.front().front().toBool());
    EXPECT_TRUE(chartsDrawn());
    EXPECT_TRUE(listed().endsWith(u": 4"_qs));

    // It follows the main list's search.
    window.findChild<QLineEdit*>(u"search"_qs)->setText(u"Anna"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().endsWith(u": 1"_qs); }, 10000));

    // The action toggles the window; the hint comes once.
    showAction()->trigger();
    EXPECT_FALSE(reports()->isVisible());
    showAction()->trigger();
    EXPECT_TRUE(reports()->isVisible());
    EXPECT_EQ(prompter.alerts().size(), 1);
}

TEST_F(ReportsWindowTest, TheDatePopoverEditsTheRangeAndTheReportFollows)
{
    settings.set(key::isReportHintShown, true);
    settings.set(key::reportDateL, clock.now().addDays(-1));
    settings.set(key::reportDateR, clock.now().addSecs(-1));
    showAction()->trigger();
    QSignalSpy shown(reports(), &ReportsWindow::reportShown);
    ASSERT_TRUE(shown.wait(20000));

    reports()->showDatePopover();
    Popover* popover = reports()->datePopover();
    ASSERT_NE(popover, nullptr);
    EXPECT_TRUE(popover->isVisible());
    popover->findChild<QCheckBox*>()->setChecked(true);
    EXPECT_TRUE(settings.boolean(key::useReportDateRange));
    reports()->showDatePopover();  // a second click closes it
    EXPECT_FALSE(popover->isVisible());
    // The documents are dated now, after the range.
    ASSERT_TRUE(shown.wait(20000));
    EXPECT_TRUE(listed().endsWith(u": 0"_qs));
    EXPECT_TRUE(reports()->printButton()->isEnabled());
}

}  // namespace
