#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace tamo {

class Clients;
class FieldBinder;

// The document's client as copied into it: name, title, numbers, e-mail and address, and the
// client panel to take them from a contact or a remembered client.
class ClientSection : public QWidget {
    Q_OBJECT

public:
    ClientSection(FieldBinder& binder, Clients& clients, QWidget* parent = nullptr);

    QLineEdit* nameField() const { return name_; }
    void chooseClient();
    // A sent document keeps its client.
    void setEditable(bool editable);

private:
    Clients& clients_;
    QLineEdit* name_;
    QPushButton* choose_;
};

}  // namespace tamo
