#include "reports/screens/picture_choice.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>

#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/picture_box.h"

namespace tendo {
namespace {

constexpr QSize LargestSample(240, 72);
constexpr const char* PictureFilter =
    "Picture Files|*.bmp;*.wmf;*.emf;*.dib;*.ico;*.gif;*.jpg;*.png;*.svg";

}  // namespace

PictureChoice::PictureChoice(const Names& names, QWidget* parent)
    : QWidget(parent), own_(names.own) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 16);
    column->setSpacing(4);
    const FieldSpec spec = {.name = names.field, .label = names.caption, .maxLength = 255};
    text_ = new TextField(spec, this);
    browse_ = new QPushButton("Browse…", this);
    browse_->setObjectName(names.button);
    browse_->setAccessibleName(QString("Browse for: ") + QString(names.caption).remove('&'));
    browse_->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(text_, 1);
    row->addWidget(browse_);
    picture_ =
        new PictureBox(names.picture, QString(names.caption).remove('&'), LargestSample, this);
    note_ = new QLabel(this);
    note_->setObjectName(QString(names.picture) + "Note");
    note_->setProperty("quiet", true);
    column->addWidget(MakeLabel(names.caption, text_, this));
    column->addLayout(row);
    column->addWidget(picture_);
    column->addWidget(note_);
    connect(text_, &TextField::textChanged, this, &PictureChoice::ShowPicture);
    connect(text_, &TextField::Committed, this,
            [this] { Chosen(text_->text().trimmed().toStdString()); });
    connect(browse_, &QPushButton::clicked, this, &PictureChoice::Browse);
    ShowPicture();
}

void PictureChoice::ShowFile(const std::string& file, bool enabled) {
    text_->ShowText(QString::fromStdString(file));
    text_->setEnabled(enabled);
    browse_->setEnabled(enabled);
}

void PictureChoice::Browse() {
    const auto file = Dialogs().File({.kind = FileDialog::Kind::Open,
                                      .title = "Find Picture",
                                      .filter = PictureFilter,
                                      .fileName = text_->text().toStdString(),
                                      .folder = "",
                                      .defaultExtension = ""});
    if (file && !file->empty()) Chosen(*file);
}

void PictureChoice::ShowPicture() {
    const QString file = text_->text().trimmed();
    const bool exists = QFileInfo(file).isFile();
    picture_->ShowFile(exists ? file.toStdString() : std::string());
    picture_->setVisible(exists);
    note_->setVisible(!exists && !file.isEmpty());
    note_->setText(file == own_ ? "The program's own banner is printed."
                                : "There is no such file.");
}

}  // namespace tendo
