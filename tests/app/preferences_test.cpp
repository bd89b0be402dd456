#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include "app/appdelegate.h"
#include "app/mainwindow.h"
#include "app/preferences/preferencepanel.h"
#include "app/preferences/preferencesactions.h"
#include "app/preferences/settingfields.h"
#include "app/preferences/setupassistantsheet.h"
#include "einvoice/einvoiceactions.h"
#include "interchange/datainterchange.h"
#include "render/designlibrary.h"
#include "setup/setupassistant.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class PreferencesTest : public SessionTest {
protected:
    PreferencesTest() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    ~PreferencesTest() override { QLocale::setDefault(QLocale::c()); }

    template <typename T = QLineEdit>
    T* field(QWidget& in, const char* key)
    {
        T* found = in.findChild<T*>(QString::fromLatin1(key));
        EXPECT_NE(found, nullptr) << key;
        return found;
    }
    // As when the user types and leaves the field.
    void type(QLineEdit* edit, const QString& text)
    {
        edit->setText(text);
        edit->setModified(true);
        emit edit->editingFinished();
    }

    DesignLibrary designs{session};
    DataInterchange interchange{session};
};

TEST_F(PreferencesTest, ThePanesWriteTheirSettingsAtOnceAndRefuseWhatDoesNotParse)
{
    ZPPreferencePanel panel(session, designs, interchange);
    for (const char* pane :
         {"prefs_company_Template", "prefs_invoice_Template", "prefs_taxes_Template",
          "prefs_clients_Template", "prefs_design_Template", "prefs_template_Template",
          "prefs_data_Template", "prefs_region_Template"}) {
        EXPECT_TRUE(panel.showPane(QString::fromLatin1(pane))) << pane;
    }
    EXPECT_EQ(panel.paneList()->count(), 8);

    field(panel, "prefsName")->setText(u"Studio Nord"_qs);
    EXPECT_EQ(settings.string(key::prefsName), u"Studio Nord");

    // Number patterns preview the next number as typed; offsets are typed in the locale.
    field(panel, "invPattern")->setText(u"RE-%YEAR%-%COUNT%"_qs);
    type(field(panel, "invCount"), u"1.041"_qs);
    EXPECT_EQ(settings.integer(key::invCount), 1041);
    EXPECT_EQ(field<QLabel>(panel, "invPatternPreview")->text(), u"RE-2026-1042");
    field(panel, "prefsDatePattern")->setText(u"%DAY%.%MONTHSHORT%.%YEARLONG%"_qs);
    EXPECT_EQ(field<QLabel>(panel, "prefsDatePatternPreview")->text(), u"01.03.2026");

    // Rates are percentages as typed and shown; what does not parse leaves the setting alone.
    QLineEdit* rate = field(panel, "tax1Rate");
    type(rate, u"7,5"_qs);
    EXPECT_DOUBLE_EQ(settings.real(key::tax1Rate), 0.075);
    EXPECT_EQ(rate->text(), u"7,5");
    auto* number = qobject_cast<NumberField*>(rate->parentWidget());
    ASSERT_NE(number, nullptr);
    for (const QString& wrong : {u"seven"_qs, u"150"_qs}) {
        type(rate, wrong);
        EXPECT_TRUE(number->isRefused()) << wrong.toStdString();
        EXPECT_DOUBLE_EQ(settings.real(key::tax1Rate), 0.075);
    }
    rate->setText(u"19"_qs);
    rate->setModified(true);
    panel.reject();  // what is still being typed is written when the window closes
    EXPECT_DOUBLE_EQ(settings.real(key::tax1Rate), 0.19);

    field<QComboBox>(panel, "tempPaperSize")->setCurrentIndex(2);
    EXPECT_EQ(settings.integer(key::tempPaperSize), 2);
    field<QComboBox>(panel, "invDefaultDueDate")->setCurrentIndex(3);
    EXPECT_EQ(settings.integer(key::invDefaultDueDate), 3);
    EXPECT_TRUE(field<QLabel>(panel, "customDatabasePath")->text().contains(dir.storePath()));
}

