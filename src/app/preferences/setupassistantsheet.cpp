#include "app/preferences/setupassistantsheet.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "setup/setupassistant.h"

namespace tamo {

namespace {

QWidget* page(const QString& title, const QString& text, QWidget* content)
{
    auto* page = new QWidget;
    auto* heading = new QLabel(u"<h2>"_qs + title.toHtmlEscaped() + u"</h2>"_qs, page);
    auto* explanation = new QLabel(text, page);
    explanation->setWordWrap(true);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(heading);
    layout->addWidget(explanation);
    if (content) {
        content->setParent(page);
        layout->addWidget(content);
    }
    layout->addStretch();
    return page;
}

}  // namespace

SetupAssistantSheet::SetupAssistantSheet(SetupAssistant& assistant, Settings& settings,
                                         QWidget* parent)
    : QDialog(parent),
      assistant_(assistant),
      fields_(*new SettingFields(settings, this)),
      pages_(new QStackedWidget(this)),
      languages_(new QButtonGroup(this)),
      back_(new QPushButton(tr("Back"), this)),
      next_(new QPushButton(tr("Continue"), this))
{
    setObjectName(QStringLiteral("setupAssistant"));
    setWindowTitle(tr("Setup Assistant"));
    setWindowModality(Qt::WindowModal);

    auto* choices = new QWidget;
    auto* column = new QVBoxLayout(choices);
    column->setSpacing(10);
    for (const StartingLanguage& language : startingLanguages()) {
        auto* choice =
            new QRadioButton(QStringLiteral("%1 — %2").arg(QString::fromUtf8(language.name),
                                                           QString::fromUtf8(language.region)),
                             choices);
        languages_->addButton(choice, language.index);
        column->addWidget(choice);
    }
    selectLanguage(assistant_.language());
    connect(languages_, &QButtonGroup::idClicked, this,
            [this](int language) { assistant_.setLanguage(language); });
    pages_->addWidget(page(
        tr("Welcome to Tamo"),
        tr("In which language do you write your invoices? Tamo fills its settings with starting "
           "values for it: the labels and texts of your documents, number patterns, date format, "
           "currency, taxes and paper size. You can change each of them later in the "
           "preferences."),
        choices));
    pages_->addWidget(page(tr("Your Business"),
                           tr("This is how your documents name you. Everything can be changed "
                              "later under Edit → Preferences → Company."),
                           new CompanyForm(fields_)));
    pages_->addWidget(page(tr("E-Invoices"),
                           tr("Public clients in Germany, and more and more businesses, ask for "
                              "e-invoices (XRechnung). For them, Tamo needs these details of your "
                              "business. You can fill them in later as well."),
                           new SupplierForm(fields_)));
    summary_ = new QLabel;
    summary_->setObjectName(QStringLiteral("assiSummary"));
    summary_->setWordWrap(true);
    pages_->addWidget(page(tr("All Set"),
                           tr("Create your first invoice with File → New Invoice, choose its look "
                              "with Document → Choose Design, and find every setting under Edit → "
                              "Preferences. The assistant can be run again from the Edit menu."),
                           summary_));

    auto* quit = new QPushButton(tr("Quit Tamo"), this);
    quit->setObjectName(QStringLiteral("quitAssi"));
    back_->setObjectName(QStringLiteral("assiBack"));
    next_->setObjectName(QStringLiteral("assiContinue"));
    next_->setDefault(true);
    connect(quit, &QPushButton::clicked, this, &SetupAssistantSheet::quitAssi);
    connect(back_, &QPushButton::clicked, this, &SetupAssistantSheet::back);
    connect(next_, &QPushButton::clicked, this, &SetupAssistantSheet::next);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(quit);
    buttons->addStretch();
    buttons->addWidget(back_);
    buttons->addWidget(next_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_, 1);
    layout->addLayout(buttons);
    resize(760, 560);
    showPage(LanguagePage);
}

void SetupAssistantSheet::selectLanguage(int languageDefaults)
{
    QAbstractButton* choice = languages_->button(languageDefaults);
    (choice ? choice : languages_->buttons().value(0))->setChecked(true);
    assistant_.setLanguage(languages_->checkedId());
}

void SetupAssistantSheet::showPage(int page)
{
    pages_->setCurrentIndex(page);
    assistant_.setPage(page);
    back_->setEnabled(page > LanguagePage);
    next_->setText(page == FinishPage ? tr("Start Using Tamo") : tr("Continue"));
    if (page == FinishPage) {
        summary_->setText(assistant_.summary());
    }
    if (QWidget* first = pages_->currentWidget()->findChild<QLineEdit*>()) {
        first->setFocus(Qt::OtherFocusReason);
    }
}

void SetupAssistantSheet::firstAssiTabAction()
{
    assistant_.setLanguage(languages_->checkedId());
    assistant_.firstAssiTabAction();
    // The next pages show what the starting values brought (country, currency).
    fields_.reload();
    showPage(CompanyPage);
}

void SetupAssistantSheet::next()
{
    switch (pages_->currentIndex()) {
    case LanguagePage:
        firstAssiTabAction();
        break;
    case FinishPage:
        closeAssi();
        break;
    default:
        fields_.commit();
        showPage(pages_->currentIndex() + 1);
    }
}

void SetupAssistantSheet::back()
{
    fields_.commit();
    showPage(std::max(0, pages_->currentIndex() - 1));
}

void SetupAssistantSheet::closeAssi()
{
    fields_.commit();
    accept();
    if (assistant_.closeAssi()) {
        emit manualRequested();
    }
}

void SetupAssistantSheet::quitAssi()
{
    if (isVisible()) {
        reject();
    }
    emit quitRequested();
}

}  // namespace tamo
