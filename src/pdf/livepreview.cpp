#include "pdf/livepreview.h"

#include "model/appsession.h"
#include "render/designlibrary.h"

namespace tamo {

namespace {

// Long enough to gather the changes of one edit (a field, then its totals and save), short
// enough not to be felt.
constexpr int kGatherMilliseconds = 15;

}  // namespace

LivePreview::LivePreview(AppSession& session, DesignLibrary& designs, PdfOutput& output,
                         QObject* parent)
    : QObject(parent), session_(session), output_(output)
{
    timer_.setSingleShot(true);
    timer_.setInterval(kGatherMilliseconds);
    connect(&timer_, &QTimer::timeout, this, [this] {
        if (!enabled_) {
            return;
        }
        if (session_.documents().current()) {
            output_.generatePreview();
        } else {
            // Without a document there is nothing to preview, not the last document.
            output_.cancelPreview();
            emit emptied();
        }
    });
    connect(&output_, &PdfOutput::previewReady, this, &LivePreview::updated);
    connect(&session_.documents(), &DocumentList::selectionChanged, this, &LivePreview::refresh);
    connect(&session_, &AppSession::contextChanged, this, &LivePreview::contextChanged);
    connect(&designs, &DesignLibrary::selectionChanged, this, &LivePreview::refresh);
    connect(&designs, &DesignLibrary::designsChanged, this, &LivePreview::refresh);
    contextChanged();
}

void LivePreview::setEnabled(bool enabled)
{
    enabled_ = enabled;
    if (enabled) {
        refresh();
    }
}

void LivePreview::refresh()
{
    if (enabled_) {
        timer_.start();
    }
}

void LivePreview::contextChanged()
{
    disconnect(changes_);
    if (Context* context = session_.context()) {
        changes_ = connect(context, &Context::objectsDidChange, this, [this](const ChangeSet& c) {
            if (c.touches("Invoice") || c.touches("Item") || c.touches("Design")) {
                refresh();
            }
        });
    }
    refresh();
}

}  // namespace tamo
