#include "desktop/desktop_help.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "text/ids.h"
#include "text/texts.h"

namespace desktop {
namespace {

QString text_of(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Only the path tells which language the person reads.
text::Language language_of(const std::string& path) {
  const bool japanese = path.find("_J.CHM") != std::string::npos;
  return japanese ? text::Language::kJapanese : text::Language::kEnglish;
}

int overlap(const QRect& a, const QRect& b) {
  const QRect both = a.intersected(b);
  return both.isEmpty() ? 0 : both.width() * both.height();
}

// A window of this size in the room, as near as it can be to the place.
QRect within(const QRect& room, QSize size, QPoint place) {
  size = size.boundedTo(room.size());
  return {{std::clamp(place.x(), room.left(), room.right() + 1 - size.width()),
           std::clamp(place.y(), room.top(), room.bottom() + 1 - size.height())},
          size};
}

// Links are blue for light paper, whatever the palette, unless the document says otherwise before
// it reads a page.
void show_links(QTextBrowser& browser) {
  constexpr int kMiddle = 128;
  const bool dark = browser.palette().color(QPalette::Base).lightness() < kMiddle;
  browser.document()->setDefaultStyleSheet(dark ? QStringLiteral("a { color: #8cbeff }")
                                                : QStringLiteral("a { color: #0046b4 }"));
}

QSize frame_of(const QWidget& window) {
  return window.frameGeometry().size() - window.geometry().size();
}

}  // namespace

HelpPlace place_help(const QRect& asking, bool may_move, const QRect& display, QSize wanted,
                     QSize least) {
  const QRect seen = asking.intersected(display);
  const QRect right(QPoint(seen.right() + 1, display.top()), display.bottomRight());
  const QRect left(display.topLeft(), QPoint(seen.left() - 1, display.bottom()));
  const QRect below(QPoint(display.left(), seen.bottom() + 1), display.bottomRight());
  const QRect above(display.topLeft(), QPoint(display.right(), seen.top() - 1));
  const auto holds = [](const QRect& room, QSize size) {
    return room.width() >= size.width() && room.height() >= size.height();
  };
  const QPoint beside_top(seen.right() + 1, seen.top());
  const QSize lowest(wanted.width(), least.height());
  for (const QSize size :
       {QSize(wanted.width(), std::min(wanted.height(), display.height())), lowest, least}) {
    for (const QRect& room : {right, left, below, above}) {
      if (holds(room, size)) return {within(room, wanted, beside_top), asking};
    }
  }
  // Enough room on the display, but on both sides of the window: it gives way to the left.
  if (may_move && display.width() - seen.width() >= least.width()) {
    const QRect moved(QPoint(display.left(), asking.top()), asking.size());
    const QRect room(QPoint(moved.right() + 1, display.top()), display.bottomRight());
    return {within(room, wanted, beside_top), moved};
  }
  QRect stays = asking;
  if (may_move && holds(display, asking.size())) stays.moveBottomLeft(display.bottomLeft());
  const QSize small = least.boundedTo(display.size());
  QRect best = within(display, small, display.bottomRight());
  for (const QPoint corner : {display.topRight(), display.bottomLeft(), display.topLeft()}) {
    const QRect other = within(display, small, corner);
    if (overlap(other, stays) < overlap(best, stays)) best = other;
  }
  return {best, stays};
}

void DesktopHelp::place(QWidget* asking) {
  constexpr QSize kWanted(84, 46);  // characters and lines
  constexpr QSize kLeast(48, 18);
  // The main window fills the display: what is read is the help, and a part of the form is seen.
  constexpr QSize kLeastOverForm(64, 40);
  const QFontMetrics font = window_->fontMetrics();
  const auto pixels = [&font](QSize of_letters) {
    return QSize(of_letters.width() * font.averageCharWidth(),
                 of_letters.height() * font.lineSpacing());
  };
  if (asking == nullptr) {
    window_->resize(pixels(kWanted));
    return;
  }
  // The help will have the same frame.
  const QSize frame = frame_of(*asking);
  const HelpPlace found = place_help(asking->frameGeometry(), asking->isModal(),
                                     asking->screen()->availableGeometry(), pixels(kWanted) + frame,
                                     pixels(asking->isModal() ? kLeast : kLeastOverForm) + frame);
  const QPoint before = asking->pos();
  if (const QPoint given = found.asking.topLeft(); given != before) {
    asking->move(given);
    // Unless somebody has put it elsewhere meanwhile.
    QObject::connect(window_, &QDialog::finished, asking, [asking, before, given] {
      if (asking->pos() == given) asking->move(before);
    });
  }
  window_->move(found.help.topLeft());
  window_->resize(found.help.size() - frame);
}

bool DesktopHelp::show(const std::string& path) {
  const QPointer<QWidget> field = QApplication::focusWidget();
  if (window_ != nullptr) {
    window_->reject();
    delete window_;
  }
  // A window of the modal one on the screen is the only kind that can be used beside it.
  QWidget* const modal = QApplication::activeModalWidget();
  QWidget* const asking = modal == nullptr ? QApplication::activeWindow() : modal;
  window_ = new QDialog(asking);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  window_->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* const browser = new QTextBrowser(window_);
  show_links(*browser);
  browser->document()->setDocumentMargin(browser->fontMetrics().averageCharWidth());
  auto* const layout = new QVBoxLayout(window_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(browser);
  if (field != nullptr) {
    QObject::connect(window_, &QDialog::finished, field, [field] {
      field->activateWindow();
      field->setFocus();
    });
  }
  QObject::connect(browser, &QTextBrowser::sourceChanged, window_,
                   [this, browser] { window_->setWindowTitle(browser->documentTitle()); });

  const auto page = page_(path);
  if (page) {
    browser->setSource(QUrl::fromLocalFile(text_of(*page)));
  } else {
    const text::Language language = language_of(path);
    window_->setWindowTitle(text_of(text::bilingual(text::id::kHelpLabel, language)).remove('&'));
    browser->setPlainText(
        text_of(text::fill(text::bilingual(text::id::kHelpPageMissing, language), {path})));
  }
  place(asking);
  window_->show();
  window_->activateWindow();
  browser->setFocus();
  return page.has_value();
}

}  // namespace desktop
