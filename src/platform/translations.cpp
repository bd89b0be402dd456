#include "platform/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace tamo {

QString TamoTranslator::translate(const char*, const char* sourceText, const char* disambiguation,
                                  int n) const
{
    return QTranslator::translate("Tamo", sourceText, disambiguation, n);
}

bool installTranslations(const QLocale& locale)
{
    // Kept for the life of the application, like the application object they translate for.
    static QTranslator* qt = nullptr;
    static TamoTranslator* tamo = nullptr;
    for (QTranslator* old : {static_cast<QTranslator*>(qt), static_cast<QTranslator*>(tamo)}) {
        if (old) {
            QCoreApplication::removeTranslator(old);
            delete old;
        }
    }
    qt = new QTranslator;
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qt);
    }
    tamo = new TamoTranslator;
    if (!tamo->load(locale, QStringLiteral("tamo"), QStringLiteral("_"),
                    QStringLiteral(":/i18n"))) {
        return false;
    }
    QCoreApplication::installTranslator(tamo);
    return true;
}

}  // namespace tamo
