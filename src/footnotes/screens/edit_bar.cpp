#include "footnotes/screens/edit_bar.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextList>
#include <QToolButton>
#include <algorithm>

#include "footnotes/footnote_file.h"
#include "footnotes/footnote_markup.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/form.h"
#include "platform/qt/icons.h"
#include "platform/qt/rich_document.h"
#include "platform/qt/rich_editor.h"
#include "platform/qt/shown_errors.h"

namespace tendo {

/// One tool: what it does, and for one that can be on, when it is.
struct EditTool {
    const char *name, *icon, *tip, *keys;
    void (*run)(EditBar& bar, RichEditor& editor, bool on);
    bool (*isOn)(const RichEditor& editor) = nullptr;
};

namespace {

constexpr const char* NoFile = "No File";
const QStringList firstFonts = {"Arial", "Times New Roman", "Courier New"};
const int fontSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 28, 36, 48, 72};
constexpr double LargestSize = 200;

QHBoxLayout* AddLine(QVBoxLayout* lines) {
    auto* line = new QHBoxLayout;
    line->setSpacing(2);
    lines->addLayout(line);
    return line;
}

template <Qt::AlignmentFlag alignment>
void Align(EditBar&, RichEditor& editor, bool) {
    editor.setAlignment(alignment);
}

template <Qt::AlignmentFlag alignment>
bool IsAligned(const RichEditor& editor) {
    return editor.alignment() & alignment;
}

}  // namespace

/// In their order, in two lines; a null name parts groups.
const EditTool fontTools[] = {
    {"ToolBold", "bold", "Bold", "Ctrl+B",
     [](EditBar&, RichEditor& editor, bool on) {
         editor.setFontWeight(on ? QFont::Bold : QFont::Normal);
     },
     [](const RichEditor& editor) { return editor.fontWeight() >= QFont::DemiBold; }},
    {"ToolItalics", "italic", "Italics", "Ctrl+I",
     [](EditBar&, RichEditor& editor, bool on) { editor.setFontItalic(on); },
     [](const RichEditor& editor) { return editor.fontItalic(); }},
    {"ToolUnderline", "underline", "Underline", "Ctrl+U",
     [](EditBar&, RichEditor& editor, bool on) { editor.setFontUnderline(on); },
     [](const RichEditor& editor) { return editor.fontUnderline(); }},
    {"ToolColor", "text-color", "Color of the text", "",
     [](EditBar& bar, RichEditor&, bool) { bar.PickColor(); }},
};
const EditTool textTools[] = {
    {"ToolLeftJustify", "align-left", "Align left", "Ctrl+L", Align<Qt::AlignLeft>,
     IsAligned<Qt::AlignLeft>},
    {"ToolCenterJustify", "align-center", "Center", "Ctrl+Shift+E", Align<Qt::AlignHCenter>,
     IsAligned<Qt::AlignHCenter>},
    {"ToolRightJustify", "align-right", "Align right", "Ctrl+R", Align<Qt::AlignRight>,
     IsAligned<Qt::AlignRight>},
    {"ToolBullets", "bullets", "Bullets", "Ctrl+Shift+L",
     [](EditBar&, RichEditor& editor, bool on) { editor.SetBullets(on); },
     [](const RichEditor& editor) { return editor.textCursor().currentList() != nullptr; }},
    {"ToolIndentLeft", "indent-out", "Indent less", "Ctrl+Shift+M",
     [](EditBar&, RichEditor& editor, bool) { editor.Indent(-1); }},
    {"ToolIndentRight", "indent-in", "Indent more", "Ctrl+M",
     [](EditBar&, RichEditor& editor, bool) { editor.Indent(1); }},
    {},
    {"ToolImportTextFile", "import-text", "Import a text file", "",
     [](EditBar& bar, RichEditor&, bool) { bar.ImportTextFile(); }},
    {},
    {"ToolCut", "cut", "Cut", "Ctrl+X", [](EditBar&, RichEditor& editor, bool) { editor.cut(); }},
    {"ToolCopy", "copy", "Copy", "Ctrl+C",
     [](EditBar&, RichEditor& editor, bool) { editor.copy(); }},
    {"ToolPaste", "paste", "Paste", "Ctrl+V",
     [](EditBar&, RichEditor& editor, bool) { editor.paste(); }},
    {},
    {"ToolEnterPageBreak", "page-break", "Insert a page break <PAGE>", "Ctrl+Return",
     [](EditBar& bar, RichEditor&, bool) { bar.Insert(PageBreakToken); }},
    {"ToolEndFootnote", "end-text", "End the footnote here <STOP>", "",
     [](EditBar& bar, RichEditor&, bool) { bar.Insert(EndToken); }},
    {"ToolEnterFinalPrice", "final-price", "Insert the final price <$$$$>", "",
     [](EditBar& bar, RichEditor&, bool) { bar.Insert(FinalPriceToken); }},
};

