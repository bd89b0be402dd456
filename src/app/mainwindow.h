#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

class QAction;
class QActionGroup;
class QLabel;
class QLineEdit;
class QMenu;
class QTableView;

namespace tamo {

class AppSession;
class DocumentEditor;
class DocumentTableModel;
struct DocumentOperations;
class VariantTextsSheet;

// The main window: the document list with its search field and filter beside the editor of the
// current document, and the menus and toolbar that reach every action.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // What an action asks of the open store and the current document to be enabled.
    enum class Needs {
        Store,          // an open store
        Document,       // a current document
        Unsent,         // a current document that is not marked as sent
        Quote,          // a current quote
        UnsentInvoice,  // a current invoice that is not marked as sent
        Deletable,      // a quote, or an invoice not marked as sent
    };

    MainWindow(AppSession& session, DocumentOperations& operations, QWidget* parent = nullptr);
    // With operations of its own, for a window without notifications.
    explicit MainWindow(AppSession& session, QWidget* parent = nullptr);
    ~MainWindow() override;

    DocumentEditor* editor() const { return editor_; }
    QTableView* documentTable() const { return table_; }
    DocumentOperations& operations() const { return operations_; }
    // The window's action with this object name ("deleteInvoice", "newInvoice", ...).
    QAction* action(const QString& name) const;
    // Adds a group of buttons to the main toolbar, after the others and a separator.
    void addToolBarActions(const QList<QAction*>& actions);
    // The menu other areas add their document entries to.
    QMenu* documentMenu() const { return documentMenu_; }
    // Enables the action only while the window's state gives what it needs.
    void setActionNeeds(QAction* action, Needs needs);
    // Asked before the window closes; false keeps it open.
    void setCloseGuard(std::function<bool()> guard) { closeGuard_ = std::move(guard); }
    // Lets the rendering add its button to the reminder and delivery-slip sheets.
    using VariantSheetExtension = std::function<void(VariantTextsSheet& sheet, bool slip)>;
    void setVariantSheetExtension(VariantSheetExtension extension)
    {
        extendVariantSheet_ = std::move(extension);
    }
    void restoreLayout();
    void saveLayout();
    // Fits the window into the screen it stands on.
    void keepOnScreen();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    MainWindow(AppSession& session, std::unique_ptr<DocumentOperations> own,
               DocumentOperations* operations, QWidget* parent);

    // Menus, toolbar and the actions behind them (mainactions.cpp).
    void createActions();
    QMenu* createFilterMenu();
    QAction* makeAction(QMenu* menu, const QString& text, const char* name, const char* icon,
                        const QKeySequence& shortcut, std::function<void()> run);
    void updateActions();
    void updateFilterButton();
    void openReminderSheet();
    void openSlipSheet();
    void openNotificationSheet();

    void contextChanged();
    void updateSummary();
    void updateWindowTitle();
    // Runs the statistics pass over the listed documents.
    void updateStatistics();
    void syncSelectionFromList();
    void syncSelectionToList();

    AppSession& session_;
    std::unique_ptr<DocumentOperations> ownOperations_;
    DocumentOperations& operations_;
    DocumentTableModel* model_;
    QTableView* table_;
    QLineEdit* search_;
    DocumentEditor* editor_;
    QLabel* summary_;
    QLabel* readOnlyNotice_;
    QAction* filter_ = nullptr;
    QActionGroup* filterChoices_ = nullptr;
    QMenu* documentMenu_ = nullptr;
    std::vector<std::pair<QAction*, Needs>> needs_;
    std::function<bool()> closeGuard_;
    VariantSheetExtension extendVariantSheet_;
    bool syncing_ = false;
};

}  // namespace tamo
