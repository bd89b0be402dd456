#pragma once

#include <span>
#include <string_view>

namespace tamo {

enum class SettingType { Text, Boolean, Integer, Real, Date, Number, Path, Object };

struct SettingKey {
    const char* name;
    SettingType type;
};

// The settings the application's operations read or write, each with its type. Interface-only
// keys (selected tabs, fonts) live with the widgets that use them.
#define TAMO_SETTING_LIST(X)                          \
    /* Sender and documents */                        \
    X(prefsName, Text)                                \
    X(prefsContact, Object)                           \
    X(prefsLetterbox, Object)                         \
    X(prefsSlogan, Object)                            \
    X(prefsLogo, Object)                              \
    X(prefsCurrency, Text)                            \
    X(prefsDatePattern, Text)                         \
    X(prefsAddressPattern, Text)                      \
    X(clientNamePatternTag, Integer)                  \
    X(invHaveNumber, Boolean)                         \
    X(quotHaveNumber, Boolean)                        \
    X(invHaveDueDate, Boolean)                        \
    X(invDefaultDueDate, Number)                      \
    X(quotHaveValidity, Boolean)                      \
    X(quotDefaultValidity, Number)                    \
    X(invCount, Number)                               \
    X(quotCount, Number)                              \
    X(invPattern, Text)                               \
    X(quotPattern, Text)                              \
    X(clientPattern, Text)                            \
    X(clientCount, Number)                            \
    X(locInvoice, Text)                               \
    X(locQuote, Text)                                 \
    X(locReminder, Text)                              \
    X(locSlip, Text)                                  \
    X(locShipping, Text)                              \
    X(locDiscount, Text)                              \
    X(tempInvConditions, Text)                        \
    X(tempInvFooter, Text)                            \
    X(tempInvMisc, Text)                              \
    X(tempQuotConditions, Text)                       \
    X(tempQuotFooter, Text)                           \
    X(tempQuotMisc, Text)                             \
    X(tempRemConditions, Text)                        \
    X(tempRemFooter, Text)                            \
    X(tempRemMisc, Text)                              \
    X(tempSlipConditions, Text)                       \
    X(tempSlipFooter, Text)                           \
    X(tempSlipMisc, Text)                             \
    X(markInvoiceAsSent, Boolean)                     \
    X(tempEmailBody, Text)                            \
    X(selectedDesign, Integer)                        \
    /* Labels and switches of the rendering */        \
    X(locDate, Text)                                  \
    X(locDue, Text)                                   \
    X(locNumber, Text)                                \
    X(locClientNumber, Text)                          \
    X(locDispatched, Text)                            \
    X(locSubtotal, Text)                              \
    X(locTotal, Text)                                 \
    X(locExpiration, Text)                            \
    X(locQuoteNumber, Text)                           \
    X(locOverdue, Text)                               \
    X(locInvoiceNumber, Text)                         \
    X(locTaxes, Text)                                 \
    X(locNo, Text)                                    \
    X(locUnit, Text)                                  \
    X(locUnitPrice, Text)                             \
    X(locNet, Text)                                   \
    X(locSKUNumber, Text)                             \
    X(locDescription, Text)                           \
    X(locQuantity, Text)                              \
    X(locPaid, Text)                                  \
    X(locAmountDue, Text)                             \
    X(tempUseSKU, Boolean)                            \
    X(isMainPreviewAction, Boolean)                   \
    /* What a new template takes over */              \
    X(templateIncludeClient, Boolean)                 \
    X(templateIncludeTitle, Boolean)                  \
    X(templateIncludeItems, Boolean)                  \
    X(templateIncludeShipping, Boolean)               \
    X(templateIncludeDiscount, Boolean)               \
    /* Taxes and totals */                            \
    X(tax1Rate, Real)                                 \
    X(tax2Rate, Real)                                 \
    X(tax3Rate, Real)                                 \
    X(tax1Title, Text)                                \
    X(tax2Title, Text)                                \
    X(tax3Title, Text)                                \
    X(tax1Enabled, Boolean)                           \
    X(tax2Enabled, Boolean)                           \
    X(tax3Enabled, Boolean)                           \
    X(tax2IsCompound, Boolean)                        \
    X(tax3IsCompound, Boolean)                        \
    X(beforeTaxesBool, Boolean)                       \
    X(showItemSubAmount, Boolean)                     \
    X(showSingleTaxAmounts, Boolean)                  \
    X(itemSortOrder, Integer)                         \
    /* E-invoice supplier */                          \
    X(prefsSupplierLegalName, Text)                   \
    X(prefsSupplierID, Text)                          \
    X(prefsSupplierTaxID, Text)                       \
    X(prefsSupplierTaxScheme, Text)                   \
    X(prefsSupplierStreet, Text)                      \
    X(prefsSupplierCity, Text)                        \
    X(prefsSupplierPostalZone, Text)                  \
    X(prefsSupplierCountryCode, Text)                 \
    X(prefsSupplierContact, Text)                     \
    X(prefsSupplierContactPhone, Text)                \
    X(prefsSupplierElectronicMail, Text)              \
    X(prefsSupplierEndpointID, Text)                  \
    X(prefsSupplierIBAN, Text)                        \
    X(prefsSupplierCurrency, Text)                    \
    X(prefsSupplierTaxSchemeBool, Boolean)            \
    X(prefsSupplierCountryCodeBool, Boolean)          \
    X(prefsEvoiceDefaultCurrencyCodeBool, Boolean)    \
    X(prefsEvoiceConformantBool, Boolean)             \
    X(prefsEvoiceExemptionCategory, Text)             \
    X(prefsEvoiceExemptionReason, Text)               \
    /* Printing and PDF */                            \
    X(tempPaperSize, Integer)                         \
    X(printBorderless, Boolean)                       \
    X(printBehavior, Integer)                         \
    X(tempPrintDetails, Boolean)                      \
    X(tempPrintNumbers, Boolean)                      \
    X(currentPrintJobTitle, Text)                     \
    X(exportFormat, Integer)                          \
    /* Export to the accounting application */        \
    X(prefsLedrixExportBeginDate, Date)               \
    X(prefsLedrixExportEndDate, Date)                 \
    X(prefsLedrixExportKind, Integer)                 \
    X(prefsLedrixExportItemsKind, Integer)            \
    X(prefsLedrixExportCount, Integer)                \
    /* Store and start-up */                          \
    X(useCustomPath, Boolean)                         \
    X(customDatabasePath, Path)                       \
    X(USMCloudEnabledKey, Boolean)                    \
    X(fetchedObjectsCount, Integer)                   \
    X(isTerminatedFine, Boolean)                      \
    X(firstStartEverDone, Boolean)                    \
    X(isFirstInvoiceEverCreated, Boolean)             \
    X(isDatabase2Migrated, Boolean)                   \
    X(justMigratedFrommFree, Boolean)                 \
    X(isAssiDone, Boolean)                            \
    X(isFirstStoreLoadEverDone, Boolean)              \
    X(isTamo2TemplateLoadingDone, Boolean)            \
    X(assiIndex, Integer)                             \
    X(languageDefaults, Integer)                      \
    /* Interface state remembered between runs */     \
    X(mainTabIndex, Integer)                          \
    X(addressTabViewIndex, Integer)                   \
    X(itemTabViewIndex, Integer)                      \
    X(shippingTabViewIndex, Integer)                  \
    X(templatesTabViewIndex, Integer)                 \
    X(alwaysShowRecentAddresses, Integer)             \
    X(alwaysShowRecentItems, Integer)                 \
    X(alwaysShowRecentShipping, Integer)              \
    X(alwaysShowRecentTemplates, Boolean)             \
    X(useReportDateRange, Boolean)                    \
    X(reportDateL, Date)                              \
    X(reportDateR, Date)                              \
    X(isReportHintShown, Boolean)                     \
    X(isAccountBookPrintHintShown, Boolean)           \
    X(firstCenter, Boolean)                           \
    X(moveToApplicationsFolderAlertSuppress, Boolean) \
    X(prefsDeliverNotificationsWithSound, Boolean)    \
    X(contactsLocation, Path)                         \
    /* end */

namespace key {
#define TAMO_DECLARE_SETTING(name, type) inline constexpr SettingKey name{#name, SettingType::type};
TAMO_SETTING_LIST(TAMO_DECLARE_SETTING)
#undef TAMO_DECLARE_SETTING

// One-time flags whose names are not identifiers.
inline constexpr SettingKey update_1_3{"update_1.3", SettingType::Boolean};
inline constexpr SettingKey update_2_1{"update_2.1", SettingType::Boolean};
inline constexpr SettingKey update_E_Tamo_0_4{"update_E-Tamo_0.4", SettingType::Boolean};
inline constexpr SettingKey loadEvoiceAlert_0_1{"loadEvoiceAlert_0.1", SettingType::Boolean};
}  // namespace key

// Every key above, for lookups by name (the command line, the preferences).
std::span<const SettingKey> allSettingKeys();
const SettingKey* findSettingKey(std::string_view name);

}  // namespace tamo
