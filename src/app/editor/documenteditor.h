#pragma once

#include <QWidget>

class QLabel;
class QStackedWidget;
class QTabWidget;

namespace tamo {

class AppSession;
struct ChangeSet;
class ClientSection;
class Context;
class DocumentSection;
class FieldBinder;
class LinesSection;
class Record;
struct DocumentOperations;

// The editor beside the document list: the current document's client, lines with their sums,
// dates, status and payment, delivery and texts. Every edit is one undoable step and is saved at
// once; a sent document is read-only apart from its status and payment.
class DocumentEditor : public QWidget {
    Q_OBJECT

public:
    enum Page { DocumentPage, ClientPage, ItemsPage, TextsPage };

    DocumentEditor(AppSession& session, DocumentOperations& operations, QWidget* parent = nullptr);

    // Writes a field whose edit is still in progress; the session calls this before saving.
    bool commitEditing();
    void showDocument(Record* document);
    void refresh();
    void showPage(Page page);
    // A new document: its client comes first.
    void showClientBlock();
    void focusDispatchNumber();

    FieldBinder* binder() const { return binder_; }
    ClientSection* client() const { return client_; }
    LinesSection* lines() const { return lines_; }
    DocumentSection* details() const { return details_; }
    QTabWidget* pages() const { return pages_; }

private:
    void watch(Context* context);
    void changed(const ChangeSet& changes);
    void showHeader();

    AppSession& session_;
    Record* document_ = nullptr;
    FieldBinder* binder_;
    QStackedWidget* stack_;
    QLabel* stamp_;
    QLabel* heading_;
    QLabel* subheading_;
    QLabel* locked_;
    QTabWidget* pages_;
    ClientSection* client_;
    LinesSection* lines_;
    DocumentSection* details_;
};

}  // namespace tamo
