#include "desktop/idle_timer.h"

#include <QCoreApplication>
#include <QEvent>

#include "ui/front_end.h"

namespace desktop {
namespace {

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
    timer_.start(ui::until_pause(since_.elapsed()));
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace desktop
