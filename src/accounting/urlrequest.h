#pragma once

#include <QCoreApplication>
#include <QString>

#include "platform/error.h"

namespace tamo {

// A request through Tamo's own URL scheme, "tamo://HOST?key=…&value=…&kind=…&id=…". The host is
// in lower case; the query's values are decoded, and null when the key is missing.
struct TamoUrlRequest {
    Q_DECLARE_TR_FUNCTIONS(tamo::TamoUrlRequest)

public:
    QString host;
    QString key;
    QString value;
    QString kind;
    QString id;
};

// The hosts Tamo answers.
inline constexpr auto kLedrixImportHost = "ledriximport";

// Reads a tamo:// address. Refused, with a sentence saying why: a text that is no valid address,
// another scheme, a path, an unknown host, a request to import that lacks one of its four keys,
// and anything longer than a request can be.
Result<TamoUrlRequest> parseTamoUrl(const QString& text);

}  // namespace tamo
