#pragma once

#include <QObject>
#include <vector>

#include "interchange/datainterchange.h"
#include "model/appsession.h"

namespace tamo {

// The designs of the store: the list in the order they were added (the shipped ones first), the
// selected one, whose position the setting `selectedDesign` keeps, and the operations of the
// design pane: add, delete, make default, import, export, and loading the shipped designs.
// Questions and file panels go through the prompter the library was given.
class DesignLibrary : public QObject {
    Q_OBJECT

public:
    explicit DesignLibrary(AppSession& session);
    DesignLibrary(AppSession& session, Prompter& prompter);

    std::vector<Record*> designs() const;
    // Position of the selected design; -1 when the list is empty.
    int selectedIndex() const;
    // The selected design; when the stored position names none, the first. Nothing when there
    // are no designs.
    Record* currentDesign() const;
    // Selects the design at the position `selectedDesign` keeps (out of range: the first).
    void setDesignInt();
    void selectDesign(int index);

    Record* addDesign();
    // Asks first; false when nothing was deleted.
    bool deleteDesign();
    void makeDefaultDesign();
    ActionResult importDesign();
    ActionResult exportDesign();
    // The same without panels.
    Result<Record*> importDesignFile(const QString& path);
    Result<void> exportDesignFile(const Record& design, const QString& path);

    // Inserts a shipped design from the application's resources.
    Result<Record*> insertBuiltInDesign(const QString& name, bool isDefault);
    // The shipped designs Temp001 to Temp13, Temp001 the default (inserted, not yet saved).
    void loadTemplates();
    // The design added with the second edition, Temp14, as the default (not yet saved).
    void loadTamo2Template();
    // The store set-up's step (AppSession::Hooks::loadBuiltInDesigns): the first designs once per
    // installation, then the second edition's.
    void loadBuiltInDesigns();
    // Sets the session's hooks for loading and remembering designs to this library.
    void installHooks();

signals:
    // The list or a design's values changed.
    void designsChanged();
    void selectionChanged();

private:
    Context* context() const { return session_.context(); }
    bool save();
    ActionResult failed(const Error& error);

    AppSession& session_;
    Prompter& prompter_;
};

}  // namespace tamo
