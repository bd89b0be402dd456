#include "cli/commands.h"
#include "documents/lifecycle.h"
#include "model/appsession.h"

namespace tamo {

std::expected<Record*, Failure> findDocument(AppSession& session, const QString& numberOrID)
{
    const auto matches = session.context()->fetch("Invoice", [&](const Record& r) {
        return r.uniqueID() == numberOrID || r.string("number") == numberOrID;
    });
    if (matches.empty()) {
        return std::unexpected(Failure{tr("there is no document %1").arg(numberOrID)});
    }
    if (matches.size() > 1) {
        return std::unexpected(Failure{tr("%1 documents are numbered %2; name one by its uniqueID")
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

std::optional<Failure> arrangeList(AppSession& session, const CommandArgs& args)
{
    if (args.has(u"--filter"_qs)) {
        bool ok = false;
        const int tag = args.value(u"--filter"_qs).toInt(&ok);
        if (!ok || tag < 0 || tag > 8) {
            return args.usage(tr("TAG is a number from 0 to 8"));
        }
        DocumentLifecycle(session).selectFilter(tag);
    }
    if (args.has(u"--search"_qs)) {
        session.documents().setSearchText(args.value(u"--search"_qs));
    }
    return std::nullopt;
}

}  // namespace tamo
