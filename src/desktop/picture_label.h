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
  /// or it cannot be read.
  bool show_file(const QString& name);
  /// Null for none.
  void show_drawing(std::shared_ptr<const ui::Drawing> drawing);
  [[nodiscard]] const std::shared_ptr<const ui::Drawing>& drawing() const { return drawing_; }

  /// The coordinates under a position of this widget, nothing beside the picture. Those of a file's
  /// picture go from 0 to 1, from the left and from the bottom.
  [[nodiscard]] std::optional<ui::Point> point_at(QPointF position) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::shared_ptr<const ui::Drawing> drawing_;
};

}  // namespace desktop
