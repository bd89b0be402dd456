#include "app/preferences/settingfields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVBoxLayout>

#include "calc/amountinput.h"
#include "calc/numberformat.h"

namespace tamo {

QLabel* noteLabel(const QString& text, QWidget* parent, bool wrap)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(wrap);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

NumberField::NumberField(Parse parse, Show show, QString hint, QWidget* parent)
    : QWidget(parent),
      parse_(std::move(parse)),
      show_(std::move(show)),
      hintText_(std::move(hint)),
      edit_(new QLineEdit(this)),
      hint_(new QLabel(this))
{
    // One line, so that the hint widens its column while it shows rather than stacking words.
    hint_->setVisible(false);
    QPalette warning = hint_->palette();
    warning.setColor(QPalette::WindowText, QColor(0xc0, 0x1c, 0x28));
    hint_->setPalette(warning);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(edit_);
    layout->addWidget(hint_);
    setFocusProxy(edit_);
    connect(edit_, &QLineEdit::editingFinished, this, [this] {
        edit_->setModified(false);
        if (const auto value = typedValue()) {
            showValue(*value);
            emit accepted(*value);
        }
    });
    // The hint goes as soon as the text is worth trying again.
    connect(edit_, &QLineEdit::textEdited, this, [this] {
        if (isRefused() && parse_(edit_->text())) {
            markRefused(false);
        }
    });
}

bool NumberField::isRefused() const
{
    return !hint_->isHidden();
}

void NumberField::showValue(const QVariant& value)
{
    edit_->setText(show_(value));
    markRefused(false);
}

std::optional<QVariant> NumberField::typedValue()
{
    const auto value = parse_(edit_->text().trimmed());
    markRefused(!value);
    return value;
}

void NumberField::markRefused(bool refused)
{
    hint_->setText(hintText_);
    hint_->setVisible(refused);
    QPalette palette = edit_->palette();
    palette.setColor(QPalette::Base,
                     refused ? QColor(0xfc, 0xe4, 0xe4) : QWidget::palette().color(QPalette::Base));
    edit_->setPalette(palette);
    edit_->setToolTip(refused ? hintText_ : QString());
}

SettingFields::SettingFields(Settings& settings, QObject* parent)
    : QObject(parent), settings_(settings)
{
}

void SettingFields::write(const SettingKey& key, const QVariant& value)
{
    if (loading_) {
        return;
    }
    settings_.set(key, value);
    emit changed(QString::fromLatin1(key.name));
}

QLineEdit* SettingFields::line(const SettingKey& key, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QString::fromLatin1(key.name));
    connect(field, &QLineEdit::textChanged, this,
            [this, &key](const QString& text) { write(key, text); });
    loaders_.push_back([this, &key, field = QPointer(field)] {
        if (field && field->text() != settings_.string(key)) {
            field->setText(settings_.string(key));
        }
    });
    load(loaders_.back());
    return field;
}

QPlainTextEdit* SettingFields::text(const SettingKey& key, QWidget* parent)
{
    auto* field = new QPlainTextEdit(parent);
    field->setObjectName(QString::fromLatin1(key.name));
    field->setTabChangesFocus(true);
    connect(field, &QPlainTextEdit::textChanged, this,
            [this, &key, field] { write(key, field->toPlainText()); });
    loaders_.push_back([this, &key, field = QPointer(field)] {
        if (field && field->toPlainText() != settings_.string(key)) {
            field->setPlainText(settings_.string(key));
        }
    });
    load(loaders_.back());
    return field;
}

QCheckBox* SettingFields::check(const SettingKey& key, const QString& label, QWidget* parent)
{
    auto* field = new QCheckBox(label, parent);
    field->setObjectName(QString::fromLatin1(key.name));
    connect(field, &QCheckBox::toggled, this, [this, &key](bool on) { write(key, on); });
    loaders_.push_back([this, &key, field = QPointer(field)] {
        if (field) {
            field->setChecked(settings_.boolean(key));
        }
    });
    load(loaders_.back());
    return field;
}

QComboBox* SettingFields::choice(const SettingKey& key, const QStringList& labels, QWidget* parent)
{
    auto* field = new QComboBox(parent);
    field->setObjectName(QString::fromLatin1(key.name));
    field->addItems(labels);
    connect(field, &QComboBox::currentIndexChanged, this, [this, &key](int index) {
        if (index >= 0) {
            write(key, index);
        }
    });
    loaders_.push_back([this, &key, field = QPointer(field)] {
        if (field) {
            const int stored = settings_.integer(key);
            field->setCurrentIndex(stored >= 0 && stored < field->count() ? stored : 0);
        }
    });
    load(loaders_.back());
    return field;
}

NumberField* SettingFields::number(const SettingKey& key, NumberField::Parse parse,
                                   NumberField::Show show, const QString& hint, QWidget* parent)
{
    auto* field = new NumberField(std::move(parse), std::move(show), hint, parent);
    field->edit()->setObjectName(QString::fromLatin1(key.name));
    connect(field, &NumberField::accepted, this,
            [this, &key](const QVariant& value) { write(key, value); });
    loaders_.push_back([this, &key, field = QPointer(field)] {
        if (field) {
            field->showValue(settings_.value(key));
        }
    });
    load(loaders_.back());
    numbers_.push_back(field);
    return field;
}

NumberField* SettingFields::whole(const SettingKey& key, QWidget* parent)
{
    const auto parse = [](const QString& text) -> std::optional<QVariant> {
        if (text.isEmpty()) {
            return QVariant(0);
        }
        bool ok = false;
        const int value = QLocale().toInt(text, &ok);
        return ok && value >= 0 ? std::optional(QVariant(value)) : std::nullopt;
    };
    const auto show = [](const QVariant& value) { return QLocale().toString(value.toInt()); };
    return number(key, parse, show, tr("Type a whole number, such as 0 or 12."), parent);
}

NumberField* SettingFields::percent(const SettingKey& key, QWidget* parent)
{
    const auto parse = [](const QString& text) -> std::optional<QVariant> {
        if (text.isEmpty()) {
            return QVariant(0.0);
        }
        const auto rate = rateFromText(text);
        return rate ? std::optional(QVariant(*rate)) : std::nullopt;
    };
    const auto show = [](const QVariant& value) {
        return decimalStringFromNumber(value.toDouble() * 100);
    };
    NumberField* field = number(key, parse, show,
                                tr("Type a percentage between 0 and 100, such as %1 or %2.")
                                    .arg(decimalStringFromNumber(19), decimalStringFromNumber(7.5)),
                                parent);
    field->edit()->setMaximumWidth(90);
    return field;
}

void SettingFields::load(const std::function<void()>& loader)
{
    loading_ = true;
    loader();
    loading_ = false;
}

void SettingFields::follow(std::function<void()> loader)
{
    loaders_.push_back(std::move(loader));
    load(loaders_.back());
}

void SettingFields::reload()
{
    for (const auto& loader : loaders_) {
        load(loader);
    }
}

bool SettingFields::commit()
{
    bool ok = true;
    for (const QPointer<NumberField>& field : numbers_) {
        // Only what the user typed since the field last took its text.
        if (field && field->edit()->isModified()) {
            emit field->edit()->editingFinished();
        }
        ok = ok && !(field && field->isRefused());
    }
    return ok;
}

}  // namespace tamo
