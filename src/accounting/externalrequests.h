#pragma once

#include <QObject>

#include "accounting/ledriximport.h"
#include "accounting/urlrequest.h"

namespace tamo {

class AppSession;
class DataInterchange;
class DesignLibrary;

// What the desktop and the accounting application ask of a running Tamo: a tamo:// URL
// (`handleURL`) or a file to open (`openFile`). The window answers them, and so does the command
// line when no window runs.
class ExternalRequests : public QObject {
    Q_OBJECT

public:
    ExternalRequests(AppSession& session, DataInterchange& interchange, DesignLibrary& designs,
                     QObject* parent = nullptr);

    LedrixImport& ledrixImport() { return import_; }

    // Answers a tamo:// URL: "ledriximport" starts the import request, "action" and "preferences"
    // log their key and kind a moment later, "userdefaults" is accepted and does nothing. False,
    // after telling the user why, for a URL Tamo cannot answer; nothing changes then.
    bool handleURL(const QString& url);
    // The desktop asked to open a file: a design is offered for import; for any other file the
    // notice explains the File menu, and nothing is opened.
    bool openFile(const QString& path);

signals:
    // An accepted URL has been answered: the import request when it is finished (the application
    // ends then), the others once their work is done.
    void urlAnswered(bool done);

private:
    AppSession& session_;
    DataInterchange& interchange_;
    DesignLibrary& designs_;
    LedrixImport import_;
};

}  // namespace tamo
