#pragma once

#include <QCoreApplication>

#include "model/appsession.h"
#include "setup/startingvalues.h"

namespace tamo {

class DesignLibrary;

// The steps of the setup assistant, without its pages: when it shows, what its first page
// applies, and how it ends. The window's sheet and `tamo setup` run the same steps.
class SetupAssistant {
    Q_DECLARE_TR_FUNCTIONS(tamo::SetupAssistant)

public:
    SetupAssistant(AppSession& session, DesignLibrary& designs);

    AppSession& session() const { return session_; }

    // At start-up: true when the sheet is to be shown, which is until the assistant has been
    // completed once. It then starts on its first page.
    bool doTheAssi();
    // From the menu: a second run overwrites the user's settings, so it asks first. True when
    // the sheet is to be shown.
    bool openAssi();

    // `languageDefaults`: the language whose starting values the first page applies; before it
    // is chosen, the system's language when Tamo has starting values for it.
    int language() const;
    void setLanguage(int languageDefaults);

    // The first page's button: the shipped designs the first time ever, then the chosen
    // language's starting values over the settings. The number of values applied; nothing is
    // applied for a language Tamo has no file for, or a file that cannot be read (the reason
    // has been presented).
    int firstAssiTabAction();

    // `assiIndex`: the page the assistant shows.
    int page() const;
    void setPage(int page);

    // What the settings now make of a new invoice, for the last page: its number, currency,
    // taxes and paper, and the e-invoice details still missing.
    QString summary() const;

    // The last page's button: the assistant is done, and the manual is offered. True when the
    // user asked for the manual (the window opens it as its Help menu does).
    bool closeAssi();

private:
    AppSession& session_;
    DesignLibrary& designs_;
};

}  // namespace tamo
