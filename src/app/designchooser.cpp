#include "app/designchooser.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/previewpane.h"
#include "pdf/pdfoutput.h"
#include "render/designlibrary.h"

namespace tamo {

DesignChooser::DesignChooser(DesignLibrary& designs, PdfOutput& output, QWidget* parent)
    : QDialog(parent),
      designs_(designs),
      output_(output),
      original_(designs.selectedIndex()),
      list_(new QListWidget(this)),
      preview_(new PreviewPane(this))
{
    setWindowTitle(tr("Choose a Design"));
    setObjectName(QStringLiteral("designChooser"));
    for (const Record* design : designs_.designs()) {
        list_->addItem(design->string("title"));
    }
    list_->setFixedWidth(220);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { closeTemplateSheet(true); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { closeTemplateSheet(false); });
    connect(&output_, &PdfOutput::templatePreviewReady, this, [this](const QString& path) {
        preview_->showFile(path);
        setTemplateOKButtonEnabled(true);
    });
    // A failed preview has been reported; the choice may still be kept.
    connect(&output_, &PdfOutput::templatePreviewFailed, this,
            [this] { setTemplateOKButtonEnabled(true); });

    auto* row = new QHBoxLayout;
    row->addWidget(list_);
    row->addWidget(preview_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row, 1);
    layout->addWidget(buttons);
    resize(900, 680);

    list_->setCurrentRow(original_);
    connect(list_, &QListWidget::currentRowChanged, this, &DesignChooser::selectDesign);
    if (original_ >= 0) {
        selectDesign(original_);
    }
}

void DesignChooser::selectDesign(int index)
{
    if (index < 0) {
        return;
    }
    setTemplateOKButtonEnabled(false);
    output_.selectDesign(index);
}

void DesignChooser::setTemplateOKButtonEnabled(bool enabled)
{
    ok_->setEnabled(enabled);
}

void DesignChooser::closeTemplateSheet(bool keep)
{
    if (keep) {
        output_.generatePreview();
        accept();
        return;
    }
    reject();
}

void DesignChooser::reject()
{
    if (original_ >= 0) {
        designs_.selectDesign(original_);
    }
    QDialog::reject();
}

}  // namespace tamo
