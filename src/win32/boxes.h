#pragma once
// Where everything in a window stands: boxes within boxes, each of which says how much room it wants
// and places what is in it. It knows no system, only numbers: pixels, in whatever size they have.
//
// The width is shared out first, and then the height, which with lines that go on below depends on
// it. What is hidden takes no room and no gap. What shows less than it has (a list) may be given less
// than it wants; room that is left goes to those that grow.

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "ui/placing.h"

namespace win32 {

using ui::Place;

inline constexpr int kNoLimit = 1 << 24;

/// What a box wants of one direction.
struct Span {
  int least = 0;  ///< with less it is cut
  int wanted = 0;
  int most = kNoLimit;
  bool grows = false;  ///< takes up the room that is left
  bool operator==(const Span&) const = default;
};

/// The room shared out: what is left goes in equal parts to those that grow, what is missing is taken
/// from those that can do with less. The sum is less than the room where nobody takes the rest, and
/// more where there is not even the least.
[[nodiscard]] std::vector<int> shared_out(std::span<const Span> wishes, int room);

class Box {
 public:
  Box() = default;
  Box(const Box&) = delete;
  Box& operator=(const Box&) = delete;
  virtual ~Box() = default;

  [[nodiscard]] virtual bool shown() const = 0;
  /// Has a gap on both sides; what only takes up room has none.
  [[nodiscard]] virtual bool stands_apart() const { return true; }
  [[nodiscard]] virtual Span across() const = 0;
  /// Where it is so wide.
  [[nodiscard]] virtual Span down(int width) const = 0;
  virtual void place(const Place& place) = 0;
};

using Boxes = std::vector<std::unique_ptr<Box>>;

/// Takes up what room is left.
class Space : public Box {
 public:
  [[nodiscard]] bool shown() const override { return true; }
  [[nodiscard]] bool stands_apart() const override { return false; }
  [[nodiscard]] Span across() const override { return {0, 0, kNoLimit, true}; }
  [[nodiscard]] Span down(int /*width*/) const override { return {0, 0, kNoLimit, true}; }
  void place(const Place& /*place*/) override {}
};

/// Boxes that stand in it in the order in which they were added.
class Holder : public Box {
 public:
  Box& add(std::unique_ptr<Box> box) {
    parts_.push_back(std::move(box));
    return *parts_.back();
  }
  template <class B, class... Arguments>
  B& add(Arguments&&... arguments) {
    auto made = std::make_unique<B>(std::forward<Arguments>(arguments)...);
    B& box = *made;
    parts_.push_back(std::move(made));
    return box;
  }
  /// True when something in it is: nothing but space is nothing.
  [[nodiscard]] bool shown() const override;
  [[nodiscard]] const Boxes& parts() const { return parts_; }

 protected:
  [[nodiscard]] std::vector<Box*> shown_parts() const;

 private:
  Boxes parts_;
};

/// Side by side, each as high as the row, or in its middle where it has a height of its own.
class Row : public Holder {
 public:
  explicit Row(int gap) : gap_(gap) {}
  [[nodiscard]] Span across() const override;
  [[nodiscard]] Span down(int width) const override;
  void place(const Place& place) override;

 private:
  int gap_;
};

/// One below the other, each as wide as the column, or at its left where it has a width of its own.
class Column : public Holder {
 public:
  explicit Column(int gap) : gap_(gap) {}
  [[nodiscard]] Span across() const override;
  [[nodiscard]] Span down(int width) const override;
  void place(const Place& place) override;

 private:
  int gap_;
};

/// Side by side, going on below where the width is short. What takes up the room left makes do with
/// its least before it goes below.
class Flow : public Holder {
 public:
  Flow(int gap_beside, int gap_below) : beside_(gap_beside), below_(gap_below) {}
  [[nodiscard]] Span across() const override;
  [[nodiscard]] Span down(int width) const override;
  void place(const Place& place) override;

 private:
  struct Part {
    Box* box = nullptr;
    Span across;
    int width = 0;  ///< with which it goes into a line
  };
  struct Line {
    std::vector<Part> parts;
    int width = 0;
    Span down;
  };
  /// With the widths that the parts have in a flow so wide.
  [[nodiscard]] std::vector<Line> lines(int width) const;
  void share_out(Line& line, int width) const;
  [[nodiscard]] int height_of(const std::vector<Line>& lines) const;

  int beside_;
  int below_;
};

/// Cells in columns and rows.
class Grid : public Holder {
 public:
  /// Where the room goes that is left.
  enum class Rest {
    kBehind,      ///< behind the last column
    kLastColumn,  ///< into it
    kAllColumns,  ///< into all of them alike
  };
  Grid(int gap_beside, int gap_below, Rest rest)
      : beside_(gap_beside), below_(gap_below), rest_(rest) {}
  enum class Side { kLeft, kRight };
  void add_cell(std::unique_ptr<Box> box, int row, int column, int columns = 1,
                Side side = Side::kLeft);
  [[nodiscard]] Span across() const override;
  [[nodiscard]] Span down(int width) const override;
  void place(const Place& place) override;

 private:
  struct Cell {
    Box* box = nullptr;
    int row = 0;
    int column = 0;
    int columns = 1;
    Side side = Side::kLeft;
  };
  [[nodiscard]] std::vector<Span> column_wishes() const;
  [[nodiscard]] std::vector<int> widths(int width) const;
  [[nodiscard]] int width_of(const Cell& cell, const std::vector<int>& widths) const;
  [[nodiscard]] std::vector<Span> row_wishes(const std::vector<int>& widths) const;

  int beside_;
  int below_;
  Rest rest_;
  std::vector<Cell> cells_;
};

/// A part with room around it. What is drawn around it (a frame) asks where it stands.
class Padded : public Box {
 public:
  struct Sides {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
  };
  Padded(std::unique_ptr<Box> within, Sides sides, bool framed)
      : within_(std::move(within)), sides_(sides), framed_(framed) {}
  [[nodiscard]] bool shown() const override { return within_->shown(); }
  /// A frame takes up the room left, so that those that stand together end together.
  [[nodiscard]] Span across() const override;
  [[nodiscard]] Span down(int width) const override;
  void place(const Place& place) override;
  [[nodiscard]] const Place& stands() const { return place_; }

 private:
  std::unique_ptr<Box> within_;
  Sides sides_;
  bool framed_;
  Place place_;
};

}  // namespace win32
