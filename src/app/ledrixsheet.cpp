#include "app/ledrixsheet.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "accounting/ledrixsend.h"
#include "model/appsession.h"

namespace tamo {

namespace {

QDateTimeEdit* dateEdit(const QDateTime& value, QWidget* parent)
{
    auto* edit = new QDateTimeEdit(
        value.isValid() ? value.toLocalTime() : QDate::currentDate().startOfDay(), parent);
    edit->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
    edit->setCalendarPopup(true);
    return edit;
}

}  // namespace

LedrixSendSheet::LedrixSendSheet(AppSession& session, LedrixSend& send, int tag, QWidget* parent)
    : QDialog(parent), session_(session), send_(send)
{
    send_.sendToLedrix(tag);
    const SendTarget target = send_.target();
    const Settings& settings = session_.settings();
    setWindowTitle(target.title);
    setWindowModality(Qt::WindowModal);

    auto* icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/%1.svg").arg(target.icon)).pixmap(64, 64));
    icon->setAlignment(Qt::AlignTop);
    auto* title = new QLabel(QStringLiteral("<b>%1</b>").arg(target.title.toHtmlEscaped()), this);
    auto* link = new QToolButton(this);
    link->setObjectName(QStringLiteral("targetLink"));
    link->setIcon(QIcon::fromTheme(QStringLiteral("internet-web-browser")));
    link->setText(tr("Website"));
    link->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    link->setAutoRaise(true);
    link->setToolTip(target.webAddress);
    connect(link, &QToolButton::clicked, this,
            [address = target.webAddress] { QDesktopServices::openUrl(QUrl(address)); });
    auto* heading = new QHBoxLayout;
    heading->addWidget(title, 1);
    heading->addWidget(link);

    begin_ = dateEdit(settings.date(key::prefsLedrixExportBeginDate), this);
    end_ = dateEdit(settings.date(key::prefsLedrixExportEndDate), this);
    auto* range = new QHBoxLayout;
    range->addWidget(begin_);
    range->addWidget(new QLabel(tr("to"), this));
    range->addWidget(end_);
    range->addStretch(1);
    kind_ = new QComboBox(this);
    kind_->addItems({tr("Every sent invoice"), tr("Paid invoices"), tr("Overdue invoices")});
    kind_->setCurrentIndex(std::clamp(settings.integer(key::prefsLedrixExportKind), 0, 2));
    items_ = new QComboBox(this);
    items_->addItems({tr("One summary line per invoice"), tr("Every line of each invoice")});
    items_->setCurrentIndex(settings.integer(key::prefsLedrixExportItemsKind) != 0 ? 1 : 0);
    count_ = new QLabel(this);
    count_->setObjectName(QStringLiteral("ledrixCount"));

    auto* form = new QFormLayout;
    form->addRow(tr("Dated from:"), range);
    form->addRow(tr("Invoices:"), kind_);
    form->addRow(tr("Lines:"), items_);
    form->addRow(QString(), count_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    sendButton_ = buttons->addButton(tr("Send"), QDialogButtonBox::AcceptRole);
    sendButton_->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, [this] {
        send_.cancelLedrixSheet();
        reject();
    });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        accept();
        send_.closeLedrixSheet();
    });

    auto* column = new QVBoxLayout;
    column->addLayout(heading);
    column->addLayout(form);
    auto* body = new QHBoxLayout;
    body->addWidget(icon);
    body->addLayout(column, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body);
    layout->addWidget(buttons);
    setMinimumWidth(520);

    // The day is chosen here; the time of day of the stored moment stays, as the export compares
    // the stored moments.
    for (const auto& [edit, setting] : {std::pair{begin_, &key::prefsLedrixExportBeginDate},
                                        std::pair{end_, &key::prefsLedrixExportEndDate}}) {
        connect(edit, &QDateTimeEdit::dateChanged, this, [this, setting](const QDate& day) {
            const QDateTime stored = session_.settings().date(*setting);
            session_.settings().set(
                *setting,
                QDateTime(day, stored.isValid() ? stored.toLocalTime().time() : QTime(0, 0)));
            doTheLedrixFilter();
        });
    }
    connect(kind_, &QComboBox::currentIndexChanged, this, [this](int index) {
        session_.settings().set(key::prefsLedrixExportKind, index);
        doTheLedrixFilter();
    });
    connect(items_, &QComboBox::currentIndexChanged, this,
            [this](int index) { session_.settings().set(key::prefsLedrixExportItemsKind, index); });
    showCount();
}

void LedrixSendSheet::doTheLedrixFilter()
{
    send_.doTheLedrixFilter();
    showCount();
}

void LedrixSendSheet::showCount()
{
    const int count = session_.settings().integer(key::prefsLedrixExportCount);
    count_->setText(count == 0   ? tr("No invoice matches.")
                    : count == 1 ? tr("1 invoice will be sent.")
                                 : tr("%1 invoices will be sent.").arg(count));
    sendButton_->setEnabled(count > 0);
}

}  // namespace tamo
