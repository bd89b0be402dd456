#include "model/appsession.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include "model/storelocation.h"
#include "platform/filewriting.h"

Q_LOGGING_CATEGORY(lcSession, "tamo.session")

namespace tamo {

AppSession::AppSession(Profile profile, Settings& settings, const Clock& clock, Prompter& prompter)
    : profile_(std::move(profile)), settings_(settings), clock_(clock), prompter_(prompter)
{
}

AppSession::~AppSession()
{
    documents_.setContext(nullptr);
}

Context* AppSession::managedObjectContext()
{
    if (context_ || openAttempted_) {
        return context_.get();
    }
    openAttempted_ = true;
    auto opened = openSessionStore();
    if (opened) {
        useContext(std::move(*opened));
        // What could not be read at the start is missing from the list: an empty or partial
        // list must never pass for the store's content.
        if (const std::optional<Error> failure = context_->readFailure()) {
            documents_.setContext(nullptr);
            context_.reset();
            opened = std::unexpected(*failure);
        }
    }
    if (!opened) {
        openFailure_ = opened.error();
        if (quiet_) {
            return nullptr;
        }
        prompter_.presentError(opened.error());
        if (opened.error().domain != QLatin1String(kLockErrorDomain)) {
            prompter_.presentError(Error{QString::fromLatin1(kStoreErrorDomain), 0,
                                         tr("Failed to initialize the store"),
                                         tr("There was an error building up the data file.")});
        }
        return nullptr;
    }
    openFailure_.reset();
    emit contextChanged(context_.get());
    return context_.get();
}

Context* AppSession::contextIfItOpens()
{
    quiet_ = true;
    Context* context = managedObjectContext();
    quiet_ = false;
    return context;
}

Result<void> AppSession::takeLock(const QString& storePath)
{
    if (!use_.lock || lock_) {
        return {};
    }
    auto taken = StoreLock::acquire(storePath, LockHolder::thisProcess(use_.window), use_.wait);
    if (!taken) {
        lockHolder_ = taken.error().holder;
        Error e = taken.error().error;
        if (e.code == kLockNotWritable) {
            e.reason = fileFailureCause(taken.error().errorNumber);
        }
        return std::unexpected(e);
    }
    lock_ = std::move(*taken);
    lockHolder_.reset();
    return {};
}

Result<std::unique_ptr<Context>> AppSession::openSessionStore()
{
    readOnlyReason_.clear();
    const QString folder = storeFolder(settings_, profile_);
    for (const QString& f : {profile_.supportFolder, folder}) {
        if (auto r = ensureFolder(f); !r) {
            return std::unexpected(r.error());
        }
    }
    const QString path = folder + u'/' + QLatin1String(kStoreFileName);
    if (auto locked = takeLock(path); !locked) {
        const Error& e = locked.error();
        if (e.code == kStoreInUse && use_.readsOnly) {
            readOnlyReason_ = tr("It is in use by %1; this is a snapshot of it.")
                                  .arg(lockHolder_ ? lockHolder_->describe() : tr("another Tamo"));
            return Context::openReadOnly(path);
        }
        if (e.code == kLockNotWritable) {
            if (!QFileInfo::exists(path)) {
                return fail(QString::fromLatin1(kStoreErrorDomain), 104,
                            tr("Tamo cannot make its store in the folder “%1”.").arg(folder),
                            e.reason);
            }
            readOnlyReason_ = tr("Its folder “%1” may not be written. %2").arg(folder, e.reason);
            return Context::openReadOnly(path);
        }
        return std::unexpected(e);
    }
    auto opened = Context::open(path);
    if (opened && (*opened)->isReadOnly()) {
        readOnlyReason_ = tr("The store file may only be read.");
    }
    return opened;
}

void AppSession::useContext(std::unique_ptr<Context> context)
{
    context_ = std::move(context);
    if (!context_->isReadOnly() && !settings_.boolean(key::isTamo2TemplateLoadingDone) &&
        hooks_.loadBuiltInDesigns) {
        hooks_.loadBuiltInDesigns();
        settings_.set(key::isTamo2TemplateLoadingDone, true);
    }
    documents_.setContext(context_.get());
}

Result<void> AppSession::reloadStore(
    const std::function<Result<void>(const QString& storePath)>& replace)
{
    const QString path = context_ ? context_->path() : storeFilePath(settings_, profile_);
    if (context_ && context_->isReadOnly()) {
        return fail(QString::fromLatin1(kStoreErrorDomain), 105,
                    tr("The store “%1” is open for reading only.").arg(path), readOnlyReason_);
    }
    if (auto locked = takeLock(path); !locked) {
        return locked;
    }
    if (context_) {
        documents_.setContext(nullptr);
        std::unique_ptr<Context> closing = std::move(context_);
        emit contextChanged(nullptr);
    }
    Result<void> replaced = replace(path);
    openAttempted_ = true;
    auto reopened = Context::open(path);
    if (!reopened) {
        openFailure_ = reopened.error();
        return std::unexpected(reopened.error());
    }
    openFailure_.reset();
    context_ = std::move(*reopened);
    documents_.setContext(context_.get());
    emit contextChanged(context_.get());
    return replaced;
}

void AppSession::setStatistics(const DocumentStatistics& statistics)
{
    if (statistics == statistics_) {
        return;
    }
    statistics_ = statistics;
    emit statisticsChanged();
}

bool AppSession::saveContext()
{
    if (!commitEditing()) {
        qCWarning(lcSession) << "AppDelegate:saveContext unable to commit editing before saving";
        return false;
    }
    if (!context_ || !context_->hasChanges()) {
        return true;
    }
    if (context_->isReadOnly()) {
        // What the statistics pass works out stays in memory; an edit cannot be kept.
        if (!context_->undoManager().canUndo()) {
            context_->adoptChanges();
            return true;
        }
        prompter_.presentError(
            Error{QString::fromLatin1(kStoreErrorDomain), 105,
                  tr("The store “%1” is open for reading only.").arg(context_->path()),
                  readOnlyReason_ + u' ' + tr("Your change was not kept.")});
        context_->rollback();
        return false;
    }
    if (auto saved = context_->save(); !saved) {
        prompter_.presentError(saved.error());
        return false;
    }
    return true;
}

void AppSession::undo()
{
    if (context_) {
        context_->undo();
        saveContext();
    }
}

void AppSession::redo()
{
    if (context_) {
        context_->redo();
        saveContext();
    }
}

void AppSession::rememberSelectedDesign()
{
    if (hooks_.selectedDesignIndex) {
        settings_.set(key::selectedDesign, hooks_.selectedDesignIndex());
    }
}

bool AppSession::customPathChanged()
{
    Context* context = managedObjectContext();
    if (!context) {
        return false;
    }
    rememberSelectedDesign();
    const QString from = context->path();
    const QString to = storeFilePath(settings_, profile_);
    if (QFileInfo(from).absoluteFilePath() == QFileInfo(to).absoluteFilePath()) {
        return true;
    }
    // When anything below fails, the settings go back to the folder the store is still in, so
    // that the next start finds the user's data where it is.
    const auto restoreLocation = [&] {
        const QString folder = QFileInfo(from).absolutePath();
        const bool isSupport = QDir::cleanPath(folder) == QDir::cleanPath(profile_.supportFolder);
        settings_.set(key::useCustomPath, !isSupport);
        if (!isSupport) {
            settings_.set(key::customDatabasePath, folder);
        }
    };
    if ((hooks_.completeBackup && !hooks_.completeBackup()) || !saveContext()) {
        restoreLocation();
        return false;
    }
    context = context_.get();  // the complete backup reopens the store
    if (!context) {
        restoreLocation();
        return false;
    }
    if (auto moved = migrateStore(*context, to); !moved) {
        restoreLocation();
        prompter_.presentError(moved.error());
        return false;
    }
    qCInfo(lcSession).noquote() << "Moved the store from" << from << "to" << to;
    if (hooks_.relaunch) {
        hooks_.relaunch();
    }
    return true;
}

void AppSession::applicationDidFinishLaunching()
{
    settings_.set(key::isTerminatedFine, false);
    if (!settings_.boolean(key::firstStartEverDone) && hooks_.showSetupAssistant) {
        hooks_.showSetupAssistant();
    }
    applyOneTimeUpdates(settings_);
    if (!settings_.boolean(key::loadEvoiceAlert_0_1) && hooks_.showEinvoiceNotice) {
        hooks_.showEinvoiceNotice();
        settings_.set(key::loadEvoiceAlert_0_1, true);
    }
}

AppSession::TerminateReply AppSession::applicationShouldTerminate()
{
    settings_.set(key::fetchedObjectsCount, context_ ? context_->count("Invoice") : 0);
    if (!context_) {
        settings_.set(key::isTerminatedFine, true);
        return TerminateReply::Now;
    }
    if (context_->isReadOnly()) {
        context_->adoptChanges();
    }
    if (!commitEditing()) {
        qCWarning(lcSession)
            << "AppDelegate:applicationShouldTerminate: unable to commit editing to terminate";
        settings_.set(key::isTerminatedFine, false);
        return TerminateReply::Cancel;
    }
    if (!context_->hasChanges()) {
        settings_.set(key::isTerminatedFine, true);
        return TerminateReply::Now;
    }
    auto saved = context_->save();
    if (saved) {
        settings_.set(key::isTerminatedFine, true);
        return TerminateReply::Now;
    }
    if (prompter_.presentError(saved.error())) {
        settings_.set(key::isTerminatedFine, false);
        return TerminateReply::Cancel;
    }
    const QString quitAnyway = tr("Quit anyway");
    const QString answer = prompter_.ask(
        {tr("Could not save changes while quitting. Quit anyway?"),
         tr("Quitting now will lose any changes you have made since the last successful save"),
         {quitAnyway, tr("Cancel")}});
    if (answer == quitAnyway) {
        return TerminateReply::Now;
    }
    settings_.set(key::isTerminatedFine, false);
    return TerminateReply::Cancel;
}

void AppSession::applicationWillTerminate()
{
    rememberSelectedDesign();
}

}  // namespace tamo
