#include "win32/picture.h"

#include <objidl.h>
#include <windowsx.h>
// The order matters: it builds on the two above.
#include <gdiplus.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "paper/image.h"
#include "win32/bitmap.h"

namespace win32 {
namespace {

std::wstring& picture_folder() {
  static std::wstring folder;
  return folder;
}

// The decoder of pictures runs from the first one until the program ends.
bool start_decoder() {
  static const bool kRuns = [] {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
  }();
  return kRuns;
}

// Names come from the program itself, but a picture is never looked for elsewhere.
bool is_plain(const std::wstring& name) {
  return !name.empty() && name.find_first_of(L"/\\:") == std::wstring::npos;
}

std::uint32_t pixel_of(COLORREF colour) {
  return (std::uint32_t{GetRValue(colour)} << 16U) | (std::uint32_t{GetGValue(colour)} << 8U) |
         std::uint32_t{GetBValue(colour)};
}

int width_of(const RECT& box) {
  return box.right - box.left;
}
int height_of(const RECT& box) {
  return box.bottom - box.top;
}

}  // namespace

struct Picture::Image : paper::Image {};

void set_picture_folder(const std::wstring& folder) {
  picture_folder() = folder;
}

Picture::Picture(HWND parent, std::function<void(ui::Point)> clicked_at,
                 std::function<void()> clicked)
    : clicked_at_(std::move(clicked_at)), clicked_(std::move(clicked)) {
  window_ = CreateWindowExW(0, window_class(), L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
                            nullptr, GetModuleHandleW(nullptr), this);
}

Picture::~Picture() {
  if (window_ != nullptr) DestroyWindow(window_);
}

const wchar_t* Picture::window_class() {
  static constexpr const wchar_t* kName = L"KavrelPicture";
  static const bool kRegistered = [] {
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof kind;
    kind.style = CS_HREDRAW | CS_VREDRAW;
    kind.lpfnWndProc = &procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = kName;
    return RegisterClassExW(&kind) != 0;
  }();
  return kRegistered ? kName : L"STATIC";
}

LRESULT CALLBACK Picture::procedure(HWND window, UINT message, WPARAM wide, LPARAM narrow) {
  if (message == WM_NCCREATE) {
    const auto* const made = reinterpret_cast<const CREATESTRUCTW*>(narrow);
    auto* const created = static_cast<Picture*>(made->lpCreateParams);
    created->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    return DefWindowProcW(window, message, wide, narrow);
  }
  auto* const picture = reinterpret_cast<Picture*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (picture == nullptr) return DefWindowProcW(window, message, wide, narrow);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    picture->window_ = nullptr;
    return DefWindowProcW(window, message, wide, narrow);
  }
  try {
    return picture->answer(message, wide, narrow);
  } catch (...) {
    // No exception may cross the system's code. A picture that there is no memory for is not painted.
    if (message == WM_PAINT) ValidateRect(window, nullptr);
    return 0;
  }
}

LRESULT Picture::answer(UINT message, WPARAM first, LPARAM second) {
  const POINT pixel{GET_X_LPARAM(second), GET_Y_LPARAM(second)};
  switch (message) {
    case WM_ERASEBKGND:
      return 1;  // all of it is painted at once
    case WM_PAINT: {
      PAINTSTRUCT area;
      const HDC dc = BeginPaint(window_, &area);
      try {
        paint(dc);
      } catch (...) {
        EndPaint(window_, &area);
        throw;
      }
      EndPaint(window_, &area);
      return 0;
    }
    case WM_PRINTCLIENT:
      paint(reinterpret_cast<HDC>(first));
      return 0;
    case WM_SETCURSOR:
      if (!clickable_ || LOWORD(second) != HTCLIENT) break;
      SetCursor(LoadCursorW(nullptr, IDC_HAND));
      return TRUE;
    case WM_LBUTTONDOWN:
      pressed_ = true;
      return 0;
    case WM_LBUTTONUP: {
      // Let go beside it is no click, as on a button.
      const RECT all = room();
      if (std::exchange(pressed_, false) && clickable_ && PtInRect(&all, pixel) != FALSE)
        click(pixel);  // which may be the end of this object
      return 0;
    }
    default:
      break;
  }
  return DefWindowProcW(window_, message, first, second);
}

void Picture::click(POINT pixel) const {
  if (const auto at = point_at(pixel)) {
    const auto tell = clicked_at_;
    if (tell) tell(*at);
  } else if (drawing_ == nullptr && image_ == nullptr && !text_.empty()) {
    const auto tell = clicked_;
    if (tell) tell();
  }
}

void Picture::repaint() const {
  if (window_ != nullptr) InvalidateRect(window_, nullptr, FALSE);
}

RECT Picture::room() const {
  RECT all{};
  if (window_ != nullptr) GetClientRect(window_, &all);
  return all;
}

void Picture::show_drawing(std::shared_ptr<const ui::Drawing> drawing) {
  if (drawing_ == drawing) return;
  drawing_ = std::move(drawing);
  repaint();
}

bool Picture::show_file(const std::wstring& name, bool fitted) {
  image_ = is_plain(name) ? image_of(name) : nullptr;
  fitted_ = fitted;
  if (image_ != nullptr) text_.clear();
  repaint();
  return image_ != nullptr;
}

void Picture::show_text(const std::wstring& text) {
  if (text_ == text) return;
  text_ = text;
  repaint();
}

