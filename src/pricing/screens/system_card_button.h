#pragma once

#include <QAbstractButton>

#include "pricing/screens/system_card.h"

namespace tendo {

/// A system as a card that can be chosen; the current one is checked. The five are one stop of the
/// Tab key, the arrow keys go from one to the next.
class SystemCardButton : public QAbstractButton {
    Q_OBJECT
  public:
    /// `system` counts from 0.
    SystemCardButton(int system, QWidget* parent);
    void ShowCard(const SystemCard& card);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void DrawFrame(QPainter& painter) const;
    void DrawModels(QPainter& painter, int top) const;

    SystemCard card_;
};

}  // namespace tendo
