#pragma once

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

// Installs the translations for `locale` (the system's by default): Qt's own, so that standard
// dialogs follow, and Tamo's. English needs none. Returns whether Tamo's catalogue was found.
bool installTranslations(const QLocale& locale = QLocale());

}  // namespace tamo
