#pragma once

#include <QDialog>
#include <vector>

#include "documents/clients.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QTabWidget;

namespace tamo {

// The client panel: chooses the document's client from a contact of the address book or a
// remembered client, with the fields to adjust before applying them.
class ClientChooser : public QDialog {
    Q_OBJECT

public:
    ClientChooser(Clients& clients, QWidget* parent = nullptr);

    // Fills the panel; false when the document may not change its client or the address book
    // has broken cards (the reason has been shown).
    bool prepare();
    void takeContact(int row);
    void takeRemembered();
    void apply();
    void newClientNumber();

    QListWidget* contactList() const { return contacts_; }
    QListWidget* rememberedList() const { return remembered_; }

private:
    void setFields(const ClientPanel& panel);
    ClientPanel fields() const;
    void fillRemembered();

    Clients& clients_;
    void fillContacts();

    ContactBook book_;
    std::vector<Record*> rememberedClients_;
    QTabWidget* pages_;
    QListWidget* contacts_;
    QListWidget* remembered_;
    QLineEdit* rememberedSearch_;
    QPlainTextEdit* address_;
    QLineEdit* number_;
    QLabel* noContacts_;
    std::vector<std::pair<QString ClientPanel::*, QLineEdit*>> lines_;
};

}  // namespace tamo
