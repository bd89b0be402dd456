#include "app/helpmenu.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMenuBar>
#include <QMessageBox>

#include "app/mainwindow.h"
#include "platform/manual.h"

namespace tamo {

namespace {

void showManual(QWidget* parent)
{
    const QUrl manual = manualUrl();
    if (manual.isEmpty() || !QDesktopServices::openUrl(manual)) {
        QMessageBox::warning(
            parent, QObject::tr("Hint!"),
            manual.isEmpty()
                ? QObject::tr("The manual is not installed with this copy of Tamo.")
                : QObject::tr("No program could open the manual (%1). Please install a web "
                              "browser.")
                      .arg(manual.toLocalFile()));
    }
}

void showAbout(QWidget* parent)
{
    QMessageBox box(parent);
    box.setWindowTitle(QObject::tr("About Tamo"));
    box.setIconPixmap(QApplication::windowIcon().pixmap(96, 96));
    box.setTextFormat(Qt::RichText);
    box.setText(QStringLiteral("<h2>Tamo %1</h2><p>%2</p>")
                    .arg(QApplication::applicationVersion().toHtmlEscaped(),
                         QObject::tr("Invoices, quotes and e-invoices for freelancers and small "
                                     "businesses.")));
    box.setInformativeText(
        QObject::tr("<p>Copyright © 2026 The Tamo developers.</p><p>Tamo is free software: you "
                    "can redistribute it and modify it under the terms of the GNU General Public "
                    "License, version 3 or (at your option) any later version. It comes with "
                    "ABSOLUTELY NO WARRANTY.</p>"));
    box.exec();
}

}  // namespace

void installHelpMenu(MainWindow& window)
{
    QMenu* help = window.menuBar()->addMenu(QObject::tr("&Help"));
    help->setObjectName(QStringLiteral("helpMenu"));
    QAction* manual =
        help->addAction(QIcon::fromTheme(QStringLiteral("help-contents")),
                        QObject::tr("Tamo &Manual"), &window, [&window] { showManual(&window); });
    manual->setObjectName(QStringLiteral("showManual"));
    manual->setShortcut(QKeySequence::HelpContents);
    help->addSeparator();
    QAction* about =
        help->addAction(QIcon::fromTheme(QStringLiteral("help-about")), QObject::tr("&About Tamo"),
                        &window, [&window] { showAbout(&window); });
    about->setObjectName(QStringLiteral("aboutTamo"));
    about->setMenuRole(QAction::AboutRole);
    help->addAction(QObject::tr("About &Qt"), qApp, &QApplication::aboutQt)
        ->setMenuRole(QAction::AboutQtRole);
}

}  // namespace tamo
