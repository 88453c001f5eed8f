#include "desktop/desktop_windows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QGridLayout>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QSpacerItem>
#include <QTimer>
#include <algorithm>
#include <clocale>
#include <iterator>
#include <utility>

#include "desktop/screen_window.h"
#include "desktop/style.h"
#include "ui/access_keys.h"
#include "ui/front_end.h"

namespace desktop {
namespace {

QString text_of(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QMessageBox::Icon icon_of(ui::Sign sign) {
  switch (sign) {
    case ui::Sign::kInformation:
      return QMessageBox::Information;
    case ui::Sign::kQuestion:
      return QMessageBox::Question;
    case ui::Sign::kWarning:
      break;
  }
  return QMessageBox::Warning;
}

ScreenWindow* active_screen() {
  return qobject_cast<ScreenWindow*>(QApplication::activeWindow());
}

// Behind a question about an entry stands what was entered, not what stood there before the key. Not
// only in the active window: that may be a notice of work that is going on.
void show_what_was_taken() {
  for (QWidget* const widget : QApplication::topLevelWidgets())
    if (auto* const window = qobject_cast<ScreenWindow*>(widget)) window->show_controls();
}

// A message that opens beside what it is about.
class Box : public QMessageBox {
 public:
  Box(QWidget* parent, const QWidget* of) : QMessageBox(parent), of_(of) {}

 protected:
  void showEvent(QShowEvent* event) override {
    // It has its size now, and is not on the display yet.
    QMessageBox::showEvent(event);
    if (of_ == nullptr) return;
    const QWidget& window = *of_->window();
    // The frame of a window that is not there yet is as wide as that of the one that is.
    const QSize whole = size() + window.frameGeometry().size() - window.size();
    const QRect field(of_->mapToGlobal(QPoint(0, 0)), of_->size());
    constexpr int kGap = 12;
    const auto corner = ui::place_beside(place_of(field), {whole.width(), whole.height()},
                                         place_of(of_->screen()->availableGeometry()), kGap);
    if (corner) move(corner->left, corner->top);
  }

 private:
  const QWidget* of_;
};

// A short message is narrower than the title above it, which would be cut. The toolkit counts with
// less than a title bar takes, which others draw: bold letters, a sign, buttons.
void make_room_for_title(QMessageBox& box) {
  constexpr int kBesideTitle = 110;
  QFont bold = QApplication::font("QMdiSubWindowTitleBar");
  bold.setBold(true);
  const int width = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + kBesideTitle;
  if (auto* const grid = qobject_cast<QGridLayout*>(box.layout()))
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

QIcon program_icon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64})
    icon.addFile(QStringLiteral(":/icon/kavrel-%1.png").arg(size), QSize(size, size));
  return icon;
}

// The system's palette as it is now, mended where it cannot be read.
void take_palette() {
  if (const QPalette wanted = readable(QApplication::palette()); wanted != QApplication::palette())
    QApplication::setPalette(wanted);
  // What has colours of its own is dressed anew.
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    auto* const screen = qobject_cast<ScreenWindow*>(window);
    if (screen == nullptr) continue;
    screen->show_controls();
    for (ClickableLabel* const label : screen->findChildren<ClickableLabel*>()) label->dress_anew();
  }
}

// The person may change from light to dark while the program runs.
class PaletteWatch : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && !taking_) {
      const auto done = qScopeGuard([this] { taking_ = false; });
      taking_ = true;
      take_palette();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  bool taking_ = false;
};

}  // namespace

void prepare_application() {
  // QApplication sets the process locale; a decimal comma in a report is a wrong report.
  std::setlocale(LC_NUMERIC, "C");
  if (static bool prepared = false; !std::exchange(prepared, true)) {
    QApplication::setStyle(make_style());
    QApplication::setWindowIcon(program_icon());
    qApp->installEventFilter(new PaletteWatch(qApp));
  }
  take_palette();
}

DesktopWindows::DesktopWindows(platform::Paths paths)
    : paths_(std::move(paths)), idle_([this] { ui::tell_idle(open_); }) {}

DesktopWindows::~DesktopWindows() = default;

int DesktopWindows::show_message(const ui::MessageBox& box) {
  show_what_was_taken();
  const ScreenWindow* const behind = active_screen();
  Box window(QApplication::activeWindow(), behind == nullptr ? nullptr : behind->spoken_of());
  window.setWindowTitle(text_of(box.title));
  window.setTextFormat(Qt::PlainText);
  QString text = text_of(box.text);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  window.setText(text);
  window.setIcon(icon_of(box.sign));
  // One role for all: the buttons stay in the given order on every platform.
  std::map<QAbstractButton*, int> results;
  const std::vector<char> keys = ui::access_keys_of(box);
  for (std::size_t at = 0; at < box.buttons.size(); ++at) {
    const ui::BoxButton& button = box.buttons[at];
    QPushButton* const made = window.addButton(text_of(ui::with_access_key(button.label, keys[at])),
                                               QMessageBox::ActionRole);
    results[made] = button.result;
    if (results.size() == 1) window.setDefaultButton(made);
    if (button.result == box.close_result) window.setEscapeButton(made);
  }
  make_room_for_title(window);
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

bool DesktopWindows::copy_text(const std::string& text) {
  const QString copied = text_of(text);
  QApplication::clipboard()->setText(copied);
  return QApplication::clipboard()->text() == copied;
}

std::optional<std::string> DesktopWindows::browse_for_folder(const std::string& caption,
                                                             const std::string& initial) {
  const QString chosen = QFileDialog::getExistingDirectory(
      QApplication::activeWindow(), text_of(caption), text_of(paths_.to_system(initial)));
  if (chosen.isEmpty()) return std::nullopt;
  return paths_.from_system(chosen.toStdString());
}

}  // namespace desktop
