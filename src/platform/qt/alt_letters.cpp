#include "platform/qt/alt_letters.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>

namespace tendo {
namespace {

bool held = false;

void Hold(bool now) {
    if (held == now) return;
    held = now;
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->isVisible() &&
            (qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget)))
            widget->update();
}

class AltWatch : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        const auto type = event->type();
        if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
                Hold(type == QEvent::KeyPress);
        } else if (type == QEvent::WindowDeactivate) {
            Hold(false);  // the key is let go elsewhere
        }
        return false;
    }
};

}  // namespace

void WatchAltKey() {
    static QPointer<AltWatch> watch;
    if (watch) return;
    watch = new AltWatch(qApp);
    qApp->installEventFilter(watch);
}

bool AltIsHeld() {
    return held;
}

}  // namespace tendo
