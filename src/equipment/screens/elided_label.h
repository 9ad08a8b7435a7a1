#pragma once

#include <QLabel>

namespace tendo {

/// A label that shortens its text with an ellipsis where there is too little room for it.
class ElidedLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ElidedLabel(QWidget* parent);
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tendo
