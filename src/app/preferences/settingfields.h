#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "settings/settings.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace tamo {

// A quieter line that explains the fields around it. Short notes in form rows stay on one line
// (a wrapped label there gets more height than it needs).
QLabel* noteLabel(const QString& text, QWidget* parent, bool wrap = true);

// A number typed and shown in the user's locale. What does not parse is refused at the field:
// the hint below it says what is expected, and the setting keeps its value.
class NumberField : public QWidget {
    Q_OBJECT

public:
    using Parse = std::function<std::optional<QVariant>(const QString& text)>;
    using Show = std::function<QString(const QVariant& value)>;

    NumberField(Parse parse, Show show, QString hint, QWidget* parent = nullptr);

    QLineEdit* edit() const { return edit_; }
    bool isRefused() const;
    // Shows `value` as the field's text.
    void showValue(const QVariant& value);
    // The typed value, or nothing (then the hint shows).
    std::optional<QVariant> typedValue();

signals:
    void accepted(const QVariant& value);

private:
    void markRefused(bool refused);

    Parse parse_;
    Show show_;
    QString hintText_;
    QLineEdit* edit_;
    QLabel* hint_;
};

// The fields of the preferences and the setup assistant, each tied to one setting: it shows the
// stored value when made and writes the setting as soon as the user changes it; the operations
// read it at the moment they need it. Every field is named after its key, so a field is found
// by the setting it edits.
class SettingFields : public QObject {
    Q_OBJECT

public:
    explicit SettingFields(Settings& settings, QObject* parent = nullptr);

    Settings& settings() const { return settings_; }

    QLineEdit* line(const SettingKey& key, QWidget* parent);
    QPlainTextEdit* text(const SettingKey& key, QWidget* parent);
    QCheckBox* check(const SettingKey& key, const QString& label, QWidget* parent);
    // A choice whose position is the stored value.
    QComboBox* choice(const SettingKey& key, const QStringList& labels, QWidget* parent);
    // A whole number of at least 0; empty is 0.
    NumberField* whole(const SettingKey& key, QWidget* parent);
    // A rate stored as a fraction, shown and typed as a percentage ("19" or "7,5" for 0.19 and
    // 0.075); empty is 0.
    NumberField* percent(const SettingKey& key, QWidget* parent);

    // Runs `loader` now and again on every reload: for what shows settings without being one of
    // these fields (a preview, a thumbnail).
    void follow(std::function<void()> loader);
    // Shows the stored values again, after something else wrote them.
    void reload();
    // Writes what is still being typed in number fields; false when one was refused.
    bool commit();

    // Writes a setting that a widget of its own edits, and tells the others.
    void write(const SettingKey& key, const QVariant& value);

signals:
    // A field wrote its setting.
    void changed(const QString& key);

private:
    NumberField* number(const SettingKey& key, NumberField::Parse parse, NumberField::Show show,
                        const QString& hint, QWidget* parent);
    // Shows a setting without writing it back.
    void load(const std::function<void()>& loader);

    Settings& settings_;
    std::vector<std::function<void()>> loaders_;
    std::vector<QPointer<NumberField>> numbers_;
    bool loading_ = false;
};

}  // namespace tamo
