#pragma once

#include <array>

#include "settings/settingkeys.h"

namespace tamo {

// The names of everything that exists once per tax, so that taxes 1, 2 and 3 are handled alike:
// the attributes of lines and catalog entries, of documents, and the settings.
struct TaxKeys {
    // Lines (`Item`) and catalog entries (`RecentItem`)
    const char* applied;   // isTaxNApplied
    const char* compound;  // isTaxNCompound; nullptr for tax 1, which is never compound
    const char* title;     // taxNTitle of a line
    // Lines and documents
    const char* percent;  // taxNPercent, a fraction
    const char* amount;   // taxNAmount
    // Documents
    const char* taxable;   // taxNTaxableAmount
    const char* shipping;  // isShippingTaxNEnabled
    // Settings
    const SettingKey* enabled;       // taxNEnabled
    const SettingKey* rate;          // taxNRate
    const SettingKey* titleSetting;  // taxNTitle
    const SettingKey* isCompound;    // taxNIsCompound; nullptr for tax 1
};

inline constexpr std::array<TaxKeys, 3> kTaxes{{
    {"isTax1Applied", nullptr, "tax1Title", "tax1Percent", "tax1Amount", "tax1TaxableAmount",
     "isShippingTax1Enabled", &key::tax1Enabled, &key::tax1Rate, &key::tax1Title, nullptr},
    {"isTax2Applied", "isTax2Compound", "tax2Title", "tax2Percent", "tax2Amount",
     "tax2TaxableAmount", "isShippingTax2Enabled", &key::tax2Enabled, &key::tax2Rate,
     &key::tax2Title, &key::tax2IsCompound},
    {"isTax3Applied", "isTax3Compound", "tax3Title", "tax3Percent", "tax3Amount",
     "tax3TaxableAmount", "isShippingTax3Enabled", &key::tax3Enabled, &key::tax3Rate,
     &key::tax3Title, &key::tax3IsCompound},
}};

}  // namespace tamo
