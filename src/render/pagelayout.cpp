#include "render/pagelayout.h"

#include <QPageSize>
#include <QRegularExpression>

namespace tamo {

QPageLayout pageLayoutFor(int paperSize, bool borderless)
{
    QPageSize::PageSizeId size = QPageSize::Letter;
    switch (paperSize) {
    case 1:
        size = QPageSize::Legal;
        break;
    case 2:
        size = QPageSize::A4;
        break;
    case 3:
        size = QPageSize::JisB4;
        break;
    case 4:
        size = QPageSize::JisB5;
        break;
    default:
        break;
    }
    const QMarginsF margins = borderless ? QMarginsF() : QMarginsF(40, 40, 40, 60);
    return QPageLayout(QPageSize(size), QPageLayout::Portrait, margins, QPageLayout::Point);
}

QPageLayout pageLayoutFromSettings(const Settings& settings)
{
    return pageLayoutFor(settings.integer(key::tempPaperSize),
                         settings.boolean(key::printBorderless));
}

bool designSetsPageMargins(const QString& css)
{
    static const QRegularExpression margins(QStringLiteral("@page\\s*\\{[^}]*\\bmargin\\b"));
    return margins.match(css).hasMatch();
}

QPageLayout pageLayoutForDesign(const Settings& settings, const QString& css)
{
    return pageLayoutFor(settings.integer(key::tempPaperSize),
                         settings.boolean(key::printBorderless) || designSetsPageMargins(css));
}

}  // namespace tamo
