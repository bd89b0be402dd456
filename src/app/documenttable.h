#pragma once

#include <QTableView>

namespace tamo {

// The view of the document list. Its rows are documents, so Home and End go to the first and the
// last document (with or without Ctrl) and select it, as the arrow keys select the next one;
// with Shift they extend the selection.
class DocumentTable : public QTableView {
    Q_OBJECT

public:
    using QTableView::QTableView;

protected:
    QModelIndex moveCursor(CursorAction cursorAction, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};

}  // namespace tamo
