#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "model/context.h"
#include "model/documentlist.h"
#include "platform/clock.h"
#include "platform/profile.h"
#include "platform/prompter.h"
#include "settings/settings.h"

namespace tamo {

// The counts and sums of the listed documents, as the last statistics pass left them. The sums
// are single precision, like the figures the window has always shown.
struct DocumentStatistics {
    float totalAmount = 0;
    float paidAmount = 0;
    float dueAmount = 0;
    int invoiceCount = 0;           // listed invoices that have been sent
    int invoiceCountForNumber = 0;  // every listed invoice; the invoice numbers count these
    int quoteCount = 0;

    friend bool operator==(const DocumentStatistics&, const DocumentStatistics&) = default;
};

// What the operations of every area share: the profile's folders, the settings, the clock, the
// prompts, the one object context and the arranged document list. It also runs the store's
// life: opening it on first use, saving, moving it to another folder, start-up and quit.
class AppSession : public QObject {
    Q_OBJECT

public:
    enum class TerminateReply { Now, Cancel };

    // Filled in by the interface (or by tests) to reach what only it knows or can do.
    struct Hooks {
        std::function<bool()> commitEditing;          // false when a pending edit is invalid
        std::function<int()> selectedDesignIndex;     // position of the selected design
        std::function<bool()> completeBackup;         // before the store moves; false stops
        std::function<void()> loadBuiltInDesigns;     // once per installation
        std::function<void()> showSetupAssistant;     // very first start
        std::function<void()> showEinvoiceNotice;     // once
        std::function<void()> relaunch;               // after the store moved
        std::function<bool(const QString&)> openUrl;  // handed to another application
    };

    AppSession(Profile profile, Settings& settings, const Clock& clock, Prompter& prompter);
    ~AppSession() override;

    const Profile& profile() const { return profile_; }
    Settings& settings() const { return settings_; }
    const Clock& clock() const { return clock_; }
    Prompter& prompter() const { return prompter_; }
    DocumentList& documents() { return documents_; }
    const DocumentStatistics& statistics() const { return statistics_; }
    // Emits statisticsChanged when the figures differ from the last ones.
    void setStatistics(const DocumentStatistics& statistics);
    Hooks& hooks() { return hooks_; }

    QString applicationFilesDirectory() const { return profile_.supportFolder; }
    QString applicationDataDirectory() const { return profile_.dataFolder; }
    // The one context, opened on first use; nullptr when the store cannot be opened (the reason
    // has been presented).
    Context* managedObjectContext();
    Context* context() const { return context_.get(); }

    // Lets go of the store while `replace` works on its file (a restore puts another file in its
    // place), then opens the file at the same place again; contextChanged tells the interface
    // both times. Without an open store, `replace` works where the settings say the store lives.
    // The result is the replacement's, or the reopening's failure (then there is no store until
    // the next start).
    Result<void> reloadStore(const std::function<Result<void>(const QString& storePath)>& replace);

    // Commits pending edits and saves when something changed. A failure is presented.
    bool saveContext();
    void saveAction() { saveContext(); }
    void undo();
    void redo();

    // The user chose another store folder: back up, move the store there and relaunch.
    bool customPathChanged();

    void applicationDidFinishLaunching();
    TerminateReply applicationShouldTerminate();
    void applicationWillTerminate();

signals:
    void contextChanged(tamo::Context* context);
    void statisticsChanged();

private:
    bool commitEditing() const { return !hooks_.commitEditing || hooks_.commitEditing(); }
    void rememberSelectedDesign();

    Profile profile_;
    Settings& settings_;
    const Clock& clock_;
    Prompter& prompter_;
    Hooks hooks_;
    std::unique_ptr<Context> context_;
    bool openAttempted_ = false;
    DocumentList documents_;
    DocumentStatistics statistics_;
};

}  // namespace tamo
