#pragma once

#include <QObject>
#include <QTimer>

#include "pdf/pdfoutput.h"

namespace tamo {

class AppSession;
class DesignLibrary;

// Keeps the preview of the current document up to date: a change of the document, its lines,
// the selection or the design asks for a new preview, and changes that come close together are
// rendered once. The result of a page printing when a newer request comes is dropped, so the
// preview shows the last state as soon as it can.
class LivePreview : public QObject {
    Q_OBJECT

public:
    LivePreview(AppSession& session, DesignLibrary& designs, PdfOutput& output,
                QObject* parent = nullptr);

    // How long changes are gathered before a preview is rendered.
    void setDelay(int milliseconds) { timer_.setInterval(milliseconds); }
    void setEnabled(bool enabled);
    bool isEnabled() const { return enabled_; }
    // Asks for a new preview.
    void refresh();

signals:
    // The preview file was rewritten.
    void updated(const QString& path);
    // No document is selected: the preview shows nothing.
    void emptied();

private:
    void contextChanged();

    AppSession& session_;
    PdfOutput& output_;
    QTimer timer_;
    bool enabled_ = true;
    QMetaObject::Connection changes_;
};

}  // namespace tamo
