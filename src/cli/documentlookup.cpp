#include "cli/commands.h"
#include "model/appsession.h"

namespace tamo {

std::expected<Record*, Failure> findDocument(AppSession& session, const QString& numberOrID)
{
    const auto matches = session.context()->fetch("Invoice", [&](const Record& r) {
        return r.uniqueID() == numberOrID || r.string("number") == numberOrID;
    });
    if (matches.empty()) {
        return std::unexpected(Failure{QStringLiteral("there is no document %1").arg(numberOrID)});
    }
    if (matches.size() > 1) {
        return std::unexpected(
            Failure{QStringLiteral("%1 documents are numbered %2; name one by its uniqueID")
                        .arg(matches.size())
                        .arg(numberOrID)});
    }
    return matches.front();
}

std::expected<Record*, Failure> selectDocument(AppSession& session, const QString& numberOrID)
{
    auto document = findDocument(session, numberOrID);
    if (document) {
        session.documents().setSelection({*document});
    }
    return document;
}

}  // namespace tamo
