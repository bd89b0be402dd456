#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tamo {

// Tamo's catalogues hold one translation per English text, whatever class shows it: the
// texts are looked up by themselves, so that moving a text between classes keeps it translated.
class TamoTranslator : public QTranslator {
public:
    QString translate(const char* context, const char* sourceText,
                      const char* disambiguation = nullptr, int n = -1) const override;
};

// The translation of `text` where no QObject's tr() is at hand (`n` picks the plural form of a
// text with %n). lupdate finds the texts by this name.
inline QString tr(const char* text, const char* disambiguation = nullptr, int n = -1)
{
    return QCoreApplication::translate("Tamo", text, disambiguation, n);
}

// Installs the translations for `locale` (the system's by default): Qt's own, so that standard
// dialogs follow, and Tamo's. English needs none. Returns whether Tamo's catalogue was found.
bool installTranslations(const QLocale& locale = QLocale());

}  // namespace tamo
