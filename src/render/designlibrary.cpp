#include "render/designlibrary.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <algorithm>

#include "interchange/recorddictionary.h"
#include "render/designarchive.h"

Q_DECLARE_LOGGING_CATEGORY(lcRender)

namespace tamo {

namespace {

// A design file is a few dozen kilobytes; anything far larger is not one.
constexpr qint64 kMaxDesignFileSize = qint64(16) << 20;

}  // namespace

DesignLibrary::DesignLibrary(AppSession& session) : DesignLibrary(session, session.prompter()) {}

DesignLibrary::DesignLibrary(AppSession& session, Prompter& prompter)
    : session_(session), prompter_(prompter)
{
}

std::vector<Record*> DesignLibrary::designs() const
{
    Context* c = context();
    if (!c) {
        return {};
    }
    std::vector<Record*> list = c->fetch("Design");
    std::ranges::sort(list, {}, &Record::primaryKey);
    return list;
}

int DesignLibrary::selectedIndex() const
{
    const int count = int(designs().size());
    if (count == 0) {
        return -1;
    }
    const int stored = session_.settings().integer(key::selectedDesign);
    return stored >= 0 && stored < count ? stored : 0;
}

Record* DesignLibrary::currentDesign() const
{
    const int index = selectedIndex();
    return index < 0 ? nullptr : designs()[size_t(index)];
}

void DesignLibrary::setDesignInt()
{
    selectDesign(selectedIndex());
}

void DesignLibrary::selectDesign(int index)
{
    const int previous = session_.settings().integer(key::selectedDesign);
    session_.settings().set(key::selectedDesign, std::max(index, 0));
    if (previous != index) {
        emit selectionChanged();
    }
}

bool DesignLibrary::save()
{
    const bool saved = session_.saveContext();
    emit designsChanged();
    return saved;
}

ActionResult DesignLibrary::failed(const Error& error)
{
    qCWarning(lcRender).noquote() << error.text();
    prompter_.presentError(error);
    return ActionResult::Failed;
}

Record* DesignLibrary::addDesign()
{
    Context* c = context();
    if (!c) {
        return nullptr;
    }
    const DesignSeed seed = newDesignSeed();
    Record* design = nullptr;
    {
        UndoGroup group(*c, tr("Add Design"));
        design = c->insert("Design");
        design->setValue("title", tr("New Design"));
        design->setValue("invoice", seed.invoice);
        design->setValue("item", seed.item);
        design->setValue("css", seed.css);
        design->setValue("isDefault", false);
    }
    save();
    const std::vector<Record*> list = designs();
    selectDesign(int(std::ranges::find(list, design) - list.begin()));
    return design;
}

bool DesignLibrary::deleteDesign()
{
    Context* c = context();
    const int index = selectedIndex();
    if (!c || index < 0) {
        return false;
    }
    const QString remove = tr("Delete");
    const Alert alert{tr("Delete Design"),
                      tr("Deleting designs is permanent and cannot be undone. Do you really want "
                         "to delete the selected design?"),
                      {remove, tr("Cancel")}};
    if (prompter_.ask(alert) != remove) {
        return false;
    }
    {
        UndoGroup group(*c, tr("Delete Design"));
        c->remove(designs()[size_t(index)]);
    }
    save();
    // The list selects the design that moved into the deleted one's place, or the new last one.
    const int count = int(designs().size());
    selectDesign(std::min(index, count - 1));
    emit selectionChanged();
    return true;
}

void DesignLibrary::makeDefaultDesign()
{
    Context* c = context();
    Record* selected = currentDesign();
    if (!c || !selected) {
        return;
    }
    {
        UndoGroup group(*c, tr("Make Default Design"));
        for (Record* design : designs()) {
            design->setValue("isDefault", false);
        }
        selected->setValue("isDefault", true);
    }
    save();
}

Result<Record*> DesignLibrary::importDesignFile(const QString& path)
{
    Context* c = context();
    if (!c) {
        return fail(QString::fromLatin1(kInterchangeDomain), kStoreFileProblem,
                    tr("There is no open store to import the design into."));
    }
    auto bytes = readWholeFile(path, kMaxDesignFileSize);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    const auto refused = [&](Error e) {
        e.message = tr("“%1” cannot be imported: %2").arg(QFileInfo(path).fileName(), e.message);
        return std::unexpected(e);
    };
    auto dictionary = designDictionaryFromArchive(*bytes);
    if (!dictionary) {
        return refused(dictionary.error());
    }
    Record* design = nullptr;
    {
        UndoGroup group(*c, tr("Import Design"));
        auto created = createManagedObjectFromDictionary(dictionary->get(), *c, "Design");
        if (!created) {
            return refused(created.error());
        }
        design = *created;
        // An imported design is never the default; imported twice, it gets an identity of its
        // own the second time (as every created record whose identity is taken does).
        design->setValue("isDefault", false);
    }
    save();
    const std::vector<Record*> list = designs();
    selectDesign(int(std::ranges::find(list, design) - list.begin()));
    return design;
}

ActionResult DesignLibrary::importDesign()
{
    FileRequest panel;
    panel.title = tr("Import Tamo Design");
    panel.extensions = {QStringLiteral("design")};
    const auto path = prompter_.chooseFileToOpen(panel);
    if (!path) {
        return ActionResult::Cancelled;
    }
    auto imported = importDesignFile(*path);
    return imported ? ActionResult::Done : failed(imported.error());
}

Result<void> DesignLibrary::exportDesignFile(const Record& design, const QString& path)
{
    auto archive = designArchive(design);
    if (!archive) {
        return std::unexpected(archive.error());
    }
    return writeFileAtomically(path, *archive);
}

ActionResult DesignLibrary::exportDesign()
{
    const Record* design = currentDesign();
    if (!design) {
        return ActionResult::Cancelled;
    }
    FileRequest panel;
    panel.title = tr("Export Tamo Design");
    panel.extensions = {QStringLiteral("design")};
    panel.proposedName = design->string("title");
    panel.canCreateDirectories = true;
    const auto path = prompter_.chooseFileToSave(panel);
    if (!path) {
        return ActionResult::Cancelled;
    }
    auto written = exportDesignFile(*design, *path);
    return written ? ActionResult::Done : failed(written.error());
}

Result<Record*> DesignLibrary::insertBuiltInDesign(const QString& name, bool isDefault)
{
    Context* c = context();
    if (!c) {
        return fail(QString::fromLatin1(kInterchangeDomain), kStoreFileProblem,
                    tr("There is no open store for the built-in designs."));
    }
    auto archive = builtInDesignArchive(name);
    if (!archive) {
        return std::unexpected(archive.error());
    }
    auto dictionary = designDictionaryFromArchive(*archive);
    if (!dictionary) {
        return std::unexpected(dictionary.error());
    }
    auto created = createManagedObjectFromDictionary(dictionary->get(), *c, "Design");
    if (created) {
        (*created)->setValue("isDefault", isDefault);
    }
    return created;
}

void DesignLibrary::loadTemplates()
{
    for (const QString& name : builtInDesignNames()) {
        if (name == u"Temp14") {
            continue;
        }
        if (auto inserted = insertBuiltInDesign(name, name == u"Temp001"); !inserted) {
            qCWarning(lcRender).noquote()
                << "Failed to load the built-in design" << name << inserted.error().text();
        }
    }
}

void DesignLibrary::loadTamo2Template()
{
    qCDebug(lcRender) << "loadTamo2Template";
    if (auto inserted = insertBuiltInDesign(QStringLiteral("Temp14"), true); !inserted) {
        qCWarning(lcRender).noquote()
            << "Failed to load the built-in design Temp14" << inserted.error().text();
    }
}

void DesignLibrary::loadBuiltInDesigns()
{
    Context* c = context();
    if (!c) {
        return;
    }
    // The designs and the note in the store that they are there are saved in one transaction:
    // a first start that is killed half-way leaves neither, and the next start loads them once.
    // The settings' flags follow; a start that ended before them finds the note.
    const QString mark = QStringLiteral("builtInDesignsLoaded");
    if (c->storeMark(mark).isEmpty()) {
        WithoutUndo automatic(*c);  // part of setting the store up, not something the person did
        if (!session_.settings().boolean(key::isFirstStoreLoadEverDone)) {
            loadTemplates();
        }
        loadTamo2Template();
        c->setStoreMark(mark, QStringLiteral("1"));
        if (!save()) {
            return;
        }
    }
    session_.settings().set(key::isFirstStoreLoadEverDone, true);
}

void DesignLibrary::installHooks()
{
    AppSession::Hooks& hooks = session_.hooks();
    hooks.loadBuiltInDesigns = [this] { loadBuiltInDesigns(); };
    hooks.selectedDesignIndex = [this] { return std::max(selectedIndex(), 0); };
}

}  // namespace tamo
