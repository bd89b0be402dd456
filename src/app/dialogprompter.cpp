#include "app/dialogprompter.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace tamo {

namespace {
QString nameFilter(const FileRequest& request)
{
    if (request.extensions.isEmpty()) {
        return {};
    }
    QStringList patterns;
    for (const QString& e : request.extensions) {
        patterns << QStringLiteral("*.") + e;
    }
    return QObject::tr("Tamo files (%1)").arg(patterns.join(u' '));
}
}  // namespace

QString DialogPrompter::ask(const Alert& alert)
{
    QMessageBox box(window_);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(alert.title);
    box.setText(alert.title);
    box.setInformativeText(alert.text);
    QList<QAbstractButton*> buttons;
    for (int i = 0; i < alert.buttons.size(); ++i) {
        const QString& text = alert.buttons[i];
        const bool cancel = text == QObject::tr("Cancel") || text == u"Cancel";
        QPushButton* b = box.addButton(
            text, i == 0 ? QMessageBox::AcceptRole
                         : (cancel ? QMessageBox::RejectRole : QMessageBox::DestructiveRole));
        if (i == 0) {
            box.setDefaultButton(b);
        }
        if (cancel) {
            box.setEscapeButton(b);
        }
        buttons << b;
    }
    box.exec();
    const int chosen = int(buttons.indexOf(box.clickedButton()));
    return chosen >= 0 ? alert.buttons[chosen] : alert.buttons.value(alert.buttons.size() - 1);
}

bool DialogPrompter::presentError(const Error& error)
{
    QMessageBox box(QMessageBox::Critical, QObject::tr("Error!"), error.message, QMessageBox::Ok,
                    window_);
    box.setInformativeText(error.reason);
    box.exec();
    return false;
}

std::optional<QString> DialogPrompter::chooseFileToOpen(const FileRequest& request)
{
    const QString path = request.directories
                             ? QFileDialog::getExistingDirectory(window_, request.title)
                             : QFileDialog::getOpenFileName(window_, request.title,
                                                            request.directory, nameFilter(request));
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

std::optional<QString> DialogPrompter::chooseFileToSave(const FileRequest& request)
{
    QString proposed = request.proposedName;
    if (!proposed.isEmpty() && !request.extensions.isEmpty() &&
        !proposed.endsWith(u'.' + request.extensions.first())) {
        proposed += u'.' + request.extensions.first();
    }
    const QString path =
        QFileDialog::getSaveFileName(window_, request.title, proposed, nameFilter(request));
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

}  // namespace tamo
