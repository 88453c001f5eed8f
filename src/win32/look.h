#pragma once
// Fonts, colours and sizes of a window: those of the system, in the size of the display that the
// window stands on, light or dark as the person has it. What tells something by its colour alone
// (missing, wrong, locked, what can be clicked) has colours of its own.

#include "win32/system.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "paper/colour.h"
#include "text/texts.h"

namespace win32 {

/// What a control tells by its colours alone.
enum class Dress {
  kPlain,
  kLocked,   ///< a value that is shown and not typed
  kMissing,  ///< a group that is not complete
  kWrong,    ///< a refused entry
  kLink,     ///< a title or caption that opens a dialog
};

struct Colours {
  COLORREF window = 0;
  COLORREF text = 0;  ///< on the window
  COLORREF paper = 0;
  COLORREF ink = 0;    ///< on the paper
  COLORREF faint = 0;  ///< text of what is disabled
  COLORREF frame = 0;  ///< around groups
  COLORREF focus = 0;  ///< around what has the focus
  COLORREF link = 0;
  COLORREF missing = 0;
  COLORREF missing_ink = 0;
  COLORREF wrong = 0;
  COLORREF wrong_ink = 0;
  COLORREF wrong_frame = 0;
  COLORREF locked = 0;
  COLORREF selected = 0;
  COLORREF selected_ink = 0;
};

/// True when the person asked the system for dark windows.
[[nodiscard]] bool system_is_dark();

/// Of a window on a display of so many dots an inch.
class Look {
 public:
  Look(unsigned dpi, text::Language language, bool dark);
  ~Look();
  Look(const Look&) = delete;
  Look& operator=(const Look&) = delete;

  [[nodiscard]] unsigned dpi() const { return dpi_; }
  [[nodiscard]] text::Language language() const { return language_; }
  [[nodiscard]] bool dark() const { return dark_; }
  /// 1 on a display of 96 dots an inch.
  [[nodiscard]] double scale() const { return dpi_ / 96.0; }
  [[nodiscard]] int pixels(int at_96) const;

  [[nodiscard]] HFONT usual() const { return usual_; }
  [[nodiscard]] HFONT bold() const { return bold_; }
  /// The font that a control asks for (ui::Control::font), the usual one when it asks for none.
  [[nodiscard]] HFONT named(std::string_view name) const;
  /// The same slanted: lines that are set apart.
  [[nodiscard]] HFONT slanted(HFONT font) const;

  [[nodiscard]] const Colours& colours() const { return colours_; }
  [[nodiscard]] COLORREF paper(Dress dress) const;
  [[nodiscard]] COLORREF ink(Dress dress) const;
  /// The same as a brush, which the look keeps.
  [[nodiscard]] HBRUSH brush(COLORREF colour) const;
  /// Of drawings on the window's paper.
  [[nodiscard]] paper::Inks inks() const;

  // Measures, in pixels.
  [[nodiscard]] SIZE size_of(HFONT font, const std::wstring& text) const;
  /// On as many lines as it takes at this width.
  [[nodiscard]] int height_of(HFONT font, const std::wstring& text, int width) const;
  [[nodiscard]] int line_of(HFONT font) const;
  [[nodiscard]] int figure_of(HFONT font) const;
  /// Room for so many figures and the frame.
  [[nodiscard]] int width_for(HFONT font, int figures) const;
  /// Of a field of one line.
  [[nodiscard]] int field_height(HFONT font) const;

 private:
  [[nodiscard]] HFONT keep(const LOGFONTW& font) const;
  [[nodiscard]] HFONT fixed_pitch() const;

  unsigned dpi_;
  text::Language language_;
  bool dark_;
  Colours colours_;
  HDC canvas_;  ///< to measure on
  HFONT usual_ = nullptr;
  HFONT bold_ = nullptr;
  mutable std::map<std::wstring, HFONT> fonts_;  ///< by all that they are asked for with
  mutable std::map<COLORREF, HBRUSH> brushes_;
};

/// The title bar of the window as dark as its content, where the system can do that; its buttons,
/// lists and scroll bars as well.
void darken_frame(HWND window, bool dark);
void darken_control(HWND control, bool dark);
/// Takes back what darken_control() did, where a person changes to light while the program runs.
void lighten_control(HWND control);

}  // namespace win32
