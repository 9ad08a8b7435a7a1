#pragma once

#include <QLayout>

namespace tendo {

/// Lays widgets out from left to right and begins a new line where one has no more room, so that a
/// bar of tools shows all of them at any width. Widgets stand in the middle of their line.
class FlowLayout : public QLayout {
    Q_OBJECT
  public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;

  private:
    /// The lines of `width`; their height altogether. Places the items when `place` is given.
    int LayOut(int width, const QRect* place) const;
    void PlaceLine(int from, int to, QPoint corner, int height, const QRect& rect) const;

    QList<QLayoutItem*> items_;
};

}  // namespace tendo
