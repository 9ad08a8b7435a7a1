#include "reports/screens/page_thumbnails.h"

#include <QAbstractListModel>
#include <QMap>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>
#include <functional>

#include "platform/qt/painter_page.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int PaperPixels = 104;  // width of a small page
constexpr int Around = 10;

QSize PaperOnList() {
    return {PaperPixels, PaperPixels * page_geometry::PaperHeight / page_geometry::PaperWidth};
}

}  // namespace

/// The pages and what was drawn of them.
class PageThumbnails::Pages : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void SetDocument(const Document* document) {
        beginResetModel();
        document_ = document;
        drawn_.clear();
        wanted_.clear();
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() || !document_ ? 0 : static_cast<int>(document_->pages.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return QString("Page %1").arg(index.row() + 1);
        return {};
    }

    /// Null, and remembered as wanted, while the page isn't drawn at this ratio of pixels.
    QPixmap Drawn(int page, double ratio) {
        const auto found = drawn_.constFind(page);
        if (found != drawn_.constEnd() && found->devicePixelRatio() == ratio) return *found;
        wanted_ << page;
        ratio_ = ratio;
        return {};
    }

    bool HasWanted() const { return !wanted_.isEmpty(); }
    int DrawnPages() const { return static_cast<int>(drawn_.size()); }

    /// Draws one wanted page; those that are no longer `seen` are given up.
    void DrawOne(const std::function<bool(const QModelIndex&)>& seen) {
        while (!wanted_.isEmpty()) {
            const int page = *wanted_.begin();
            wanted_.erase(wanted_.begin());
            const QModelIndex at = index(page);
            if (!at.isValid() || !seen(at)) continue;
            QPixmap picture = QPixmap::fromImage(PageImage(
                *document_, page, PaperPixels * ratio_ * 1440 / page_geometry::PaperWidth));
            picture.setDevicePixelRatio(ratio_);
            drawn_[page] = picture;
            Q_EMIT dataChanged(at, at);
            return;
        }
    }

  private:
    const Document* document_ = nullptr;
    QMap<int, QPixmap> drawn_;
    QSet<int> wanted_;
    double ratio_ = 1;
};

/// Paints a small page, its number below it, and a frame round the one that is shown.
class PageThumbnails::Drawing : public QStyledItemDelegate {
  public:
    Drawing(Pages& pages, PageThumbnails* list)
        : QStyledItemDelegate(list), pages_(pages), list_(list) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return PaperOnList() + QSize(2 * Around, Around + option.fontMetrics.height() + 8);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QRect paper({0, 0}, PaperOnList());
        paper.moveTopLeft({option.rect.center().x() - paper.width() / 2, option.rect.y() + Around});
        painter->fillRect(paper, Qt::white);
        const QPixmap page = pages_.Drawn(index.row(), painter->device()->devicePixelRatioF());
        if (page.isNull())
            list_->drawing_.start();
        else
            painter->drawPixmap(paper.topLeft(), page);
        const bool shown = option.state & QStyle::State_Selected;
        const bool focus = shown && list_->hasFocus();
        const int width = focus ? 3 : shown ? 2 : 1;
        painter->setPen(QPen(shown ? Theme().accent : Theme().line, width));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(paper.adjusted(-width, -width, width - 1, width - 1));
        painter->setPen(shown ? Theme().text : Theme().secondary);
        QFont font = option.font;
        font.setBold(shown);
        painter->setFont(font);
        painter->drawText(QRect(option.rect.x(), paper.bottom() + 4, option.rect.width(),
                                option.fontMetrics.height()),
                          Qt::AlignCenter, QString::number(index.row() + 1));
    }

  private:
    Pages& pages_;
    PageThumbnails* list_;
};

PageThumbnails::PageThumbnails(QWidget* parent) : QListView(parent), pages_(new Pages(this)) {
    setObjectName("lstThumbnails");
    setAccessibleName("Pages");
    setProperty("thumbnails", true);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setModel(pages_);
    setItemDelegate(new Drawing(*pages_, this));
    drawing_.setSingleShot(true);
    drawing_.setInterval(0);
    connect(&drawing_, &QTimer::timeout, this, &PageThumbnails::DrawNext);
}

PageThumbnails::~PageThumbnails() = default;

QSize PageThumbnails::sizeHint() const {
    return {PaperPixels + 2 * Around + verticalScrollBar()->sizeHint().width() + 6, 300};
}

void PageThumbnails::ShowDocument(const Document* document) {
    showing_ = true;
    pages_->SetDocument(document);
    showing_ = false;
}

void PageThumbnails::ShowPage(int page) {
    showing_ = true;
    setCurrentIndex(pages_->index(page));
    showing_ = false;
}

int PageThumbnails::DrawnPages() const {
    return pages_->DrawnPages();
}

void PageThumbnails::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!showing_ && current.isValid()) Q_EMIT PageChosen(current.row());
}

void PageThumbnails::DrawNext() {
    pages_->DrawOne([this](const QModelIndex& index) {
        return isVisible() && visualRect(index).intersects(viewport()->rect());
    });
    if (pages_->HasWanted()) drawing_.start();
}

}  // namespace tendo
