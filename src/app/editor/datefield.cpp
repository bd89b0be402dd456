#include "app/editor/datefield.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>

namespace tamo {

namespace {

// The locale's short format with its variants: one- or two-digit days and months, two- or
// four-digit years.
QStringList formatsOf(const QLocale& locale)
{
    QString base = locale.dateFormat(QLocale::ShortFormat);
    base.replace(QStringLiteral("yyyy"), QStringLiteral("yy"));
    base.replace(QStringLiteral("dd"), QStringLiteral("d"));
    base.replace(QStringLiteral("MM"), QStringLiteral("M"));
    QStringList formats;
    for (const char16_t* year : {u"yy", u"yyyy"}) {
        QString f = base;
        f.replace(QStringLiteral("yy"), QString::fromUtf16(year));
        formats << f;
    }
    formats << QStringLiteral("yyyy-M-d") << locale.dateFormat(QLocale::LongFormat)
            << QStringLiteral("d MMMM yyyy") << QStringLiteral("d MMM yyyy")
            << QStringLiteral("MMMM d, yyyy") << QStringLiteral("MMM d, yyyy");
    return formats;
}

}  // namespace

QDate DateField::dateFromText(const QString& text, const QLocale& locale)
{
    const QString typed = text.simplified();
    if (typed.isEmpty()) {
        return {};
    }
    // Any separator between digits stands for the locale's own ("5-3-2026", "5/3/2026").
    const QString separators = QStringLiteral("./-");
    for (const QString& format : formatsOf(locale)) {
        QDate date = locale.toDate(typed, format);
        if (!date.isValid()) {
            QString normalised = typed;
            const QChar own = [&] {
                for (const QChar c : format) {
                    if (separators.contains(c)) {
                        return c;
                    }
                }
                return QChar();
            }();
            if (!own.isNull()) {
                for (const QChar s : separators) {
                    normalised.replace(s, own);
                }
                date = locale.toDate(normalised, format);
            }
        }
        if (date.isValid()) {
            // "26" is 2026, not 1926.
            if (!format.contains(QStringLiteral("yyyy")) && date.year() < 2000) {
                date = date.addYears(100);
            }
            return date;
        }
    }
    return {};
}

DateField::DateField(QWidget* parent)
    : QWidget(parent), edit_(new QLineEdit(this)), calendar_(new QToolButton(this))
{
    edit_->setPlaceholderText(QLocale().dateFormat(QLocale::ShortFormat));
    calendar_->setIcon(QIcon::fromTheme(QStringLiteral("x-office-calendar")));
    calendar_->setText(tr("Calendar"));
    calendar_->setToolTip(tr("Choose the date in a calendar"));
    calendar_->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(edit_, 1);
    layout->addWidget(calendar_);
    setFocusProxy(edit_);
    connect(edit_, &QLineEdit::textEdited, this, &DateField::typed);
    connect(edit_, &QLineEdit::editingFinished, this, &DateField::finish);
    connect(calendar_, &QToolButton::clicked, this, &DateField::pick);
}

void DateField::setDate(QDate date)
{
    date_ = date;
    edit_->setText(QLocale().toString(date, QLocale::ShortFormat));
}

void DateField::setReadOnly(bool readOnly)
{
    edit_->setReadOnly(readOnly);
    calendar_->setVisible(!readOnly);
}

bool DateField::isReadOnly() const
{
    return edit_->isReadOnly();
}

void DateField::typed(const QString& text)
{
    const QDate date = dateFromText(text);
    if (date.isValid() && date != date_) {
        date_ = date;
        emit dateChanged(date);
    }
}

void DateField::finish()
{
    typed(edit_->text());
    setDate(date_);  // the date as the locale writes it, or the last one for text that is none
    emit editingFinished();
}

void DateField::pick()
{
    QMenu menu(this);
    auto* calendar = new QCalendarWidget(&menu);
    calendar->setSelectedDate(date_.isValid() ? date_ : QDate::currentDate());
    auto* holder = new QWidgetAction(&menu);
    holder->setDefaultWidget(calendar);
    menu.addAction(holder);
    connect(calendar, &QCalendarWidget::clicked, &menu, [&](QDate date) {
        setDate(date);
        emit dateChanged(date);
        menu.close();
    });
    menu.exec(calendar_->mapToGlobal(QPoint(0, calendar_->height())));
    edit_->setFocus();
    emit editingFinished();
}

}  // namespace tamo
