#include "win32/look.h"

#include "win32/system.h"

#include <dwmapi.h>
#include <uxtheme.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <initializer_list>
#include <vector>

#include "ui/control.h"
#include "win32/utf.h"

namespace win32 {
namespace {

// The system writes a colour's blue part first.
constexpr COLORREF rgb(unsigned colour) {
  return ((colour & 0xFFU) << 16U) | (colour & 0xFF00U) | (colour >> 16U);
}

paper::Colour parts_of(COLORREF colour) {
  return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

// The system's own colours, also those that a person with weak eyes chose.
Colours light_colours() {
  Colours c;
  c.window = GetSysColor(COLOR_BTNFACE);
  c.text = GetSysColor(COLOR_BTNTEXT);
  c.paper = GetSysColor(COLOR_WINDOW);
  c.ink = GetSysColor(COLOR_WINDOWTEXT);
  c.faint = rgb(0x6b6b6b);
  c.frame = rgb(0x8a8a8a);
  c.focus = rgb(0x1565c0);
  c.link = rgb(0x0b4a8f);
  c.missing = rgb(0xfff4cc);
  c.missing_ink = rgb(0x000000);
  c.wrong = rgb(0xffdcdc);
  c.wrong_ink = rgb(0x000000);
  c.wrong_frame = rgb(0xc00000);
  c.locked = rgb(0xe2e6ea);
  c.selected = rgb(0x1565c0);
  c.selected_ink = rgb(0xffffff);
  return c;
}

Colours dark_colours() {
  Colours c;
  c.window = rgb(0x2b2b2b);
  c.text = rgb(0xf0f0f0);
  c.paper = rgb(0x1e1e1e);
  c.ink = rgb(0xf0f0f0);
  c.faint = rgb(0xa6a6a6);
  c.frame = rgb(0x8a8a8a);
  c.focus = rgb(0x64b5f6);
  c.link = rgb(0x8ec7ff);
  c.missing = rgb(0x4d431c);
  c.missing_ink = rgb(0xfff4cc);
  c.wrong = rgb(0x5c1a1a);
  c.wrong_ink = rgb(0xffffff);
  c.wrong_frame = rgb(0xff6b6b);
  c.locked = rgb(0x45484d);
  c.selected = rgb(0x1565c0);
  c.selected_ink = rgb(0xffffff);
  return c;
}

// What is written in the system's colours must be read on them: with a dark scheme of the person's
// own, colours that are made for a light one are not.
Colours colours_for(bool dark) {
  if (dark) return dark_colours();
  Colours own = light_colours();
  if (!paper::is_dark(parts_of(own.paper))) return own;
  Colours mended = dark_colours();
  mended.window = own.window;
  mended.text = own.text;
  mended.paper = own.paper;
  mended.ink = own.ink;
  return mended;
}

LOGFONTW message_font(unsigned dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
  return metrics.lfMessageFont;
}

int CALLBACK note_family(const LOGFONTW* font, const TEXTMETRICW* /*metrics*/, DWORD /*type*/,
                         LPARAM into) {
  // "@" is the same family for upright lines.
  auto& found = *reinterpret_cast<std::wstring*>(into);
  if (font->lfFaceName[0] == L'@') return 1;
  found = font->lfFaceName;
  return 0;
}

// The family of this name as the system has it; any of the script where no name is given. Empty for
// none.
std::wstring family(HDC canvas, const wchar_t* name, BYTE script) {
  LOGFONTW asked{};
  asked.lfCharSet = script;
  std::wcsncpy(asked.lfFaceName, name, LF_FACESIZE - 1);
  std::wstring found;
  EnumFontFamiliesExW(canvas, &asked, note_family, reinterpret_cast<LPARAM>(&found), 0);
  return found;
}

// The first of these that is installed.
std::wstring first_of(HDC canvas, std::initializer_list<const wchar_t*> names) {
  for (const wchar_t* const name : names)
    if (std::wstring found = family(canvas, name, SHIFTJIS_CHARSET); !found.empty()) return found;
  return {};
}

void set_family(LOGFONTW& font, const std::wstring& name) {
  std::wcsncpy(font.lfFaceName, name.c_str(), LF_FACESIZE - 1);
  font.lfFaceName[LF_FACESIZE - 1] = L'\0';
}

// How large a figure is, as the side of a square of the room that it takes.
double size_of_figures(HDC canvas, LOGFONTW font) {
  constexpr int kLarge = 1000;
  font.lfHeight = -kLarge;
  const HFONT made = CreateFontIndirectW(&font);
  const HGDIOBJ before = SelectObject(canvas, made);
  GLYPHMETRICS figure{};
  constexpr MAT2 kUnchanged = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
  const DWORD told = GetGlyphOutlineW(canvas, L'0', GGO_METRICS, &figure, 0, nullptr, &kUnchanged);
  SelectObject(canvas, before);
  DeleteObject(made);
  if (told == GDI_ERROR) return 0;
  return std::sqrt(static_cast<double>(figure.gmBlackBoxY) * figure.gmCellIncX);
}

std::wstring key_of(const LOGFONTW& font) {
  std::wstring key = font.lfFaceName;
  key.append(L"/").append(std::to_wstring(font.lfHeight));
  key.append(L"/").append(std::to_wstring(font.lfWeight));
  key.append(L"/").append(std::to_wstring(font.lfItalic));
  return key;
}

class Chosen {
 public:
  Chosen(HDC canvas, HFONT font) : canvas_(canvas), before_(SelectObject(canvas, font)) {}
  ~Chosen() { SelectObject(canvas_, before_); }
  Chosen(const Chosen&) = delete;
  Chosen& operator=(const Chosen&) = delete;

 private:
  HDC canvas_;
  HGDIOBJ before_;
};

}  // namespace

bool system_is_dark() {
  DWORD light = 1;
  DWORD size = sizeof light;
  const LSTATUS told = RegGetValueW(
      HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
      L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  // Who asked for high contrast has chosen the colours.
  if ((contrast.dwFlags & HCF_HIGHCONTRASTON) != 0) return false;
  return told == ERROR_SUCCESS && light == 0;
}

Look::Look(unsigned dpi, text::Language language, bool dark)
    : dpi_(dpi),
      language_(language),
      dark_(dark),
      colours_(colours_for(dark)),
      canvas_(CreateCompatibleDC(nullptr)) {
  LOGFONTW font = message_font(dpi);
  if (language == text::Language::kJapanese) {
    // A Latin font would borrow its Japanese letters wherever the system finds some.
    std::wstring japanese =
        first_of(canvas_, {L"Yu Gothic UI", L"Meiryo UI", L"MS UI Gothic", L"IPAPGothic"});
    if (japanese.empty()) japanese = family(canvas_, L"", SHIFTJIS_CHARSET);
    if (!japanese.empty()) set_family(font, japanese);
    font.lfCharSet = SHIFTJIS_CHARSET;
  }
  usual_ = keep(font);
  font.lfWeight = FW_BOLD;
  bold_ = keep(font);
}

Look::~Look() {
  for (const auto& font : fonts_) DeleteObject(font.second);
  for (const auto& brush : brushes_) DeleteObject(brush.second);
  DeleteDC(canvas_);
}

int Look::pixels(int at_96) const {
  return MulDiv(at_96, static_cast<int>(dpi_), 96);
}

HFONT Look::keep(const LOGFONTW& font) const {
  const auto [at, is_new] = fonts_.try_emplace(key_of(font), nullptr);
  if (is_new) at->second = CreateFontIndirectW(&font);
  return at->second;
}

HFONT Look::named(std::string_view name) const {
  if (name.empty()) return usual_;
  if (name == ui::kFixedPitch) return fixed_pitch();
  LOGFONTW font{};
  GetObjectW(usual_, sizeof font, &font);
  set_family(font, wide(name));
  return keep(font);
}

// A family in which a Japanese letter is as wide as two others, in the size in which its figures take
// as much room as those of the usual font.
HFONT Look::fixed_pitch() const {
  LOGFONTW usual{};
  GetObjectW(usual_, sizeof usual, &usual);
  LOGFONTW font = usual;
  std::wstring found =
      first_of(canvas_, {L"MS Gothic", L"BIZ UDGothic", L"IPAGothic", L"Noto Sans Mono CJK JP"});
  if (found.empty()) found = L"Courier New";
  set_family(font, found);
  font.lfCharSet = SHIFTJIS_CHARSET;
  font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  const double own = size_of_figures(canvas_, font);
  const double other = size_of_figures(canvas_, usual);
  if (own > 0 && other > 0)
    font.lfHeight = static_cast<LONG>(std::lround(usual.lfHeight * other / own));
  return keep(font);
}

HFONT Look::slanted(HFONT font) const {
  LOGFONTW wanted{};
  GetObjectW(font, sizeof wanted, &wanted);
  wanted.lfItalic = TRUE;
  return keep(wanted);
}

COLORREF Look::paper(Dress dress) const {
  switch (dress) {
    case Dress::kLocked:
      return colours_.locked;
    case Dress::kMissing:
      return colours_.missing;
    case Dress::kWrong:
      return colours_.wrong;
    case Dress::kLink:
      return colours_.window;
    case Dress::kPlain:
      break;
  }
  return colours_.paper;
}

COLORREF Look::ink(Dress dress) const {
  switch (dress) {
    case Dress::kMissing:
      return colours_.missing_ink;
    case Dress::kWrong:
      return colours_.wrong_ink;
    case Dress::kLink:
      return colours_.link;
    case Dress::kLocked:
    case Dress::kPlain:
      break;
  }
  return colours_.ink;
}

HBRUSH Look::brush(COLORREF colour) const {
  const auto [at, is_new] = brushes_.try_emplace(colour, nullptr);
  if (is_new) at->second = CreateSolidBrush(colour);
  return at->second;
}

paper::Inks Look::inks() const {
  return paper::inks_on(parts_of(colours_.paper), parts_of(colours_.ink));
}

SIZE Look::size_of(HFONT font, const std::wstring& text) const {
  const Chosen chosen(canvas_, font);
  RECT room{0, 0, 1 << 20, 0};
  DrawTextW(canvas_, text.c_str(), static_cast<int>(text.size()), &room,
            DT_CALCRECT | DT_NOPREFIX | DT_LEFT);
  return {room.right, std::max<LONG>(room.bottom, line_of(font))};
}

int Look::height_of(HFONT font, const std::wstring& text, int width) const {
  const Chosen chosen(canvas_, font);
  RECT room{0, 0, width, 0};
  DrawTextW(canvas_, text.c_str(), static_cast<int>(text.size()), &room,
            DT_CALCRECT | DT_NOPREFIX | DT_LEFT | DT_WORDBREAK);
  return std::max<int>(room.bottom, line_of(font));
}

int Look::line_of(HFONT font) const {
  const Chosen chosen(canvas_, font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(canvas_, &metrics);
  return metrics.tmHeight;
}

int Look::figure_of(HFONT font) const {
  const Chosen chosen(canvas_, font);
  SIZE size{};
  GetTextExtentPoint32W(canvas_, L"0", 1, &size);
  return size.cx;
}

int Look::width_for(HFONT font, int figures) const {
  return figure_of(font) * figures + line_of(font);
}

int Look::field_height(HFONT font) const {
  return line_of(font) + pixels(7);
}

void darken_frame(HWND window, bool dark) {
  constexpr DWORD kImmersiveDark = 20;
  const BOOL on = dark ? TRUE : FALSE;
  // A system that knows no such thing says so and nothing happens.
  DwmSetWindowAttribute(window, kImmersiveDark, &on, sizeof on);
}

void lighten_control(HWND control) {
  SetWindowTheme(control, nullptr, nullptr);
}

void darken_control(HWND control, bool dark) {
  if (!dark) return;
  wchar_t kind[32]{};
  GetClassNameW(control, kind, 31);
  const std::wstring_view name = kind;
  if (name == L"ComboBox") {
    SetWindowTheme(control, L"DarkMode_CFD", nullptr);
    return;
  }
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
  // A themed tick box writes its text in black whatever it is told.
  if (name == L"Button" && style != BS_PUSHBUTTON && style != BS_DEFPUSHBUTTON) {
    SetWindowTheme(control, L"", L"");
    return;
  }
  SetWindowTheme(control, L"DarkMode_Explorer", nullptr);
}

}  // namespace win32
