#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <functional>
#include <utility>

namespace tendo::bench {

/// An application that calls `then` once, as soon as a first paint of the window named so has been
/// done: when the delivery that brought it is over, and with it the window's drawing and its hand
/// over to the display, but nothing that comes after it. Header only, so that the empty program
/// beside ours is linked to nothing of it.
class FirstPaintApplication : public QApplication {
  public:
    FirstPaintApplication(int& argc, char** argv, const QString& window, std::function<void()> then)
        : QApplication(argc, argv), window_(window), then_(std::move(then)) {}

    bool notify(QObject* receiver, QEvent* event) override {
        ++depth_;
        const bool handled = QApplication::notify(receiver, event);
        --depth_;
        if (event->type() == QEvent::Paint && receiver->isWidgetType()) {
            const QWidget* window = static_cast<QWidget*>(receiver)->window();
            painted_ = painted_ || window->objectName() == window_;
        }
        if (painted_ && depth_ == 0 && then_) std::exchange(then_, nullptr)();
        return handled;
    }

  private:
    QString window_;
    std::function<void()> then_;
    int depth_ = 0;  // deliveries within deliveries: paints are part of a window's
    bool painted_ = false;
};

}  // namespace tendo::bench
