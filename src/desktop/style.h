#pragma once
// The look of the widgets: what has the focus, what is missing, what is wrong, what can be clicked.

#include <QPalette>
#include <QPointer>
#include <QString>
#include <QStyle>
#include <QWidget>

#include "ui/drawing.h"

namespace desktop {

/// The style sheet of the application for a light or dark palette.
[[nodiscard]] QString style_sheet(const QPalette& palette);

/// The palette with selected lines, selected texts and disabled texts that can be read: its own when
/// they can, else ours.
[[nodiscard]] QPalette readable(QPalette palette);

/// The colour of a frame that is seen on the window and on paper of this palette.
[[nodiscard]] QColor frame_colour(const QPalette& palette);

/// The style of the program's widgets: one and the same on every desktop, with frames that are seen.
/// The frame of what is disabled is dotted.
[[nodiscard]] QStyle* make_style();

/// The colour of what a drawing says with this ink, on paper of this palette (QPalette::Base).
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
