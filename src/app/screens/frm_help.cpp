#include "app/screens/frm_help.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFrame>
#include <QTextTable>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/directories.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/screen_table.h"
#include "app/screens/shell.h"
#include "platform/files/paths.h"
#include "platform/qt/icons.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr const char* noGuide =
    "# Help\n\nThe user guide was not found beside the program. Install the program again.";
constexpr int sideWidth = 250;
constexpr int readerWidth = 620;
constexpr int readerHeight = 560;

std::string GuideFolder() {
    const std::string shared =
        SharedFilesDirectory(QApplication::applicationFilePath().toStdString());
    return WithSeparator(WithSeparator(WithSeparator(shared) + "docs") + "guide");
}

/// Shows the guide's pictures in the colours in use, no wider than there is room.
class GuideBrowser : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
        QString path = name.isLocalFile() ? name.toLocalFile() : name.toString();
        if (QDir::isRelativePath(path)) path = QString::fromStdString(GuideFolder()) + path;
        // Screens are pictured in both sets of colours, "price_light.png" and "price_dark.png".
        const QString dark = QString(path).replace("_light.", "_dark.");
        const QImage image(Theme().dark && QFile::exists(dark) ? dark : path);
        const int room = viewport()->width() - 64;
        if (image.width() <= room || room <= 0) return image;
        return image.scaledToWidth(room, Qt::SmoothTransformation);
    }
};

void SpaceOut(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        if (cursor.currentTable()) continue;
        format.setLineHeight(130, QTextBlockFormat::ProportionalHeight);
        format.setBottomMargin(block.textList() ? 4 : 10);
        cursor.setBlockFormat(format);
    }
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table) continue;
        QTextTableFormat format = table->format();
        format.setCellPadding(6);
        format.setCellSpacing(0);
        format.setBorder(0);
        format.setBottomMargin(12);
        table->setFormat(format);
    }
}

frmHelp* OpenHelp() {
    ShowScreen("frmHelp");
    return qobject_cast<frmHelp*>(Form::Find("frmHelp"));
}

void OpenPage(const std::string& page) {
    if (frmHelp* help = OpenHelp()) help->ShowPage(page);
}

void OpenPageOfScreenInFront() {
    const Form* active = Form::Active();
    OpenPage(HelpPageOfScreen(active ? active->Name().toStdString() : std::string()));
}

/// F1 anywhere in the main window, where no field takes it for its own help.
class HelpKey : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || watched->objectName() != "frmMDI") return false;
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) return false;
        RunGuarded(OpenPageOfScreenInFront);
        return true;
    }
};

}  // namespace

frmHelp::frmHelp()
    : Form("frmHelp", "TENDO Help", Place::Child, "HelpForm"),
      pages_(LoadHelpPages(GuideFolder())),
      txtSearch_(new QLineEdit(this)),
      lstPages_(new QListWidget(this)),
      lblFound_(new QLabel(this)),
      rtbPage_(new GuideBrowser(this)) {
    if (pages_.empty()) pages_.push_back({"index.md", "Help", noGuide});
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(16, 16, 16, 16);
    columns->setSpacing(16);
    columns->addWidget(MakeSide());
    columns->addWidget(MakeReader(), 1);
    FillList();
    Visit(0);
    connect(txtSearch_, &QLineEdit::textChanged, this, &frmHelp::FillList);
    connect(txtSearch_, &QLineEdit::returnPressed, this, [this] {
        if (!finds_.empty()) lstPages_->setCurrentRow(0);
    });
    connect(lstPages_, &QListWidget::currentRowChanged, this, &frmHelp::ShowListRow);
    connect(rtbPage_, &QTextBrowser::anchorClicked, this, &frmHelp::LinkClicked);
}

QWidget* frmHelp::MakeSide() {
    auto* side = new QWidget(this);
    side->setFixedWidth(sideWidth);
    auto* rows = new QVBoxLayout(side);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    txtSearch_->setObjectName("txtSearch");
    txtSearch_->setPlaceholderText("Search the guide");
    txtSearch_->setAccessibleName("Search the guide");
    txtSearch_->setClearButtonEnabled(true);
    lblFound_->setObjectName("lblFound");
    lblFound_->setProperty("quiet", true);
    lstPages_->setObjectName("lstPages");
    lstPages_->setAccessibleName("Pages of the guide");
    lstPages_->setWordWrap(true);
    lstPages_->setStyleSheet("QListView::item { padding: 6px 8px; border: 0; }");
    lstPages_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows->addWidget(txtSearch_);
    rows->addWidget(lblFound_);
    rows->addWidget(lstPages_, 1);
    return side;
}

QToolButton* frmHelp::MakeTool(const char* name, const char* icon, const char* tip) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setIcon(LineIcon(icon));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    return button;
}

