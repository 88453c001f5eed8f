#pragma once
// The services of a program whose windows are real ones; everything else is a fake.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/desktop_windows.h"
#include "desktop/screen_window.h"
#include "fakes/fake_ports.h"
#include "ui/dump.h"

namespace tests {

struct DesktopWorld {
  desktop::DesktopWindows windows{{}};
  fakes::World fake;
  ui::Messages messages{fake.texts, windows};
  ui::Services services{fake.clock, fake.locale, fake.drives, fake.no_files, fake.code_page,
                        fake.printer, windows, fake.texts, messages, fake.help,
                        // Tests tell each Tab themselves; those of moving on switch it on.
                        false};

  /// The same over files of its own.
  [[nodiscard]] ui::Services over(platform::Files& files) {
    return {fake.clock, fake.locale, fake.drives, files,     fake.code_page, fake.printer,
            windows,    fake.texts,  messages,    fake.help, false};
  }
};

/// What has the focus; a real display gives it a moment after it was asked to.
inline QWidget* focused_widget() {
  static_cast<void>(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }, 1000));
  return QApplication::focusWidget();
}

/// A key to whatever has the focus.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* const focus = focused_widget();
  QTest::keyClick(focus != nullptr ? focus : QApplication::activeWindow(), key, modifiers);
  QApplication::processEvents();
}

inline void show(desktop::ScreenWindow& window) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
}

/// Keys of ASCII characters to whatever has the focus.
inline void type(std::string_view text) {
  for (const char c : text) QTest::keyClick(focused_widget(), c);
  QApplication::processEvents();
}

/// The text of a menu or its item without its access key.
inline std::string plain_text(const QAction& action) {
  return ui::without_access_key(action.text().toStdString());
}

/// Acts, and answers every box that comes with Escape; the texts of the boxes.
inline std::vector<std::string> messages_of(const std::function<void()>& act) {
  std::vector<std::string> seen;
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, [&seen] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    seen.push_back(box->text().toStdString());
    QTest::keyClick(box, Qt::Key_Escape);
  });
  answers.start(1);
  act();
  return seen;
}

/// A shown screen whose widgets get keys and nothing else.
template <class S>
struct Shown {
  DesktopWorld world;
  std::unique_ptr<S> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  template <class... Arguments>
  explicit Shown(Arguments&&... arguments) {
    screen = std::make_unique<S>(world.services, std::forward<Arguments>(arguments)...);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  void tab_to(std::string_view name) {
    for (std::size_t i = 0; i <= screen->controls().size(); ++i) {
      if (screen->focused() != nullptr && screen->focused()->name == name) return;
      press(Qt::Key_Tab);
    }
    FAIL() << "Tab does not come to " << name;
  }
  /// The line that the widget shows as chosen, read from the widget.
  [[nodiscard]] int line(std::string_view name) const {
    return window->binding(name)->shown().selected;
  }
};

}  // namespace tests
