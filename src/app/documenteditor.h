#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace tamo {

class AppSession;
class Record;

// The editor beside the document list: the current document's fields. Every edit is one undoable
// step and is saved at once.
class DocumentEditor : public QWidget {
    Q_OBJECT

public:
    explicit DocumentEditor(AppSession& session, QWidget* parent = nullptr);

    // Writes a field whose edit is still in progress; the session calls this before saving.
    bool commitEditing();
    void showDocument(Record* document);
    void refresh();

private:
    struct Field {
        const char* key;
        QLineEdit* edit;
        QString undoName;
    };
    void apply(const Field& field);

    AppSession& session_;
    Record* document_ = nullptr;
    QLabel* heading_;
    QLabel* state_;
    QLabel* client_;
    QLabel* dates_;
    QLabel* amount_;
    QLabel* locked_;
    std::vector<Field> fields_;
};

}  // namespace tamo
