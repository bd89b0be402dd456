#include "app/designpreferences.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/previewpane.h"
#include "interchange/plistfile.h"
#include "model/appsession.h"
#include "render/designlibrary.h"
#include "render/invoicehtml.h"
#include "render/pagelayout.h"
#include "render/sampledocument.h"

namespace tamo {

namespace {

// The design's parts in the order of the editor tabs.
constexpr const char* kParts[] = {"invoice", "item", "css"};

}  // namespace

DesignPane::DesignPane(AppSession& session, DesignLibrary& designs, QWidget* parent)
    : QWidget(parent),
      session_(session),
      designs_(designs),
      list_(new QListWidget(this)),
      tabs_(new QTabWidget(this)),
      preview_(new PreviewPane(this))
{
    setObjectName(QStringLiteral("prefs_design_Template"));
    list_->setFixedWidth(220);
    const QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString names[] = {tr("Page"), tr("Row"), tr("Style Sheet")};
    for (int part = 0; part < 3; ++part) {
        editors_[part] = new QPlainTextEdit(this);
        editors_[part]->setFont(mono);
        editors_[part]->setLineWrapMode(QPlainTextEdit::NoWrap);
        editors_[part]->setTabStopDistance(editors_[part]->fontMetrics().horizontalAdvance(u' ') *
                                           2);
        tabs_->addTab(editors_[part], names[part]);
        connect(editors_[part], &QPlainTextEdit::textChanged, this, [this] {
            if (!loading_) {
                pause_.start();
            }
        });
    }
    tabs_->addTab(preview_, tr("Preview"));
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) {
        if (tabs_->widget(tab) == preview_) {
            previewDesign();
        }
    });
    pause_.setSingleShot(true);
    pause_.setInterval(600);
    connect(&pause_, &QTimer::timeout, this, &DesignPane::commitEdits);

    auto* add = new QPushButton(tr("Add"), this);
    auto* remove = new QPushButton(tr("Delete"), this);
    auto* makeDefault = new QPushButton(tr("Make Default"), this);
    auto* import = new QPushButton(tr("Import…"), this);
    auto* exportButton = new QPushButton(tr("Export…"), this);
    connect(add, &QPushButton::clicked, this, [this] {
        commitEdits();
        if (designs_.addDesign()) {
            reload();
            // A new design starts with its title being edited.
            list_->editItem(list_->currentItem());
        }
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        commitEdits();
        if (designs_.deleteDesign()) {
            reload();
        }
    });
    connect(makeDefault, &QPushButton::clicked, this, [this] {
        designs_.makeDefaultDesign();
        reload();
    });
    connect(import, &QPushButton::clicked, this, [this] {
        commitEdits();
        if (designs_.importDesign() == ActionResult::Done) {
            reload();
        }
    });
    connect(exportButton, &QPushButton::clicked, this, [this] {
        commitEdits();
        designs_.exportDesign();
    });
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!loading_ && row >= 0) {
            commitEdits();
            designs_.selectDesign(row);
            showSelected();
        }
    });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        Record* design = selected();
        if (loading_ || !design || !session_.context()) {
            return;
        }
        const QString title = item->text().trimmed().remove(QStringLiteral(" ★"));
        if (title != design->string("title")) {
            UndoGroup group(*session_.context(), tr("Rename Design"));
            design->setValue("title", title);
        }
        session_.saveContext();
    });

    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {add, remove, makeDefault, import, exportButton}) {
        buttons->addWidget(b);
    }
    buttons->addStretch();
    auto* row = new QHBoxLayout;
    row->addWidget(list_);
    row->addWidget(tabs_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row, 1);
    layout->addLayout(buttons);
    reload();
}

DesignPane::~DesignPane()
{
    commitEdits();
}

Record* DesignPane::selected() const
{
    const auto list = designs_.designs();
    const int row = list_->currentRow();
    return row >= 0 && row < int(list.size()) ? list[size_t(row)] : nullptr;
}

void DesignPane::reload()
{
    loading_ = true;
    list_->clear();
    for (const Record* design : designs_.designs()) {
        const QString mark = design->boolean("isDefault") ? QStringLiteral(" ★") : QString();
        auto* item = new QListWidgetItem(design->string("title") + mark, list_);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
    }
    list_->setCurrentRow(designs_.selectedIndex());
    loading_ = false;
    showSelected();
}

void DesignPane::showSelected()
{
    const Record* design = selected();
    loading_ = true;
    for (int part = 0; part < 3; ++part) {
        editors_[part]->setPlainText(design ? design->string(kParts[part]) : QString());
        editors_[part]->setEnabled(design != nullptr);
    }
    loading_ = false;
    if (tabs_->currentWidget() == preview_) {
        previewDesign();
    }
}

void DesignPane::commitEdits()
{
    pause_.stop();
    Record* design = selected();
    Context* context = session_.context();
    if (!design || !context) {
        return;
    }
    bool changed = false;
    for (int part = 0; part < 3; ++part) {
        changed |= editors_[part]->toPlainText() != design->string(kParts[part]);
    }
    if (!changed) {
        return;
    }
    {
        UndoGroup group(*context, tr("Edit Design"));
        for (int part = 0; part < 3; ++part) {
            const QString text = editors_[part]->toPlainText();
            if (text != design->string(kParts[part])) {
                design->setValue(kParts[part], text);
            }
        }
    }
    session_.saveContext();
    emit designs_.designsChanged();
}

void DesignPane::previewDesign()
{
    if (!sampleStore_) {
        auto opened = Context::open(sampleFolder_.filePath(QStringLiteral("sample.zqdb")));
        if (!opened) {
            session_.prompter().presentError(opened.error());
            return;
        }
        sampleStore_ = std::move(*opened);
        sample_ = insertSampleDocument(*sampleStore_, session_.clock().now());
        renderer_ = std::make_unique<PdfRenderer>(session_.applicationDataDirectory());
    }
    PageInput input;
    input.design = {editors_[0]->toPlainText(), editors_[1]->toPlainText(),
                    editors_[2]->toPlainText()};
    input.document = sample_;
    input.items = sample_->toMany("items");
    std::ranges::sort(input.items, {}, &Record::primaryKey);
    input.rowCurrency = sample_->string("currency");
    input.dataFolder = session_.applicationDataDirectory();
    renderer_->cancelAll();
    renderer_->render(
        fillPage(input, session_.settings()),
        pageLayoutForDesign(session_.settings(), editors_[2]->toPlainText()),
        [this](const Result<QByteArray>& pdf) {
            if (pdf) {
                showPreview(*pdf);
            } else {
                showOoops(session_.prompter(),
                          tr("Something went really wrong while creating the design preview.") +
                              u"\n\n"_qs + pdf.error().text());
            }
        });
}

void DesignPane::showPreview(const QByteArray& pdf)
{
    const QString path = sampleFolder_.filePath(QStringLiteral("Design Preview.pdf"));
    if (writeFileAtomically(path, pdf)) {
        preview_->showFile(path);
    }
}

}  // namespace tamo
