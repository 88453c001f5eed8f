#pragma once
// Children side by side, going on in a further line where the width is short.

#include <QLayout>
#include <QList>
#include <memory>
#include <vector>

namespace desktop {

/// Room that is left on a line goes to its child that can take up room; without one, columns (the
/// children that are layouts) share it, and widgets stay as wide as they want to be. Height that is
/// left goes to the first line that can take it up. What the children want is asked once, until one of them
/// changes: a scroll area tries many widths.
class FlowLayout final : public QLayout {
 public:
  /// `beside` between the children of a line, `below` between lines.
  FlowLayout(int beside, int below);
  ~FlowLayout() override;

  /// The layout takes it over.
  void add_column(QLayout* column);

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  void setGeometry(const QRect& place) override;
  [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  [[nodiscard]] Qt::Orientations expandingDirections() const override;
  void invalidate() override;

 private:
  struct Wish {
    QLayoutItem* item = nullptr;
    QSize size;  ///< the least
    int wide = 0;
    Qt::Orientations grows;
  };
  struct Line {
    std::size_t first = 0;
    std::size_t end = 0;
    int width = 0;
    int height = 0;
    bool grows_down = false;
  };
  [[nodiscard]] const std::vector<Wish>& wishes() const;
  [[nodiscard]] std::vector<Line> lines(int width) const;
  void place_line(const Line& line, const QRect& place) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
  int below_;
  mutable std::vector<Wish> wishes_;  ///< empty: to be asked again
};

}  // namespace desktop
