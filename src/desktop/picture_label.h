#pragma once
// A picture: a file's, a drawing, or the caption where the file is missing.

#include <QPixmap>
#include <memory>

#include "desktop/clickable_label.h"
#include "ui/drawing.h"

namespace desktop {

/// Where the program's pictures lie: a folder of this computer. Until it is told there are none.
void set_picture_folder(const QString& folder);

class PictureLabel : public ClickableLabel {
  Q_OBJECT
 public:
  using ClickableLabel::ClickableLabel;

  /// The picture of this file in the picture folder; false, with nothing shown, when there is none
  /// or it cannot be read. It is shown at its own size, or, `fitted`, as large as it fits into its
  /// room, and asks for half its own size: a file of twice the points stays sharp on a fine screen.
  bool show_file(const QString& name, bool fitted = false);
  /// Null for none.
  void show_drawing(std::shared_ptr<const ui::Drawing> drawing);
  [[nodiscard]] const std::shared_ptr<const ui::Drawing>& drawing() const { return drawing_; }

  /// The coordinates under a position of this widget, nothing beside the picture. Those of a file's
  /// picture go from 0 to 1, from the left and from the bottom.
  [[nodiscard]] std::optional<ui::Point> point_at(QPointF position) const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] bool hasHeightForWidth() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect fitted_place() const;

  std::shared_ptr<const ui::Drawing> drawing_;
  QSize wanted_;    ///< of a fitted picture: half the file's
  QPixmap fitted_;  ///< as it was read
  QPixmap scaled_;  ///< as it was painted last
};

}  // namespace desktop
