#pragma once
// The services of a program whose windows are real ones; everything else is a fake.

#include <QApplication>
#include <QTest>
#include <functional>

#include "desktop/desktop_windows.h"
#include "desktop/screen_window.h"
#include "fakes/fake_ports.h"

namespace tests {

struct DesktopWorld {
  desktop::DesktopWindows windows{{}};
  fakes::World fake;
  ui::Messages messages{fake.texts, windows};
  ui::Services services{fake.clock,   fake.locale, fake.drives, fake.no_files, fake.code_page,
                        fake.printer, windows,     fake.texts,  messages,      fake.help};
};

/// A key to whatever has the focus.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* const focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : QApplication::activeWindow(), key, modifiers);
  QApplication::processEvents();
}

inline void show(desktop::ScreenWindow& window) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
}

}  // namespace tests
