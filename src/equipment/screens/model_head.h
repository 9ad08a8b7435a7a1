#pragma once

#include <QHeaderView>

namespace tendo {

/// The head of a model grid. All its headings have one line, so one of them tells its height:
/// asking each of thirty at every change is what opening the grid would spend its time on.
class ModelHead : public QHeaderView {
    Q_OBJECT
  public:
    explicit ModelHead(QWidget* parent);
    QSize sizeHint() const override;
    /// Marks a column as the one that the rows stand by; -1: none.
    void ShowSort(int column, bool descending);

  protected:
    void paintSection(QPainter* painter, const QRect& area, int column) const override;
    void changeEvent(QEvent* event) override;

  private:
    mutable QSize hint_;
    int sortColumn_ = -1;
    bool descending_ = false;
};

}  // namespace tendo
