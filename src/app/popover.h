#pragma once

#include <QFrame>

class QTabWidget;

namespace tamo {

// A small panel that opens beside the control that asked for it and closes when the person
// clicks elsewhere or presses Escape, like a popover.
class Popover : public QFrame {
    Q_OBJECT

public:
    explicit Popover(QWidget* parent = nullptr);

    // Shows the panel below `anchor` (or above it when there is no room below).
    void openAt(QWidget* anchor);

signals:
    void closed();

protected:
    void hideEvent(QHideEvent* event) override;
};

// A popover with a page to enter a value and a page of remembered ones to take it from, numbered
// 0 and 1 as the page settings count them.
class PagedPopover : public Popover {
    Q_OBJECT

public:
    static constexpr int kEntryPage = 0;
    static constexpr int kRememberedPage = 1;

    explicit PagedPopover(QWidget* parent = nullptr);
    QTabWidget* pages() const { return pages_; }

protected:
    void setPages(QWidget* entry, const QString& entryTitle, QWidget* remembered,
                  const QString& rememberedTitle);
    // The remembered page when `page` names it, else the entry page.
    void turnTo(int page);

private:
    QTabWidget* pages_;
};

}  // namespace tamo
