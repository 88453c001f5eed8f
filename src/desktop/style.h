#pragma once
// The look of the widgets: what has the focus, what is missing, what is wrong, what can be clicked.

#include <QColor>
#include <QMenuBar>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QWidget>
#include <cstdint>

#include "paper/colour.h"
#include "ui/drawing.h"

namespace desktop {

/// What a widget tells by its colours alone.
enum class Dress : std::uint8_t {
  kPlain,
  kLocked,   ///< a value that is shown and not typed
  kMissing,  ///< a group that is not complete
  kWrong,    ///< a refused entry
  kLink,     ///< a title or caption that opens a dialog
};
/// The colours of the widget for it, in the application's palette of the moment. Set as a palette
/// and not by a style sheet, which would lay a style of its own over every widget and take a third
/// of a start.
void dress(QWidget& widget, Dress as);
/// The colour of the frame around a refused entry.
[[nodiscard]] QColor wrong_frame();

/// A text with an underlined letter is painted in pieces, without the kerning between them that it was
/// measured with, and its end would be cut off: it gets none.
void paint_as_measured(QWidget& widget);

/// Menu titles that the keyboard is on are shown like those whose menu is open: without a menu
/// open, some styles show them like all others.
void show_titles_reached(QMenuBar& bar);

/// The palette with selected lines, selected texts and disabled texts that can be read: its own when
/// they can, else ours.
[[nodiscard]] QPalette readable(QPalette palette);

/// The colour of a frame that is seen on the window and on paper of this palette.
[[nodiscard]] QColor frame_colour(const QPalette& palette);

/// The style of the program's widgets: one and the same on every desktop, with frames that are seen.
/// The frame of what is disabled is dotted.
[[nodiscard]] QStyle* make_style();

/// The colours of a drawing on paper of this palette (QPalette::Base).
[[nodiscard]] paper::Inks inks_of(const QPalette& palette);
/// The one of what it says with this ink.
[[nodiscard]] QColor colour_of(ui::Ink ink, const QPalette& palette);

/// Contrast of a text's colour with its paper's, from 1 (none) to 21 (black and white).
[[nodiscard]] double contrast(const QColor& a, const QColor& b);

/// The least contrast that small letters are read with in poor light.
inline constexpr double kReadable = 4.5;
/// The same of what is no text: frames, and what is drawn.
inline constexpr double kSeen = 3;

/// A frame around what has the focus. It stands outside the widget, so that nothing moves when the
/// focus does, and nothing that has only the focus looks chosen.
class FocusFrame : public QWidget {
  Q_OBJECT
 public:
  /// `parent` holds, at any depth, all that can have the focus.
  explicit FocusFrame(QWidget* parent);
  /// nullptr for nothing.
  void surround(QWidget* target);
  /// To be called when something moved or was shown or hidden.
  void place();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kWidth = 2;
  QPointer<QWidget> target_;
};

}  // namespace desktop
