#pragma once

#include <QFrame>
#include <QPointer>

#include "pricing/price_reason.h"

class QVBoxLayout;

namespace tendo {

/// A small window at a field that tells where its figure comes from. Any key, Esc among them, or a
/// click beside it closes it, and the focus is where it was.
class WhyPopup : public QFrame {
    Q_OBJECT
  public:
    /// Opens one at `field`, which stands on the form that owns it.
    static void ShowAt(QWidget* field, const PriceReason& reason);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    explicit WhyPopup(QWidget* form);
    void Fill(const PriceReason& reason);
    void AddHead(const PriceReason& reason);
    void AddText(const char* name, const std::string& text, bool quiet);
    void AddParts(const PriceReason& reason);
    void PlaceAt(const QWidget* field);

    QVBoxLayout* column_;
    QPointer<QWidget> before_;  // held the focus
};

}  // namespace tendo
