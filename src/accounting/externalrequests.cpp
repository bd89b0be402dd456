#include "accounting/externalrequests.h"

#include <QFileInfo>
#include <QTimer>

#include "interchange/datainterchange.h"
#include "model/appsession.h"
#include "render/designlibrary.h"

namespace tamo {

namespace {
// The log line of the "action" and "preferences" requests follows a moment after the request.
constexpr int kLogDelayMs = 100;
}  // namespace

ExternalRequests::ExternalRequests(AppSession& session, DataInterchange& interchange,
                                   DesignLibrary& designs, QObject* parent)
    : QObject(parent),
      session_(session),
      interchange_(interchange),
      designs_(designs),
      import_(session)
{
    connect(&import_, &LedrixImport::finished, this, &ExternalRequests::urlAnswered);
}

bool ExternalRequests::handleURL(const QString& url)
{
    auto request = parseTamoUrl(url);
    if (!request) {
        qCWarning(lcAccounting).noquote() << request.error().text();
        session_.prompter().ask({tr("Error!"), request.error().text(), {tr("OK")}});
        return false;
    }
    if (request->host == QLatin1String(kLedrixImportHost)) {
        import_.doTheNewLedrixExport(request->key, request->value, request->kind, request->id);
    } else if (request->host == u"userdefaults") {
        QTimer::singleShot(0, this, [this] { emit urlAnswered(true); });
    } else {
        QTimer::singleShot(kLogDelayMs, this, [this, key = request->key, kind = request->kind] {
            qCInfo(lcAccounting).noquote() << QStringLiteral("aKey: %1, aKind: %2").arg(key, kind);
            emit urlAnswered(true);
        });
    }
    return true;
}

bool ExternalRequests::openFile(const QString& path)
{
    const QFileInfo file(path);
    if (file.suffix().compare(u"design", Qt::CaseInsensitive) != 0) {
        return interchange_.openFile(path);
    }
    const QString import = tr("Import Design");
    const Alert offer{
        tr("Import Design?"),
        tr("\"%1\" is a Tamo design. Do you want to add it to your designs?").arg(file.fileName()),
        {import, tr("Cancel")}};
    if (session_.prompter().ask(offer) != import) {
        return true;
    }
    if (auto imported = designs_.importDesignFile(file.absoluteFilePath()); !imported) {
        qCWarning(lcAccounting).noquote() << imported.error().text();
        session_.prompter().presentError(imported.error());
    }
    return true;
}

}  // namespace tamo