EditBar::EditBar(RichEditor* editor, QWidget* parent, const QString& whose)
    : QWidget(parent), editor_(editor), whose_(whose) {
    setObjectName("EditBand");
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(2);
    QHBoxLayout* fonts = AddLine(lines);
    AddFonts(fonts);
    AddTools(fonts, fontTools);
    fonts->addStretch(1);
    QHBoxLayout* texts = AddLine(lines);
    AddTools(texts, textTools);
    texts->addStretch(1);
    timer_.setObjectName(TimerName);
    timer_.setParent(parent);
    timer_.setInterval(300);
    connect(&timer_, &QTimer::timeout, this, &EditBar::ShowState);
    connect(editor_, &QTextEdit::cursorPositionChanged, this, &EditBar::ShowState);
    connect(editor_, &QTextEdit::currentCharFormatChanged, this, &EditBar::ShowState);
    editor_->installEventFilter(this);
    connect(editor_, &RichEditor::FileDropped, this,
            [this](const QString& file) { ImportFile(file.toStdString()); });
    timer_.start();
    ShowState();
}

QString EditBar::Spoken(const QString& tool) const {
    return whose_.isEmpty() ? tool : whose_ + ": " + tool;
}

QToolButton* EditBar::MakeTool(const EditTool& tool) {
    auto* button = new QToolButton(this);
    button->setObjectName(tool.name);
    button->setIcon(LineIcon(tool.icon));
    button->setIconSize(QSize(20, 20));
    button->setAutoRaise(true);
    button->setCheckable(tool.isOn != nullptr);
    button->setAccessibleName(Spoken(tool.tip));
    const QKeySequence keys(tool.keys);
    button->setToolTip(keys.isEmpty() ? QString(tool.tip)
                                      : QString("%1 (%2)").arg(tool.tip, keys.toString()));
    if (!keys.isEmpty()) keys_.insert(keys, button);
    connect(button, &QToolButton::clicked, this, [this, &tool, button] {
        tool.run(*this, *editor_, button->isChecked());
        editor_->setFocus();
        ShowState();
    });
    return button;
}

void EditBar::AddTools(QHBoxLayout* line, std::span<const EditTool> tools) {
    for (const EditTool& tool : tools) {
        if (tool.name)
            line->addWidget(MakeTool(tool));
        else
            line->addSpacing(10);
    }
}

void EditBar::AddFonts(QHBoxLayout* line) {
    fonts_ = new QComboBox(this);
    fonts_->setObjectName("ToolFonts");
    fonts_->setAccessibleName(Spoken("Font"));
    fonts_->addItems(firstFonts);
    for (const QString& family : QFontDatabase::families())
        if (!firstFonts.contains(family)) fonts_->addItem(family);
    fonts_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fonts_->setMinimumContentsLength(9);
    sizes_ = new QComboBox(this);
    sizes_->setObjectName("ToolFontSize");
    sizes_->setAccessibleName(Spoken("Font size in points"));
    sizes_->setEditable(true);
    sizes_->setInsertPolicy(QComboBox::NoInsert);
    for (const int size : fontSizes)
        sizes_->addItem(QString::number(size));
    sizes_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    sizes_->setMinimumContentsLength(4);
    connect(fonts_, &QComboBox::activated, this, &EditBar::SetFont);
    connect(sizes_, &QComboBox::textActivated, this, &EditBar::SetFontSize);
    connect(sizes_->lineEdit(), &QLineEdit::editingFinished, this, &EditBar::SetFontSize);
    line->addWidget(fonts_);
    line->addWidget(sizes_);
    line->addSpacing(10);
}

