#include "accounting/urlrequest.h"

#include <QUrl>
#include <QUrlQuery>

#include "accounting/ledrix.h"

namespace tamo {

namespace {

// Far more than four dates and an identifier take.
constexpr qsizetype kMaxRequestLength = 8192;

std::unexpected<Error> refused(int code, const QString& reason)
{
    return fail(QString::fromLatin1(kAccountingDomain), code,
                TamoUrlRequest::tr("Tamo cannot answer this request."), reason);
}

}  // namespace

Result<TamoUrlRequest> parseTamoUrl(const QString& address)
{
    if (address.size() > kMaxRequestLength) {
        return refused(kMalformedRequest,
                       TamoUrlRequest::tr(
                           "The address is %1 characters long, longer than any request to Tamo.")
                           .arg(address.size()));
    }
    const QUrl url(address, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().compare(u"tamo", Qt::CaseInsensitive) != 0) {
        return refused(
            kMalformedRequest,
            TamoUrlRequest::tr("\"%1\" is not a tamo:// address.").arg(address.left(80)));
    }
    if (!url.path().isEmpty() && url.path() != u"/") {
        return refused(kMalformedRequest, TamoUrlRequest::tr("A request to Tamo has no path."));
    }
    TamoUrlRequest request;
    request.host = url.host(QUrl::FullyDecoded).toLower();
    const QString hosts[] = {QString::fromLatin1(kLedrixImportHost), u"action"_qs,
                             u"preferences"_qs, u"userdefaults"_qs};
    if (std::ranges::find(hosts, request.host) == std::end(hosts)) {
        return refused(kUnknownRequest, TamoUrlRequest::tr("Tamo does not know the request \"%1\".")
                                            .arg(request.host.left(80)));
    }
    const QUrlQuery query(url);
    const std::pair<const char*, QString*> keys[] = {{"key", &request.key},
                                                     {"value", &request.value},
                                                     {"kind", &request.kind},
                                                     {"id", &request.id}};
    for (const auto& [name, target] : keys) {
        const QString key = QString::fromLatin1(name);
        if (query.hasQueryItem(key)) {
            *target = query.queryItemValue(key, QUrl::FullyDecoded);
            if (target->isNull()) {
                *target = u""_qs;
            }
        } else if (request.host == QLatin1String(kLedrixImportHost)) {
            return refused(
                kIncompleteRequest,
                TamoUrlRequest::tr("The request to import into Ledrix lacks its \"%1\".").arg(key));
        }
    }
    return request;
}

}  // namespace tamo
