#include "reports/screens/banner_view.h"

#include <QPainter>

#include "platform/qt/painter_page.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

// The part of the paper that is shown, in twips: all of its printable width, from above the text
// to below the line under the banner.
constexpr int Top = page_geometry::PaperMargin + 520, Bottom = page_geometry::PaperMargin + 2720;
constexpr int SmallestWidth = 480, UsualWidth = 720;

}  // namespace

BannerView::BannerView(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    setAccessibleName("Preview of the banner");
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setMinimumSize(SmallestWidth, heightForWidth(SmallestWidth));
}

void BannerView::ShowDocument(Document document) {
    document_ = std::move(document);
    image_ = {};
    update();
}

int BannerView::heightForWidth(int width) const {
    return width * (Bottom - Top) / page_geometry::Width;
}

QSize BannerView::sizeHint() const {
    return {UsualWidth, heightForWidth(UsualWidth)};
}

void BannerView::paintEvent(QPaintEvent*) {
    if (image_.isNull()) {
        const double ratio = devicePixelRatioF();
        const double scale = width() * ratio / page_geometry::Width;
        image_ = QImage(size() * ratio, QImage::Format_RGB32);
        image_.fill(Qt::white);
        QPainter page(&image_);
        page.translate(-page_geometry::PaperMargin * scale, -Top * scale);
        if (!document_.pages.empty()) PaintPage(page, document_, 0, scale);
        page.end();
        image_.setDevicePixelRatio(ratio);
    }
    QPainter painter(this);
    painter.drawImage(0, 0, image_);
    painter.setPen(Theme().line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void BannerView::resizeEvent(QResizeEvent* event) {
    image_ = {};
    QWidget::resizeEvent(event);
}

}  // namespace tendo
