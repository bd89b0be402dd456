#include "model/appsession.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include "model/storelocation.h"

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
    auto opened = openStore(settings_, profile_);
    if (!opened) {
        prompter_.presentError(opened.error());
        prompter_.presentError(
            Error{QString::fromLatin1(kStoreErrorDomain), 0,
                  QStringLiteral("Failed to initialize the store"),
                  QStringLiteral("There was an error building up the data file.")});
        return nullptr;
    }
    context_ = std::move(*opened);
    if (!settings_.boolean(key::isTamo2TemplateLoadingDone) && hooks_.loadBuiltInDesigns) {
        hooks_.loadBuiltInDesigns();
        settings_.set(key::isTamo2TemplateLoadingDone, true);
    }
    documents_.setContext(context_.get());
    emit contextChanged(context_.get());
    return context_.get();
}

Result<void> AppSession::reloadStore(
    const std::function<Result<void>(const QString& storePath)>& replace)
{
    const QString path = context_ ? context_->path() : storeFilePath(settings_, profile_);
    if (context_) {
        documents_.setContext(nullptr);
        std::unique_ptr<Context> closing = std::move(context_);
        emit contextChanged(nullptr);
    }
    Result<void> replaced = replace(path);
    openAttempted_ = true;
    auto reopened = Context::open(path);
    if (!reopened) {
        return std::unexpected(reopened.error());
    }
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
    const QString quitAnyway = QStringLiteral("Quit anyway");
    const QString answer = prompter_.ask(
        {QStringLiteral("Could not save changes while quitting. Quit anyway?"),
         QStringLiteral("Quitting now will lose any changes you have made since the last "
                        "successful save"),
         {quitAnyway, QStringLiteral("Cancel")}});
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
