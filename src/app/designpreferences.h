#pragma once

#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <memory>

#include "pdf/pdfrenderer.h"

class QListWidget;
class QPlainTextEdit;
class QTabWidget;

namespace tamo {

class AppSession;
class Context;
class DesignLibrary;
class PreviewPane;
class Record;

// The Designs pane: the list of designs with add, delete, make default, import and export, and a
// text editor for the selected design's page, row and style sheet. Edits are written to the
// design as they are typed (one undo step per pause) and previewed with sample data.
class DesignPane : public QWidget {
    Q_OBJECT

public:
    DesignPane(AppSession& session, DesignLibrary& designs, QWidget* parent = nullptr);
    ~DesignPane() override;

    QListWidget* list() const { return list_; }
    QPlainTextEdit* editor(int part) const { return editors_[part]; }
    PreviewPane* preview() const { return preview_; }
    // Renders the sample document with the texts in the editors.
    void previewDesign();
    void showPreview(const QByteArray& pdf);
    // Writes edits still waiting for their pause.
    void commitEdits();

private:
    void reload();
    void showSelected();
    Record* selected() const;

    AppSession& session_;
    DesignLibrary& designs_;
    QListWidget* list_;
    QTabWidget* tabs_;
    QPlainTextEdit* editors_[3];
    PreviewPane* preview_;
    QTimer pause_;
    bool loading_ = false;
    // The sample document lives in a store of its own, so that it never shows up in the list.
    QTemporaryDir sampleFolder_;
    std::unique_ptr<Context> sampleStore_;
    Record* sample_ = nullptr;
    std::unique_ptr<PdfRenderer> renderer_;
};

}  // namespace tamo
