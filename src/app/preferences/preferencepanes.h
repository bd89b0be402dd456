#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace tamo {

class AppSession;
class DataInterchange;
class SettingFields;

// The panes of the preferences, each editing its settings through the shared fields. The
// company and e-invoice forms are also pages of the setup assistant.

class LogoField : public QWidget {
    Q_OBJECT

public:
    LogoField(SettingFields& fields, QWidget* parent = nullptr);
    void reload();

private:
    void choose();

    SettingFields& fields_;
    QLabel* thumbnail_;
    QLabel* description_;
    QWidget* remove_;
};

// Name, slogan, contact block, the sender line of window envelopes, the logo and the currency.
class CompanyForm : public QWidget {
    Q_OBJECT

public:
    CompanyForm(SettingFields& fields, QWidget* parent = nullptr);
};

// The supplier details of the e-invoice, with a line naming what the e-invoice check still
// misses.
class SupplierForm : public QWidget {
    Q_OBJECT

public:
    SupplierForm(SettingFields& fields, QWidget* parent = nullptr);
    QLabel* missingLine() const { return missing_; }

private:
    void updateMissing();

    SettingFields& fields_;
    QLabel* missing_;
};

class CompanyPane : public QWidget {
    Q_OBJECT

public:
    CompanyPane(SettingFields& fields, QWidget* parent = nullptr);
};

// Number patterns, due dates, the date pattern, texts and labels.
class InvoicePane : public QWidget {
    Q_OBJECT

public:
    InvoicePane(AppSession& session, SettingFields& fields, QWidget* parent = nullptr);

private:
    QWidget* numbersPage();
    QWidget* textsPage();
    QWidget* labelsPage();
    void updatePreviews();

    AppSession& session_;
    SettingFields& fields_;
    QLabel* previews_[3];
    QLabel* datePreview_;
};

class TaxesPane : public QWidget {
    Q_OBJECT

public:
    TaxesPane(SettingFields& fields, QWidget* parent = nullptr);
};

// How clients from the address book become a document's client, and which remembered lists
// the pop-overs show first.
class ClientsPane : public QWidget {
    Q_OBJECT

public:
    ClientsPane(AppSession& session, SettingFields& fields, QWidget* parent = nullptr);

private:
    void updatePreview();
    void updateContacts();

    AppSession& session_;
    SettingFields& fields_;
    QPlainTextEdit* pattern_;
    QLabel* preview_;
    QLabel* contacts_;
};

class TemplatePane : public QWidget {
    Q_OBJECT

public:
    TemplatePane(SettingFields& fields, QWidget* parent = nullptr);
};

// Where the store lives, and the backups and recovery copies of the File menu.
class DataPane : public QWidget {
    Q_OBJECT

public:
    DataPane(AppSession& session, DataInterchange& interchange, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void moveTo(const QString& folder);

    AppSession& session_;
    DataInterchange& interchange_;
    QLabel* folder_;
    QWidget* backToDefault_;
    QLabel* recovery_;
    QWidget* recover_;
};

// Paper, printing, exports and notifications; the region the numbers follow.
class RegionPane : public QWidget {
    Q_OBJECT

public:
    RegionPane(SettingFields& fields, QWidget* parent = nullptr);
};

}  // namespace tamo
