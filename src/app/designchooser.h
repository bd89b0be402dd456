#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

namespace tamo {

class DesignLibrary;
class PdfOutput;
class PreviewPane;

// The design chooser sheet: picking a design renders the current document with it; OK keeps the
// choice once its preview is there, Cancel goes back to the design chosen before.
class DesignChooser : public QDialog {
    Q_OBJECT

public:
    DesignChooser(DesignLibrary& designs, PdfOutput& output, QWidget* parent = nullptr);

    void selectDesign(int index);
    void closeTemplateSheet(bool keep);
    void setTemplateOKButtonEnabled(bool enabled);
    QListWidget* list() const { return list_; }
    QPushButton* okButton() const { return ok_; }
    PreviewPane* preview() const { return preview_; }
    // Escape and the window's close button cancel too.
    void reject() override;

private:
    DesignLibrary& designs_;
    PdfOutput& output_;
    int original_;
    QListWidget* list_;
    PreviewPane* preview_;
    QPushButton* ok_;
};

}  // namespace tamo
