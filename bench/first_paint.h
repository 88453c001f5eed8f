#pragma once
// Ends the process when a window has been painted: its run time is then the start-up time.

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace bench {

/// Watches the application until the window of that object name has been painted and what was
/// painted has gone to the screen.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QString window) : window_(std::move(window)) {
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (!seen_ && event->type() == QEvent::Paint && widget != nullptr &&
        widget->window()->objectName() == window_) {
      seen_ = true;
      QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
    }
    return false;
  }

 private:
  QString window_;
  bool seen_ = false;
};

}  // namespace bench
