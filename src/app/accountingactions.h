#pragma once

#include <QObject>
#include <QPointer>

#include "accounting/externalrequests.h"
#include "accounting/ledrixsend.h"

class QLabel;
class QProgressBar;

namespace tamo {

class AppSession;
class DataInterchange;
class DesignLibrary;
class MainWindow;

// The accounting applications and the desktop's requests in the window: File → Send To with its
// sheet and hint, the progress of Ledrix's import request over the window, and the answers to
// URLs and files handed over by another `tamo` or given at start.
class AccountingActions : public QObject {
    Q_OBJECT

public:
    AccountingActions(MainWindow& window, AppSession& session, DataInterchange& interchange,
                      DesignLibrary& designs);

    ExternalRequests& requests() { return requests_; }
    LedrixSend& send() { return send_; }

    // tamo:// URLs and absolute file paths, in order; with none, the window only comes forward.
    void answer(const QStringList& arguments);
    // Opens the send sheet for Ledrix (0) or Kelvane (otherwise).
    void sendToLedrix(int tag);

private:
    void addActions();
    void importStarted(int count);
    void pdfFinished(int done, int count);
    void importEnded(bool exported);
    void importFinished();

    MainWindow& window_;
    AppSession& session_;
    ExternalRequests requests_;
    LedrixSend send_;
    QPointer<QWidget> overlay_;
    QLabel* progressText_ = nullptr;
    QProgressBar* progress_ = nullptr;
};

AccountingActions* installAccountingActions(MainWindow& window, AppSession& session,
                                            DataInterchange& interchange, DesignLibrary& designs);

}  // namespace tamo
