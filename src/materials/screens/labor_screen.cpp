#include "materials/screens/labor_screen.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "materials/labor_lists.h"
#include "materials/screens/list_screens.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/scroll_content.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr const char* noList = "(None)";
constexpr int scrollBar = 24;
constexpr int listWidth = 28;  // characters

bool Agreed(const char* question) {
    return Ask("TENDO", question, Buttons::YesNo) == Answer::Yes;
}

}  // namespace

LaborScreen::LaborScreen(const QString& name, const QString& caption, std::vector<LaborRow>& rows)
    : Form(name, caption, Place::Child, name), page_(rows), content_(new QWidget) {
    ScrollContent(this, content_);
    auto* column = new QVBoxLayout(content_);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(14);
    column->addLayout(top_ = new QHBoxLayout);
    top_->setSpacing(8);
    setMinimumSize(520, 320);
}

void LaborScreen::AddToTop(QWidget* control) {
    top_->addWidget(control);
}

void LaborScreen::AddLines() {
    AddListChoice();
    auto* column = static_cast<QVBoxLayout*>(content_->layout());
    lines_ = new LaborRows(page_, content_);
    connect(lines_, &LaborRows::Edited, this, [this] { Edited(); });
    column->addWidget(lines_);
    column->addLayout(bottom_ = new QHBoxLayout);
    bottom_->setSpacing(8);
    bottom_->addStretch();
    column->addStretch();
    AddButton("btnClear", "&Clear all lines", [this] { btnClear_Click(); });
    setFocusProxy(lines_->At(0, LaborField::QtyHrs));
}

QSize LaborScreen::sizeHint() const {
    return {content_->minimumSizeHint().width() + scrollBar, content_->sizeHint().height()};
}

QPushButton* LaborScreen::AddButton(const char* name, const char* caption,
                                    const std::function<void()>& click) {
    auto* button = new QPushButton(caption, content_);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [click] {
        CommitFocusedField();
        click();
    });
    bottom_->insertWidget(bottom_->count() - 1, button);
    return button;
}

void LaborScreen::AddListChoice() {
    ComboSelectList_ = new QComboBox(content_);
    ComboSelectList_->setObjectName("ComboSelectList");
    ComboSelectList_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ComboSelectList_->setMinimumContentsLength(listWidth);
    top_->addStretch();
    top_->addWidget(MakeLabel("Apply &list", ComboSelectList_, content_));
    top_->addWidget(ComboSelectList_);
    connect(ComboSelectList_, &QComboBox::activated, this, &LaborScreen::ComboSelectList_Click);
    connect(&NewsOfLists(), &ListNews::Changed, this, &LaborScreen::FillLists);
    FillLists();
}

void LaborScreen::FillLists() {
    const QString chosen = ComboSelectList_->currentText();
    ComboSelectList_->clear();
    ComboSelectList_->addItem(noList);
    for (const std::string& name : LaborListNames())
        ComboSelectList_->addItem(QString::fromStdString(name));
    chosenList_ = std::max(0, ComboSelectList_->findText(chosen));
    ComboSelectList_->setCurrentIndex(chosenList_);
}

void LaborScreen::ComboSelectList_Click() {
    if (!Agreed("Selecting a Labor list will overwrite all of your current labor entries.  Are you "
                "sure you want to do this?"))
        return ComboSelectList_->setCurrentIndex(chosenList_);
    chosenList_ = ComboSelectList_->currentIndex();
    const std::string name = ComboSelectList_->currentText().toStdString();
    if (Trimmed(name).empty()) return;
    ReadList(name);
    page_.ShowListRows();
    Edited();
}

void LaborScreen::btnClear_Click() {
    if (!Agreed("You have chosen to clear the labor costs.  Are you sure you want to do this?"))
        return;
    page_.Clear();
    ComboSelectList_->setCurrentIndex(chosenList_ = 0);
    Edited();
}

}  // namespace tendo
