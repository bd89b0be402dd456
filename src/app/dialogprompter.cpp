#include "app/dialogprompter.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
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

// Puts the request's message above everything else of the dialog. The desktop's own panels have
// no place for it, so a panel with a message is the toolkit's.
void showMessage(QFileDialog& dialog, const QString& message)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
    if (!grid) {
        return;
    }
    struct Placed {
        QLayoutItem* item;
        int row, column, rows, columns;
    };
    std::vector<Placed> placed;
    while (grid->count() > 0) {
        Placed p{nullptr, 0, 0, 0, 0};
        grid->getItemPosition(0, &p.row, &p.column, &p.rows, &p.columns);
        p.item = grid->takeAt(0);
        placed.push_back(p);
    }
    for (const Placed& p : placed) {
        grid->addItem(p.item, p.row + 1, p.column, p.rows, p.columns);
    }
    auto* label = new QLabel(message, &dialog);
    label->setObjectName(QStringLiteral("panelMessage"));
    label->setWordWrap(true);
    grid->addWidget(label, 0, 0, 1, grid->columnCount());
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
    QFileDialog dialog(window_, request.title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    if (const QString filter = nameFilter(request); !filter.isEmpty()) {
        dialog.setNameFilter(filter);
        dialog.setDefaultSuffix(request.extensions.first());
    }
    if (!request.message.isEmpty()) {
        showMessage(dialog, request.message);
    }
    if (!proposed.isEmpty()) {
        dialog.selectFile(proposed);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    const QString path = dialog.selectedFiles().first();
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

}  // namespace tamo