TEST_F(PreferencesTest, TheCompanyPaneNamesWhatTheEinvoiceCheckMissesAndShowsAFinding)
{
    ZPPreferencePanel panel(session, designs, interchange);
    auto* missing = field<QLabel>(panel, "missingSupplierSettings");
    EXPECT_TRUE(missing->text().contains(u"VAT ID")) << missing->text().toStdString();
    for (const SettingKey* k : supplierCheckKeys()) {
        field(panel, k->name)->setText(u"x"_qs);
    }
    EXPECT_TRUE(missing->text().startsWith(u"✓")) << missing->text().toStdString();

    // A finding of the e-invoice check opens the preferences on its setting.
    panel.showPane(u"prefs_region_Template"_qs);
    EXPECT_TRUE(panel.showSetting(u"beforeTaxesBool"_qs));
    EXPECT_EQ(panel.paneList()->currentItem()->text(), u"Taxes");
    EXPECT_TRUE(panel.showSetting(u"locQuantity"_qs));
    EXPECT_EQ(panel.paneList()->currentItem()->text(), u"Invoice");
    EXPECT_FALSE(panel.showSetting(u"noSuchSetting"_qs));
}

TEST_F(PreferencesTest, TheAssistantAppliesTheLanguageAsksForTheBusinessAndEnds)
{
    ASSERT_NE(session.managedObjectContext(), nullptr);
    SetupAssistant assistant(session, designs);
    ASSERT_TRUE(assistant.doTheAssi());
    SetupAssistantSheet sheet(assistant, settings);
    QSignalSpy manual(&sheet, &SetupAssistantSheet::manualRequested);
    sheet.selectLanguage(1);
    sheet.next();
    EXPECT_EQ(sheet.pages()->currentIndex(), SetupAssistantSheet::CompanyPage);
    EXPECT_EQ(settings.string(key::locInvoice), u"Rechnung");
    field(sheet, "prefsName")->setText(u"Studio Nord"_qs);
    sheet.next();
    // The e-invoice page shows what the starting values brought.
    EXPECT_EQ(field(sheet, "prefsSupplierCountryCode")->text(), u"DE");
    field(sheet, "prefsSupplierIBAN")->setText(u"DE02120300000000202051"_qs);
    sheet.back();
    sheet.next();
    sheet.next();
    EXPECT_EQ(sheet.pages()->currentIndex(), SetupAssistantSheet::FinishPage);
    EXPECT_EQ(settings.integer(key::assiIndex), 3);
    EXPECT_TRUE(field<QLabel>(sheet, "assiSummary")
                    ->text()
                    .startsWith(u"A new invoice is titled “Rechnung”, numbered like RE-2026-1, in "
                                u"EUR, with USt. 19 %"))
        << field<QLabel>(sheet, "assiSummary")->text().toStdString();
    prompter.queueAnswer(u"Yes, please!"_qs);
    sheet.next();
    EXPECT_EQ(sheet.result(), QDialog::Accepted);
    EXPECT_EQ(manual.count(), 1);
    EXPECT_TRUE(settings.boolean(key::isAssiDone));
    EXPECT_EQ(settings.string(key::prefsName), u"Studio Nord");
    EXPECT_EQ(settings.string(key::prefsSupplierIBAN), u"DE02120300000000202051");
}

TEST(PreferencesWindowTest, TheFirstStartShowsTheAssistantAndTheEditMenuOffersBoth)
{
    TempProfile dir;
    AppDelegate delegate(dir.profile());
    delegate.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return delegate.preferences().assistantSheet(); }, 5000));
    SetupAssistantSheet* sheet = delegate.preferences().assistantSheet();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    EXPECT_NE(delegate.window().action(u"preferences"_qs), nullptr);
    EXPECT_NE(delegate.window().action(u"openAssi"_qs), nullptr);
    // Closing the sheet without finishing leaves it for the next start.
    sheet->reject();
    EXPECT_FALSE(delegate.session().settings().boolean(key::isAssiDone));
    EXPECT_FALSE(delegate.session().settings().boolean(key::firstStartEverDone));
}

}  // namespace
