#include "app/preferences/preferencepanel.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/designpreferences.h"
#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "model/appsession.h"

namespace tamo {

ZPPreferencePanel::ZPPreferencePanel(AppSession& session, DesignLibrary& designs,
                                     DataInterchange& interchange, QWidget* parent)
    : QDialog(parent),
      fields_(new SettingFields(session.settings(), this)),
      list_(new QListWidget(this)),
      stack_(new QStackedWidget(this)),
      designs_(new DesignPane(session, designs, this))
{
    setWindowTitle(tr("Preferences"));
    setObjectName(QStringLiteral("preferences"));
    list_->setObjectName(QStringLiteral("preferencePanes"));
    list_->setIconSize(QSize(24, 24));
    list_->setFixedWidth(190);
    addPane(new CompanyPane(*fields_, this), tr("Company"), "user-info");
    addPane(new InvoicePane(session, *fields_, this), tr("Invoice"), "document-properties");
    addPane(new TaxesPane(*fields_, this), tr("Taxes"), "accessories-calculator");
    addPane(new ClientsPane(session, *fields_, this), tr("Clients"), "x-office-address-book");
    addPane(designs_, tr("Design"), "applications-graphics");
    addPane(new TemplatePane(*fields_, this), tr("Template"), "edit-copy");
    addPane(new DataPane(session, interchange, this), tr("Data"), "drive-harddisk");
    addPane(new RegionPane(*fields_, this), tr("Region and Output"), "printer");
    connect(list_, &QListWidget::currentRowChanged, stack_, &QStackedWidget::setCurrentIndex);
    list_->setCurrentRow(0);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(list_);
    row->addWidget(stack_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row, 1);
    layout->addWidget(buttons);
    resize(1100, 760);
}

void ZPPreferencePanel::addPane(QWidget* pane, const QString& title, const char* icon)
{
    new QListWidgetItem(QIcon::fromTheme(QString::fromLatin1(icon)), title, list_);
    stack_->addWidget(pane);
}

bool ZPPreferencePanel::showPane(const QString& name)
{
    for (int i = 0; i < stack_->count(); ++i) {
        if (stack_->widget(i)->objectName() == name) {
            list_->setCurrentRow(i);
            return true;
        }
    }
    return false;
}

bool ZPPreferencePanel::showSetting(const QString& key)
{
    auto* field = stack_->findChild<QWidget*>(key);
    if (!field) {
        return false;
    }
    for (int i = 0; i < stack_->count(); ++i) {
        if (stack_->widget(i)->isAncestorOf(field)) {
            list_->setCurrentRow(i);
        }
    }
    // Tabs and scroll areas on the way show the field.
    for (QWidget* w = field; w && w != stack_; w = w->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(w)) {
            for (int i = 0; i < tabs->count(); ++i) {
                if (tabs->widget(i)->isAncestorOf(field)) {
                    tabs->setCurrentIndex(i);
                }
            }
        }
        if (auto* scroll = qobject_cast<QScrollArea*>(w)) {
            scroll->ensureWidgetVisible(field);
        }
    }
    field->setFocus(Qt::OtherFocusReason);
    return true;
}

void ZPPreferencePanel::done(int code)
{
    fields_->commit();
    designs_->commitEdits();
    QDialog::done(code);
}

}  // namespace tamo
