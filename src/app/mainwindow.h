#pragma once

#include <QMainWindow>
#include <functional>

class QAction;
class QLineEdit;
class QTableView;
class QLabel;

namespace tamo {

class AppSession;
class DocumentEditor;
class DocumentTableModel;

// The main window: the document list with its search field beside the editor of the current
// document, and the menus and toolbar of the actions that exist so far.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(AppSession& session, QWidget* parent = nullptr);

    DocumentEditor* editor() const { return editor_; }
    QTableView* documentTable() const { return table_; }
    // Asked before the window closes; false keeps it open.
    void setCloseGuard(std::function<bool()> guard) { closeGuard_ = std::move(guard); }
    void restoreLayout();
    void saveLayout();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createActions();
    void contextChanged();
    void updateActions();
    void updateSummary();
    // Runs the statistics pass over the listed documents.
    void updateStatistics();
    void syncSelectionFromList();
    void syncSelectionToList();

    AppSession& session_;
    DocumentTableModel* model_;
    QTableView* table_;
    QLineEdit* search_;
    DocumentEditor* editor_;
    QLabel* summary_;
    QAction* saveAction_ = nullptr;
    QAction* undoAction_ = nullptr;
    QAction* redoAction_ = nullptr;
    std::function<bool()> closeGuard_;
    bool syncing_ = false;
};

}  // namespace tamo
