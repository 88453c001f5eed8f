#include "desktop/style.h"

#include <QApplication>
#include <QColor>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace desktop {
namespace {

struct Colours {
  const char* focus;         ///< frame of what has the focus: seen from two metres away
  const char* link;          ///< titles and captions that open a dialog
  const char* missing;       ///< paper of a group that is not complete: seen, but calm
  const char* missing_text;  ///< on that paper
  const char* wrong;         ///< paper of a refused entry
  const char* wrong_text;
  const char* wrong_frame;
  const char* selected;  ///< paper of selected lines and texts
  const char* selected_text;
  /// Of a drawing, as ui::Ink has them; no name is the palette's own.
  std::array<const char*, ui::kInks> inks;
};

// Lines, signs and texts of a drawing are read on its paper, land, water and ice alike.
constexpr Colours kLight = {
    "#1565c0",
    "#0b4a8f",
    "#fff4cc",
    "#000000",
    "#ffdcdc",
    "#000000",
    "#c00000",
    "#1565c0",
    "#ffffff",
    {"", "#b0b0b0", "#0b4a8f", "#efe4c4", "#d8ebf8", "#f7fbff", "#7a4a00", "#b00000", "#8a7a55"}};
constexpr Colours kDark = {
    "#64b5f6",
    "#8ec7ff",
    "#4d431c",
    "#fff4cc",
    "#5c1a1a",
    "#ffffff",
    "#ff6b6b",
    "#1565c0",
    "#ffffff",
    {"", "#6a6a6a", "#8ec7ff", "#4a4530", "#1c3448", "#38434c", "#ffd27f", "#ff9c9c", "#a89a6c"}};

const Colours& colours_for(const QPalette& palette) {
  constexpr int kHalf = 128;
  return palette.color(QPalette::Window).lightness() < kHalf ? kDark : kLight;
}

// How bright a colour is to the eye, 0 to 1 (relative luminance of sRGB).
double brightness(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

}  // namespace

QColor colour_of(ui::Ink ink, const QPalette& palette) {
  const QLatin1String name(colours_for(palette).inks[static_cast<std::size_t>(ink)]);
  return name.isEmpty() ? palette.color(QPalette::Text) : QColor(name);
}

double contrast(const QColor& a, const QColor& b) {
  const double first = brightness(a);
  const double second = brightness(b);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QPalette readable(QPalette palette) {
  const Colours& colours = colours_for(palette);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    if (contrast(palette.color(group, QPalette::Highlight),
                 palette.color(group, QPalette::HighlightedText)) >= kReadable)
      continue;
    palette.setColor(group, QPalette::Highlight, QLatin1String(colours.selected));
    palette.setColor(group, QPalette::HighlightedText, QLatin1String(colours.selected_text));
  }
  return palette;
}

void dress(QWidget& widget, Dress as) {
  const QPalette usual = QApplication::palette();
  const Colours& colours = colours_for(usual);
  QPalette own;  // says nothing yet, so the rest stays the application's
  const auto paper = [&own](const QColor& colour, const QColor& text) {
    own.setColor(QPalette::Base, colour);
    own.setColor(QPalette::Text, text);
  };
  switch (as) {
    case Dress::kPlain:
      break;
    case Dress::kLocked:
      own.setColor(QPalette::Base, usual.color(QPalette::Window));
      break;
    case Dress::kMissing:
      paper(QLatin1String(colours.missing), QLatin1String(colours.missing_text));
      break;
    case Dress::kWrong:
      paper(QLatin1String(colours.wrong), QLatin1String(colours.wrong_text));
      break;
    case Dress::kLink:
      own.setColor(QPalette::WindowText, QLatin1String(colours.link));
      break;
  }
  widget.setPalette(own);
}

QColor wrong_frame() {
  return QLatin1String(colours_for(QApplication::palette()).wrong_frame);
}

void show_titles_reached(QMenuBar& bar) {
  bar.setStyleSheet(
      QStringLiteral("QMenuBar::item:selected { background: palette(highlight); color: "
                     "palette(highlighted-text); }"));
}

FocusFrame::FocusFrame(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void FocusFrame::surround(QWidget* target) {
  target_ = target;
  place();
}

void FocusFrame::place() {
  const bool shown = target_ != nullptr && target_->isVisibleTo(parentWidget());
  if (shown) {
    const QPoint corner = target_->mapTo(parentWidget(), QPoint(0, 0));
    const QRect around = QRect(corner, target_->size()).adjusted(-kWidth, -kWidth, kWidth, kWidth);
    if (geometry() != around) {
      setGeometry(around);
      // Without its middle, which would hide the widget.
      setMask(QRegion(rect()) - rect().adjusted(kWidth, kWidth, -kWidth, -kWidth));
    }
    raise();
  }
  setVisible(shown);
}

void FocusFrame::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), QColor(QLatin1String(colours_for(palette()).focus)));
}

}  // namespace desktop
