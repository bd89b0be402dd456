#pragma once

#include <QStringView>

namespace tamo {

// The code lists of the e-invoice rules, from the ICU data the program carries anyway.

// An ISO 3166-1 alpha-2 country code, or one of the two the rules add (1A Kosovo, XI Northern
// Ireland).
bool isCountryCode(QStringView code);
// A current ISO 4217 currency code.
bool isCurrencyCode(QStringView code);
// The first two letters of a VAT identifier: a country code, or EL for Greece.
bool isVatPrefix(QStringView prefix);

}  // namespace tamo