void Picture::set_clickable(bool on) {
  clickable_ = on;
}

void Picture::set_look(HFONT font, double scale, const paper::Inks& inks) {
  font_ = font;
  scale_ = scale;
  inks_ = inks;
  repaint();
}

std::shared_ptr<const Picture::Image> Picture::image_of(const std::wstring& name) {
  if (picture_folder().empty() || !start_decoder()) return nullptr;
  Gdiplus::Bitmap file((picture_folder() + L"\\" + name).c_str());
  const auto width = static_cast<int>(file.GetWidth());
  const auto height = static_cast<int>(file.GetHeight());
  if (file.GetLastStatus() != Gdiplus::Ok || width <= 0 || height <= 0) return nullptr;
  const Gdiplus::Rect all(0, 0, width, height);
  Gdiplus::BitmapData data{};
  if (file.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppPARGB, &data) != Gdiplus::Ok)
    return nullptr;
  auto image = std::make_shared<Image>();
  image->width = width;
  image->height = height;
  for (int y = 0; y < height; ++y) {
    const auto* const row = reinterpret_cast<const std::uint32_t*>(
        static_cast<const unsigned char*>(data.Scan0) + std::ptrdiff_t{y} * data.Stride);
    image->pixels.insert(image->pixels.end(), row, row + width);
  }
  file.UnlockBits(&data);
  return image;
}

// What the file's picture asks for.
SIZE Picture::image_size() const {
  const double part = fitted_ ? scale_ / 2 : scale_;
  return {std::max(1L, std::lround(image_->width * part)),
          std::max(1L, std::lround(image_->height * part))};
}

// Fitted at the top, where the text beside it begins, else half way up.
RECT Picture::image_place() const {
  const RECT all = room();
  SIZE size = image_size();
  if (!fitted_) {
    const LONG top = (height_of(all) - size.cy) / 2;
    return {0, top, size.cx, top + size.cy};
  }
  const double across = static_cast<double>(width_of(all)) / size.cx;
  const double down = static_cast<double>(height_of(all)) / size.cy;
  const double part = std::min({1.0, across, down});
  return {0, 0, std::lround(size.cx * part), std::lround(size.cy * part)};
}

SIZE Picture::wanted(HFONT font) const {
  if (image_ != nullptr) return image_size();
  const HDC dc = GetDC(window_);
  SIZE size{};
  if (drawing_ != nullptr) {
    size = room_of(*drawing_, dc, font);
  } else {
    const Selected selected(dc, font);
    RECT box{};
    DrawTextW(dc, text_.c_str(), static_cast<int>(text_.size()), &box,
              DT_CALCRECT | DT_NOPREFIX | DT_LEFT);
    size = {width_of(box), height_of(box)};
  }
  ReleaseDC(window_, dc);
  return size;
}

std::optional<ui::Point> Picture::point_at(POINT pixel) const {
  const RECT all = room();
  // The middle of the pixel.
  const ui::Point at{static_cast<double>(pixel.x) + 0.5, static_cast<double>(pixel.y) + 0.5};
  if (drawing_ != nullptr)
    return ui::DrawingPlace(*drawing_, width_of(all), height_of(all)).point_at(at);
  if (image_ == nullptr) return std::nullopt;
  const RECT place = image_place();
  if (PtInRect(&place, pixel) == FALSE) return std::nullopt;
  return ui::Point{(at.x - place.left) / width_of(place),
                   1 - (at.y - place.top) / height_of(place)};
}

void Picture::paint(HDC dc) const {
  const RECT all = room();
  if (width_of(all) <= 0 || height_of(all) <= 0) return;
  if (drawing_ != nullptr) {
    win32::paint(dc, *drawing_, all, font_, scale_, inks_);
    return;
  }
  const auto background = reinterpret_cast<HBRUSH>(
      SendMessageW(GetParent(window_), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                   reinterpret_cast<LPARAM>(window_)));
  FillRect(dc, &all, background != nullptr ? background : GetSysColorBrush(COLOR_BTNFACE));
  if (image_ != nullptr) {
    paint_image(dc, background != nullptr ? GetBkColor(dc) : GetSysColor(COLOR_BTNFACE));
    return;
  }
  const Selected selected(dc, font_);
  SetBkMode(dc, TRANSPARENT);
  constexpr UINT kHow = DT_NOPREFIX | DT_LEFT | DT_WORDBREAK;
  RECT box = all;
  const auto size = static_cast<int>(text_.size());
  const int height = DrawTextW(dc, text_.c_str(), size, &box, kHow | DT_CALCRECT);
  box = all;
  box.top = std::max<LONG>(0, (height_of(all) - height) / 2);
  DrawTextW(dc, text_.c_str(), size, &box, kHow);
}

void Picture::paint_image(HDC dc, COLORREF background) const {
  const RECT place = image_place();
  const paper::Image shown = paper::scaled(*image_, width_of(place), height_of(place));
  Bitmap bitmap(shown.width, shown.height);
  if (!bitmap.is_there()) return;
  const std::uint32_t behind = pixel_of(background);
  std::transform(shown.pixels.begin(), shown.pixels.end(), bitmap.pixels(),
                 [behind](std::uint32_t pixel) { return paper::on_background(pixel, behind); });
  BitBlt(dc, place.left, place.top, bitmap.width(), bitmap.height(), bitmap.dc(), 0, 0, SRCCOPY);
}

}  // namespace win32
