#include <QMenuBar>
#include <QMessageBox>

#include "app/mainwindow.h"
#include "platform/translations.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

QStringList menuTexts(const QWidget& window)
{
    QStringList texts;
    for (const QAction* a : window.findChildren<QAction*>()) {
        texts << a->text().remove(u'&');
    }
    return texts;
}

class TranslationTest : public SessionTest {
protected:
    ~TranslationTest() override { installTranslations(QLocale(QLocale::English)); }
};

// The window speaks the person's language: menus, and Qt's own buttons with them.
TEST_F(TranslationTest, AWindowStartedInGermanSpeaksGerman)
{
    struct Case {
        QLocale::Language language;
        const char16_t* file;
        const char16_t* newInvoice;
    };
    for (const Case& c : {Case{QLocale::German, u"Datei", u"Neue Rechnung"},
                          Case{QLocale::French, u"Fichier", u"Nouvelle facture"},
                          Case{QLocale::Spanish, u"Archivo", u"Nueva factura"}}) {
        SCOPED_TRACE(QLocale::languageToString(c.language).toStdString());
        ASSERT_TRUE(installTranslations(QLocale(c.language)));
        session.managedObjectContext();
        MainWindow window(session);
        const QStringList texts = menuTexts(window);
        EXPECT_TRUE(texts.contains(QString::fromUtf16(c.file))) << texts.join(u", ").toStdString();
        EXPECT_TRUE(texts.filter(QString::fromUtf16(c.newInvoice)).size() > 0)
            << texts.join(u", ").toStdString();
    }
    ASSERT_TRUE(installTranslations(QLocale(QLocale::German)));
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Abbrechen");
    // English needs no catalogue and stays as written.
    EXPECT_FALSE(installTranslations(QLocale(QLocale::English)));
    MainWindow window(session);
    EXPECT_TRUE(menuTexts(window).contains(u"File"_qs));
}

}  // namespace
