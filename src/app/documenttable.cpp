#include "app/documenttable.h"

#include <QKeyEvent>

namespace tamo {

namespace {

bool isHomeOrEnd(const QEvent* event)
{
    if (!event || event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Home || key == Qt::Key_End;
}

}  // namespace

QModelIndex DocumentTable::moveCursor(CursorAction cursorAction, Qt::KeyboardModifiers modifiers)
{
    if ((cursorAction == MoveHome || cursorAction == MoveEnd) && model() &&
        model()->rowCount(rootIndex()) > 0) {
        const int row = cursorAction == MoveHome ? 0 : model()->rowCount(rootIndex()) - 1;
        const int column = currentIndex().isValid() ? currentIndex().column() : 0;
        return model()->index(row, column, rootIndex());
    }
    return QTableView::moveCursor(cursorAction, modifiers);
}

QItemSelectionModel::SelectionFlags DocumentTable::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* event) const
{
    // Ctrl would only move the focus; the document list has nothing to do with that.
    if (isHomeOrEnd(event) &&
        !(static_cast<const QKeyEvent*>(event)->modifiers() & Qt::ShiftModifier)) {
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    }
    return QTableView::selectionCommand(index, event);
}

}  // namespace tamo