void EditBar::ShowState() {
    for (const std::span<const EditTool> tools :
         {std::span<const EditTool>(fontTools), std::span<const EditTool>(textTools)})
        for (const EditTool& tool : tools)
            if (tool.isOn) findChild<QToolButton*>(tool.name)->setChecked(tool.isOn(*editor_));
    const RichRun run = RunFormatOf(editor_->currentCharFormat());
    fonts_->setCurrentIndex(fonts_->findText(QString::fromStdString(run.font.family)));
    if (!sizes_->lineEdit()->hasFocus())
        sizes_->setEditText(QString::number(run.font.sizeTwips / 20.0));
    findChild<QToolButton*>("ToolCut")->setEnabled(editor_->textCursor().hasSelection());
    findChild<QToolButton*>("ToolCopy")->setEnabled(editor_->textCursor().hasSelection());
    setEnabled(!editor_->isReadOnly());
}

void EditBar::SetFont() {
    editor_->setFontFamily(fonts_->currentText());
    editor_->setFocus();
}

/// A size of "08" counts as "8"; what is no size changes nothing.
void EditBar::SetFontSize() {
    bool number = false;
    const double points = sizes_->currentText().trimmed().toDouble(&number);
    if (number && points >= 1 && points <= LargestSize &&
        points != RunFormatOf(editor_->currentCharFormat()).font.sizeTwips / 20.0)
        editor_->setFontPointSize(points);
    sizes_->setEditText(
        QString::number(RunFormatOf(editor_->currentCharFormat()).font.sizeTwips / 20.0));
}

void EditBar::PickColor() {
    const auto color = Dialogs().Color({"Color", RunFormatOf(editor_->currentCharFormat()).color});
    if (color) editor_->setTextColor(QColor::fromRgb(*color));
}

void EditBar::Insert(std::string_view token) {
    QTextCursor cursor = editor_->textCursor();
    cursor.beginEditBlock();  // a step of undo of its own
    cursor.insertText(QString::fromUtf8(token.data(), static_cast<qsizetype>(token.size())));
    cursor.endEditBlock();
}

/// The keys of the tools work in the text only, ahead of any command of the program on them.
bool EditBar::eventFilter(QObject* watched, QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks && event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    QToolButton* tool = keys_.value(static_cast<QKeyEvent*>(event)->keyCombination());
    if (!tool || !tool->isEnabled()) return QWidget::eventFilter(watched, event);
    if (!asks) tool->click();
    event->accept();
    return true;
}

void EditBar::ImportTextFile() {
    const std::string file = Dialogs()
                                 .File({.kind = FileDialog::Kind::Open,
                                        .title = "Import Text File...",
                                        .filter = "Text File (*.txt;*.rtf)|*.txt;*.rtf",
                                        .fileName = "*.txt",
                                        .folder = "",
                                        .defaultExtension = ""})
                                 .value_or(NoFile);
    if (file != NoFile && !file.empty()) ImportFile(file);
}

void EditBar::ImportFile(const std::string& file) {
    if (Ask("TENDO",
            "Opening this file will overwrite this footnote.  Are you sure you want to do this?",
            Buttons::YesNo) != Answer::Yes)
        return;
    RunShowingErrors(
        [&] {
            const Hourglass pointer;
            editor_->ReplaceText(ReadFootnoteFile(file));
        },
        "Import Text File");
}

}  // namespace tendo
