#include "app/popover.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tamo {

Popover::Popover(QWidget* parent) : QFrame(parent, Qt::Popup)
{
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_WindowPropagation);
}

void Popover::openAt(QWidget* anchor)
{
    adjustSize();
    QPoint at = anchor->mapToGlobal(QPoint(0, anchor->height() + 2));
    const QScreen* screen = anchor->screen() ? anchor->screen() : QGuiApplication::primaryScreen();
    if (screen) {
        const QRect room = screen->availableGeometry();
        if (at.y() + height() > room.bottom()) {
            at.setY(anchor->mapToGlobal(QPoint(0, 0)).y() - height() - 2);
        }
        at.setX(std::clamp(at.x(), room.left(), std::max(room.left(), room.right() - width())));
        at.setY(std::max(at.y(), room.top()));
    }
    move(at);
    show();
    raise();
    activateWindow();
}

void Popover::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    emit closed();
}

PagedPopover::PagedPopover(QWidget* parent) : Popover(parent), pages_(new QTabWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(pages_);
}

void PagedPopover::setPages(QWidget* entry, const QString& entryTitle, QWidget* remembered,
                            const QString& rememberedTitle)
{
    pages_->insertTab(kEntryPage, entry, entryTitle);
    pages_->insertTab(kRememberedPage, remembered, rememberedTitle);
}

void PagedPopover::turnTo(int page)
{
    pages_->setCurrentIndex(page == kRememberedPage ? kRememberedPage : kEntryPage);
}

}  // namespace tamo
