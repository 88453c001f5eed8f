#include "desktop/style.h"

#include <QApplication>
#include <QColor>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <functional>

#include "desktop/qt_canvas.h"

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
  const char* locked;    ///< paper of a value that is shown and not typed
  const char* selected;  ///< paper of selected lines and texts
  const char* selected_text;
};

constexpr Colours kLight = {"#1565c0", "#0b4a8f", "#fff4cc", "#000000", "#ffdcdc",
                            "#000000", "#c00000", "#e2e6ea", "#1565c0", "#ffffff"};
constexpr Colours kDark = {"#64b5f6", "#8ec7ff", "#4d431c", "#fff4cc", "#5c1a1a",
                           "#ffffff", "#ff6b6b", "#45484d", "#1565c0", "#ffffff"};

paper::Colour parts_of(const QColor& colour) {
  return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
          static_cast<std::uint8_t>(colour.blue())};
}

const Colours& colours_for(const QPalette& palette) {
  return paper::is_dark(parts_of(palette.color(QPalette::Window))) ? kDark : kLight;
}

// How bright a colour is to the eye, 0 to 1 (relative luminance of sRGB).
double brightness(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

// The colour taken towards the other as far as it still passes; itself where it never does.
QColor faded(const QColor& from, const QColor& to,
             const std::function<bool(const QColor&)>& passes) {
  constexpr int kSteps = 32;
  for (int step = kSteps - 1; step > 0; --step) {
    const auto mixed = [step](int a, int b) { return a + (b - a) * step / kSteps; };
    const QColor tried(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                       mixed(from.blue(), to.blue()));
    if (passes(tried)) return tried;
  }
  return from;
}

// The usual style draws frames that are hardly told from the window: ours go over them.
class FramedStyle : public QProxyStyle {
 public:
  FramedStyle() : QProxyStyle(QStringLiteral("fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
      case PE_Frame:
      case PE_FrameLineEdit:
      case PE_IndicatorCheckBox:
      case PE_PanelButtonCommand:
        frame(*option, *painter);
        break;
      case PE_IndicatorRadioButton:
        frame(*option, *painter, true);
        break;
      default:
        break;
    }
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) frame(*option, *painter);
  }

 private:
  void frame(const QStyleOption& option, QPainter& painter, bool round = false) const {
    const bool enabled = (option.state & State_Enabled) != 0;
    if (palette_ != option.palette.cacheKey()) {
      palette_ = option.palette.cacheKey();
      colour_ = frame_colour(option.palette);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, round);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour_, 1, enabled ? Qt::SolidLine : Qt::DotLine));
    const QRect around = option.rect.adjusted(0, 0, -1, -1);
    if (round) {
      painter.drawEllipse(around);
    } else {
      painter.drawRect(around);
    }
    painter.restore();
  }

  mutable QColor colour_;  ///< of the palette that was drawn with last
  mutable qint64 palette_ = 0;
};

}  // namespace

QStyle* make_style() {
  return new FramedStyle;
}

paper::Inks inks_of(const QPalette& palette) {
  return paper::inks_on(parts_of(palette.color(QPalette::Base)),
                        parts_of(palette.color(QPalette::Text)));
}

QColor colour_of(ui::Ink ink, const QPalette& palette) {
  return colour_of(inks_of(palette).of(ink));
}

double contrast(const QColor& a, const QColor& b) {
  const double first = brightness(a);
  const double second = brightness(b);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor frame_colour(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor paper = palette.color(QPalette::Active, QPalette::Base);
  return faded(text, window, [&](const QColor& tried) {
    return contrast(tried, window) >= kSeen && contrast(tried, paper) >= kSeen;
  });
}

QPalette readable(QPalette palette) {
  const Colours& colours = colours_for(palette);
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor button = palette.color(QPalette::Active, QPalette::Button);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const auto is_readable = [&](const QColor& tried) {
    // A button is lighter at its top.
    return contrast(tried, window) >= kReadable && contrast(tried, button) >= kReadable &&
           contrast(tried, button.lighter(130)) >= kReadable;
  };
  const QColor disabled = faded(text, window, is_readable);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    // What is written on the window's colour must be told from what is not disabled, too.
    if (palette.color(QPalette::Disabled, role) != disabled)
      palette.setColor(QPalette::Disabled, role, disabled);
  }
  if (palette.color(QPalette::Disabled, QPalette::Base) != window)
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
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
      own.setColor(QPalette::Base, QLatin1String(colours.locked));
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

void paint_as_measured(QWidget& widget) {
  QFont font;  // says nothing else, so it follows the window's
  font.setKerning(false);
  widget.setFont(font);
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
