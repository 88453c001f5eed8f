#include "desktop/idle_timer.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>

namespace desktop {
namespace {

// Milliseconds; who never pauses is not waited for longer than the second.
constexpr qint64 kPause = 500;
constexpr qint64 kLongest = 1500;

bool is_of_the_person(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Shortcut:
      return true;
    default:
      return false;
  }
}

}  // namespace

IdleTimer::IdleTimer(std::function<void()> told) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this, told = std::move(told)] {
    since_.invalidate();
    told();
  });
  qApp->installEventFilter(this);
}

bool IdleTimer::eventFilter(QObject* watched, QEvent* event) {
  if (is_of_the_person(event->type())) {
    if (!since_.isValid()) since_.start();
    const qint64 left = std::max<qint64>(kLongest - since_.elapsed(), 0);
    timer_.start(static_cast<int>(std::min(kPause, left)));
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace desktop
