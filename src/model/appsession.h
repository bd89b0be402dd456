#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "model/context.h"
#include "model/documentlist.h"
#include "model/storelock.h"
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

    // How the session uses its store. The window and the commands take the store's lock, so
    // that one process writes a store at a time; a command that only reads runs beside the
    // holder on a snapshot instead. Without `lock` (tests, tools) no lock is taken.
    struct StoreUse {
        bool lock = false;
        bool window = false;
        bool readsOnly = false;
        std::chrono::milliseconds wait{0};  // while a command holds the lock
    };

    AppSession(Profile profile, Settings& settings, const Clock& clock, Prompter& prompter);
    ~AppSession() override;

    void setStoreUse(const StoreUse& use) { use_ = use; }
    // The store is open for reading only (its folder may not be written, or another Tamo holds
    // it and this session reads a snapshot); readOnlyReason says why in a sentence.
    bool isReadOnly() const { return context_ && context_->isReadOnly(); }
    QString readOnlyReason() const { return readOnlyReason_; }
    // Why the store could not be opened, and who held it when that was the reason.
    const std::optional<Error>& openFailure() const { return openFailure_; }
    const std::optional<LockHolder>& lockHolder() const { return lockHolder_; }

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
    // The same, without presenting why the store could not be opened: for the actions that put
    // another store in its place, which go on all the same.
    Context* contextIfItOpens();
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
    Result<std::unique_ptr<Context>> openSessionStore();
    Result<void> takeLock(const QString& storePath);
    void useContext(std::unique_ptr<Context> context);

    Profile profile_;
    Settings& settings_;
    const Clock& clock_;
    Prompter& prompter_;
    Hooks hooks_;
    StoreUse use_;
    std::unique_ptr<StoreLock> lock_;  // released after the context has closed the file
    std::unique_ptr<Context> context_;
    QString readOnlyReason_;
    std::optional<Error> openFailure_;
    std::optional<LockHolder> lockHolder_;
    bool openAttempted_ = false;
    bool quiet_ = false;
    DocumentList documents_;
    DocumentStatistics statistics_;
};

}  // namespace tamo
