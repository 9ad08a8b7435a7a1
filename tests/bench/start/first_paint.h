#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace tendo::bench {

/// Calls `then` once, when a paint of the window named so has been done. Header only, so that the
/// empty program beside ours is linked to nothing of it.
class FirstPaint : public QObject {
  public:
    FirstPaint(const QString& window, std::function<void()> then)
        : window_(window), then_(std::move(then)) {
        qApp->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || seen_) return false;
        const auto* widget = qobject_cast<const QWidget*>(watched);
        if (!widget || widget->window()->objectName() != window_) return false;
        seen_ = true;
        QTimer::singleShot(0, this, [this] { then_(); });
        return false;
    }

  private:
    QString window_;
    std::function<void()> then_;
    bool seen_ = false;
};

}  // namespace tendo::bench
