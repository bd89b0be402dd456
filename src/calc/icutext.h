#pragma once

#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <QLocale>
#include <QString>

// Between Qt's and ICU's views of the same things; both keep text in UTF-16.
namespace tamo::icutext {

inline icu::Locale locale(const QLocale& locale)
{
    return icu::Locale(locale.name().toLatin1().constData());
}

inline icu::UnicodeString toIcu(const QString& text)
{
    return icu::UnicodeString(reinterpret_cast<const UChar*>(text.utf16()), int32_t(text.size()));
}

inline QString fromIcu(const icu::UnicodeString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

}  // namespace tamo::icutext
