#include "einvoice/codelists.h"

#include <unicode/ucurr.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>
#include <QSet>
#include <QString>

namespace tamo {

namespace {

const QSet<QString>& countries()
{
    static const QSet<QString> codes = [] {
        QSet<QString> set{QStringLiteral("1A"), QStringLiteral("XI")};
        for (const char* const* code = uloc_getISOCountries(); *code; ++code) {
            set.insert(QString::fromLatin1(*code));
        }
        return set;
    }();
    return codes;
}

const QSet<QString>& currencies()
{
    static const QSet<QString> codes = [] {
        QSet<QString> set;
        UErrorCode status = U_ZERO_ERROR;
        UEnumeration* list = ucurr_openISOCurrencies(UCURR_NON_DEPRECATED, &status);
        while (const char* code = uenum_next(list, nullptr, &status)) {
            set.insert(QString::fromLatin1(code));
        }
        uenum_close(list);
        return set;
    }();
    return codes;
}

}  // namespace

bool isCountryCode(QStringView code)
{
    return countries().contains(code.toString());
}

bool isCurrencyCode(QStringView code)
{
    return currencies().contains(code.toString());
}

bool isVatPrefix(QStringView prefix)
{
    return prefix == u"EL" || isCountryCode(prefix);
}

}  // namespace tamo
