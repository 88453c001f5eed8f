#pragma once
// A picture on a window: a file's, a drawing, or a text where there is neither.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "paper/colour.h"
#include "ui/drawing.h"
#include "win32/painter.h"
#include "win32/system.h"

namespace win32 {

/// Where the program's pictures lie. Until it is told there are none.
void set_picture_folder(const std::wstring& folder);

/// A child window. Its background and the colours of its text are those that its parent answers to
/// WM_CTLCOLORSTATIC.
class Picture {
 public:
  /// A click on the picture tells where, in the drawing's coordinates; those of a file's picture go
  /// from 0 to 1, from the left and from the bottom. A click on a text only tells that it was. Neither
  /// is called unless the picture is clickable.
  Picture(HWND parent, std::function<void(ui::Point)> clicked_at, std::function<void()> clicked);
  ~Picture();
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  /// Null once the system has taken it away with its parent.
  [[nodiscard]] HWND window() const { return window_; }

  /// Null for none.
  void show_drawing(std::shared_ptr<const ui::Drawing> drawing);
  [[nodiscard]] const std::shared_ptr<const ui::Drawing>& drawing() const { return drawing_; }
  /// The picture of this file in the picture folder; false, with nothing shown, when there is none or
  /// it cannot be read. It is shown at its own size, or, `fitted`, as large as it fits into the window
  /// up to half its own size: a file of twice the points stays sharp on a fine display.
  bool show_file(const std::wstring& name, bool fitted);
  void show_text(const std::wstring& text);
  [[nodiscard]] const std::wstring& text() const { return text_; }
  void set_clickable(bool on);
  /// The font is the caller's; `scale` is 1 on a display of 96 dots an inch.
  void set_look(HFONT font, double scale, const paper::Inks& inks);

  /// Pixels that what is shown asks for, a drawing at least.
  [[nodiscard]] SIZE wanted(HFONT font) const;

  /// The coordinates under a pixel of the window, nothing beside the picture.
  [[nodiscard]] std::optional<ui::Point> point_at(POINT pixel) const;

 private:
  struct Image;  ///< a file's picture, whole

  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM narrow);
  static const wchar_t* window_class();
  [[nodiscard]] static std::shared_ptr<const Image> image_of(const std::wstring& name);
  LRESULT answer(UINT message, WPARAM first, LPARAM second);
  void paint(HDC dc) const;
  void paint_image(HDC dc, COLORREF background) const;
  void click(POINT pixel) const;
  void repaint() const;
  [[nodiscard]] RECT room() const;
  [[nodiscard]] SIZE image_size() const;
  [[nodiscard]] RECT image_place() const;

  HWND window_ = nullptr;
  std::function<void(ui::Point)> clicked_at_;
  std::function<void()> clicked_;
  std::shared_ptr<const ui::Drawing> drawing_;
  std::shared_ptr<const Image> image_;
  bool fitted_ = false;
  std::wstring text_;
  bool clickable_ = false;
  bool pressed_ = false;
  HFONT font_ = nullptr;
  double scale_ = 1;
  paper::Inks inks_;
};

}  // namespace win32
