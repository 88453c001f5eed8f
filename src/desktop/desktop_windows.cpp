#include "desktop/desktop_windows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>
#include <clocale>

#include "desktop/screen_window.h"
#include "desktop/style.h"

namespace desktop {
namespace {

QString text_of(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Behind a question about an entry stands what was entered, not what stood there before the key.
void show_what_was_taken() {
  auto* const window = qobject_cast<ScreenWindow*>(QApplication::activeWindow());
  if (window != nullptr) window->show_controls();
}

}  // namespace

void prepare_application() {
  // QApplication sets the process locale; a decimal comma in a report is a wrong report.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setPalette(readable(QApplication::palette()));
}

DesktopWindows::DesktopWindows(PathMap paths)
    : paths_(std::move(paths)), idle_([this] {
        // A copy: a message that a screen shows may be there for long.
        for (ui::Screen* const screen : std::vector(open_)) {
          try {
            screen->idle();
          } catch (...) {  // nothing may cross the windowing system's loop
            screen->event_failed(std::current_exception());
          }
        }
      }) {}

DesktopWindows::~DesktopWindows() = default;

int DesktopWindows::show_message(const ui::MessageBox& box) {
  show_what_was_taken();
  QMessageBox window(QApplication::activeWindow());
  window.setWindowTitle(text_of(box.title));
  window.setTextFormat(Qt::PlainText);
  QString text = text_of(box.text);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  window.setText(text);
  window.setIcon(box.buttons.size() > 1 ? QMessageBox::Question : QMessageBox::Warning);
  // One role for all: the buttons stay in the given order on every platform.
  std::map<QAbstractButton*, int> results;
  for (const ui::BoxButton& button : box.buttons) {
    QPushButton* const made = window.addButton(text_of(button.label), QMessageBox::ActionRole);
    results[made] = button.result;
    if (results.size() == 1) window.setDefaultButton(made);
    if (button.result == box.close_result) window.setEscapeButton(made);
  }
  window.exec();
  const auto at = results.find(window.clickedButton());
  return at == results.end() ? box.close_result : at->second;
}

int DesktopWindows::run_modal(ui::Screen& screen) {
  screen.open();
  if (screen.result()) return *screen.result();
  show_what_was_taken();
  ScreenWindow window(screen, QApplication::activeWindow());
  if (on_shown) QTimer::singleShot(0, &window, [this, &window] { on_shown(window); });
  open_.push_back(&screen);
  const auto closed = qScopeGuard([this] { open_.pop_back(); });
  window.exec();
  return screen.result().value_or(ui::kCancel);
}

void DesktopWindows::show_notice(ui::Screen& screen) {
  screen.open();
  auto window = std::make_unique<ScreenWindow>(screen, QApplication::activeWindow());
  window->setModal(false);
  window->show();
  // Painted now, for the work that it speaks of lets no event through.
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  notices_[&screen] = std::move(window);
}

void DesktopWindows::hide_notice(ui::Screen& screen) {
  notices_.erase(&screen);
}

void DesktopWindows::pause(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  // What is typed meanwhile waits for the window that comes.
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void DesktopWindows::copy_text(const std::string& text) {
  QApplication::clipboard()->setText(text_of(text));
}

std::optional<std::string> DesktopWindows::browse_for_folder(const std::string& caption,
                                                             const std::string& initial) {
  const QString chosen = QFileDialog::getExistingDirectory(
      QApplication::activeWindow(), text_of(caption), text_of(paths_.to_system(initial)));
  if (chosen.isEmpty()) return std::nullopt;
  return paths_.from_system(chosen.toStdString());
}

}  // namespace desktop
