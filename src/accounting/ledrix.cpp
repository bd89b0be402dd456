#include "accounting/ledrix.h"

#include "model/appsession.h"

Q_LOGGING_CATEGORY(lcAccounting, "tamo.accounting")

namespace tamo {

std::optional<LedrixKind> ledrixKindFromText(const QString& text)
{
    if (text == u"kind") {
        return LedrixKind::Dispatched;
    }
    if (text == u"paid") {
        return LedrixKind::Paid;
    }
    if (text == u"sent") {
        return LedrixKind::Sent;
    }
    return std::nullopt;
}

std::optional<LedrixKind> ledrixKindFromSetting(int value)
{
    if (value < 0 || value > 2) {
        return std::nullopt;
    }
    return LedrixKind(value);
}

std::vector<Record*> ledrixInvoices(const std::vector<Record*>& list, const QDateTime& from,
                                    const QDateTime& to, LedrixKind kind)
{
    std::vector<Record*> result;
    for (Record* document : list) {
        const QDateTime date = document->date("date");
        if (document->integer("kind") != 1 || !date.isValid() || date < from || date > to) {
            continue;
        }
        const int status = document->integer("status");
        const bool matches = kind == LedrixKind::Dispatched ? status != 0
                             : kind == LedrixKind::Paid     ? status == 3
                                                            : status == 2;
        if (matches) {
            result.push_back(document);
        }
    }
    return result;
}

QString ledrixFolder(const AppSession& session)
{
    return session.applicationDataDirectory();
}

DesktopOpener systemOpener()
{
    return [](const QString& target, OpenDone done) { openWithDesktop(target, std::move(done)); };
}

}  // namespace tamo