QWidget* frmHelp::MakeReader() {
    btnBack_ = MakeTool("btnBack", "previous", "Back");
    btnForward_ = MakeTool("btnForward", "next", "Forward");
    connect(btnBack_, &QToolButton::clicked, this, [this] { GoBy(-1); });
    connect(btnForward_, &QToolButton::clicked, this, [this] { GoBy(1); });
    for (const auto& [key, button] : {std::pair(QKeySequence("Alt+Left"), btnBack_),
                                      std::pair(QKeySequence("Alt+Right"), btnForward_)}) {
        auto* shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, &QToolButton::click);
    }
    rtbPage_->setObjectName("rtbPage");
    rtbPage_->setAccessibleName("Page of the guide");
    rtbPage_->setOpenLinks(false);
    rtbPage_->document()->setDocumentMargin(20);
    rtbPage_->setMinimumSize(readerWidth, readerHeight);
    auto* reader = new QWidget(this);
    auto* bar = new QHBoxLayout;
    bar->setSpacing(4);
    bar->addWidget(btnBack_);
    bar->addWidget(btnForward_);
    bar->addStretch();
    auto* rows = new QVBoxLayout(reader);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    rows->addLayout(bar);
    rows->addWidget(rtbPage_, 1);
    return reader;
}

void frmHelp::FillList() {
    const QSignalBlocker quiet(lstPages_);
    finds_ = SearchHelp(pages_, txtSearch_->text().toStdString());
    lstPages_->clear();
    const bool searching = !txtSearch_->text().trimmed().isEmpty();
    lblFound_->setVisible(searching);
    if (!searching) {
        for (const HelpPage& page : pages_)
            lstPages_->addItem(QString::fromStdString(page.title));
        ShowPlace();
        return;
    }
    for (const HelpFind& find : finds_)
        lstPages_->addItem(QString::fromStdString(pages_[find.page].title + "\n" + find.line));
    lblFound_->setText(finds_.empty()       ? QString("Nothing found")
                       : finds_.size() == 1 ? QString("1 place")
                                            : QString("%1 places").arg(finds_.size()));
}

void frmHelp::ShowListRow(int row) {
    const auto at = static_cast<std::size_t>(row);
    if (row < 0) return;
    if (finds_.empty()) {
        if (at < pages_.size()) Visit(at);
        return;
    }
    if (at >= finds_.size()) return;
    Visit(finds_[at].page);
    MarkWords();
}

void frmHelp::MarkWords() {
    const auto row = static_cast<std::size_t>(lstPages_->currentRow());
    const QStringList words = txtSearch_->text().split(' ', Qt::SkipEmptyParts);
    QTextDocument* document = rtbPage_->document();
    // The line itself where it stands in one piece, else the first of its words.
    QTextCursor found = document->find(QString::fromStdString(finds_[row].line));
    if (found.isNull() && !words.isEmpty()) found = document->find(words.first());
    if (!found.isNull()) rtbPage_->setTextCursor(found);
    rtbPage_->ensureCursorVisible();
}

void frmHelp::ShowText(std::size_t page) {
    rtbPage_->setMarkdown(QString::fromStdString(pages_[page].text));
    SpaceOut(*rtbPage_->document());
    rtbPage_->moveCursor(QTextCursor::Start);
    ShowPlace();
}

/// The list, outside of a search, marks the page in front; the buttons tell where one can go.
void frmHelp::ShowPlace() {
    btnBack_->setEnabled(place_ > 0);
    btnForward_->setEnabled(place_ + 1 < history_.size());
    if (!finds_.empty() || history_.empty() || !txtSearch_->text().trimmed().isEmpty()) return;
    const QSignalBlocker quiet(lstPages_);
    lstPages_->setCurrentRow(static_cast<int>(history_[place_]));
}

void frmHelp::Visit(std::size_t page) {
    if (history_.empty() || history_[place_] != page) {
        if (!history_.empty()) history_.resize(place_ + 1);
        history_.push_back(page);
        place_ = history_.size() - 1;
    }
    ShowText(page);
}

void frmHelp::GoBy(int step) {
    place_ = step < 0 ? place_ - 1 : place_ + 1;
    ShowText(history_[place_]);
}

void frmHelp::LinkClicked(const QUrl& link) {
    const std::string target = link.path().toStdString();
    for (std::size_t page = 0; page < pages_.size(); ++page)
        if (pages_[page].file == target) return Visit(page);
    if (!link.scheme().isEmpty()) OpenAssociatedProgram(link.toString().toStdString());
}

void frmHelp::ShowPage(const std::string& file) {
    txtSearch_->clear();
    std::size_t found = 0;
    for (std::size_t page = 0; page < pages_.size(); ++page)
        if (pages_[page].file == file) found = page;
    Visit(found);
    rtbPage_->setFocus();
}

void frmHelp::StartSearch() {
    txtSearch_->setFocus();
    txtSearch_->selectAll();
}

void RegisterHelp() {
    RegisterScreen("frmHelp", [] { return new frmHelp; });
    RegisterProcedure("mnuHelpContents_Click", [] { OpenPage("index.md"); });
    RegisterProcedure("mnuHelpOverview_Click", [] { OpenPage("first-job.md"); });
    RegisterProcedure("mnuHelpSearchHelp_Click", [] {
        if (frmHelp* help = OpenHelp()) help->StartSearch();
    });
    static QPointer<HelpKey> key;
    if (key) return;
    key = new HelpKey(qApp);
    qApp->installEventFilter(key);
}

}  // namespace tendo
