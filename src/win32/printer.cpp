#include "win32/printer.h"

#include <commdlg.h>
#include <winspool.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "paper/colour.h"
#include "paper/pdf.h"
#include "paper/stroke.h"
#include "win32/bitmap.h"
#include "win32/letters.h"
#include "win32/utf.h"

namespace win32 {
namespace {

// Who goes through a list of reports asks for the room of a page again and again, and a printer far
// away in a network must not stop him each time.
constexpr std::chrono::seconds kSheetIsGood{60};

using Outlines = std::vector<std::vector<ui::Point>>;

// What the printer is told of: its dots, from the corner that it can reach.
class PrinterCanvas : public paper::PageCanvas {
 public:
  PrinterCanvas(HDC dc, const ui::Sheets& sheets, const paper::SheetSize& size)
      : dc_(dc),
        dots_across_(GetDeviceCaps(dc, LOGPIXELSX) / paper::kPointsOfAnInch),
        dots_down_(GetDeviceCaps(dc, LOGPIXELSY) / paper::kPointsOfAnInch),
        point_(paper::kPointsOfAnInch / sheets.size.dots_per_inch),
        left_(size.margins.left * dots_across_ - GetDeviceCaps(dc, PHYSICALOFFSETX)),
        top_(size.margins.top * dots_down_ - GetDeviceCaps(dc, PHYSICALOFFSETY)) {}
  ~PrinterCanvas() override { use(nullptr); }
  PrinterCanvas(const PrinterCanvas&) = delete;
  PrinterCanvas& operator=(const PrinterCanvas&) = delete;

  void set_letters(double dots) override {
    const int height = static_cast<int>(std::lround(dots * point_ * dots_down_));
    use(CreateFontW(-std::max(1, height), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_TT_ONLY_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                    DEFAULT_PITCH | FF_DONTCARE, paper_letters().family.c_str()));
    letters_ = dots;
  }
  [[nodiscard]] bool start_page() {
    if (StartPage(dc_) <= 0) return false;
    // A new page of some printers knows nothing of the one before.
    SetBkMode(dc_, TRANSPARENT);
    SetTextAlign(dc_, TA_LEFT | TA_BASELINE | TA_NOUPDATECP);
    if (font_ != nullptr) SelectObject(dc_, font_);
    return true;
  }
  [[nodiscard]] bool next_page() override { return EndPage(dc_) > 0 && start_page(); }

  void fill(const std::vector<ui::Point>& outline, paper::Colour colour, bool /*exact*/) override {
    fill_all({outline}, colour, ALTERNATE);
  }
  void stroke(const std::vector<ui::Point>& line, const paper::Pen& pen) override {
    fill_all(paper::outlines_of(line, pen), pen.colour, WINDING);
  }
  void fill_circle(ui::Point centre, double radius, paper::Colour colour) override {
    fill_all({paper::circle_of(centre, radius)}, colour, WINDING);
  }
  void stroke_circle(ui::Point centre, double radius, const paper::Pen& pen) override {
    fill_all({paper::circle_of(centre, radius + pen.width / 2),
              paper::circle_of(centre, std::max(0.0, radius - pen.width / 2))},
             pen.colour, ALTERNATE);
  }
  void write(std::string_view text, ui::Point at, paper::Colour colour) override {
    SetTextColor(dc_, RGB(colour.red, colour.green, colour.blue));
    const std::wstring words = wide(text);
    const POINT place = dot_of(at);
    ExtTextOutW(dc_, place.x, place.y, 0, nullptr, words.c_str(), static_cast<UINT>(words.size()),
                nullptr);
  }
  void write_in_columns(std::string_view text, ui::Point at, double column,
                        paper::Colour colour) override {
    SetTextColor(dc_, RGB(colour.red, colour.green, colour.blue));
    write_columns(dc_, text, {across(at.x), down(at.y)}, column * point_ * dots_across_);
  }

  [[nodiscard]] double width_of(std::string_view text) const override {
    const std::wstring words = wide(text);
    SIZE size{};
    GetTextExtentPoint32W(dc_, words.c_str(), static_cast<int>(words.size()), &size);
    return size.cx / (point_ * dots_across_);
  }
  [[nodiscard]] double ascent() const override { return face().ascent() * letters_; }
  [[nodiscard]] double descent() const override { return face().descent() * letters_; }

  void clip(const paper::Box& box) override {
    clipped_ = SaveDC(dc_);
    const POINT first = dot_of({box.left, box.top});
    const POINT last = dot_of({box.right, box.bottom});
    IntersectClipRect(dc_, first.x, first.y, last.x, last.y);
  }
  void clip_no_more() override { RestoreDC(dc_, clipped_); }

 private:
  [[nodiscard]] static const paper::TrueType& face() { return *paper_letters().faces.front(); }

  [[nodiscard]] double across(double x) const { return left_ + x * point_ * dots_across_; }
  [[nodiscard]] double down(double y) const { return top_ + y * point_ * dots_down_; }
  // A drawing's points may lie far beyond what a printer counts.
  [[nodiscard]] POINT dot_of(ui::Point point) const {
    constexpr double kFarthest = 1e6;
    return {std::lround(std::clamp(across(point.x), -kFarthest, kFarthest)),
            std::lround(std::clamp(down(point.y), -kFarthest, kFarthest))};
  }

  void use(HFONT font) {
    const HGDIOBJ before = SelectObject(dc_, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    if (font_ != nullptr) DeleteObject(before);
    font_ = font;
  }

  void fill_all(const Outlines& outlines, paper::Colour colour, int how) {
    std::vector<POINT> points;
    std::vector<INT> sizes;
    for (const auto& outline : outlines) {
      if (outline.size() < 3) continue;
      for (const ui::Point point : outline) points.push_back(dot_of(point));
      sizes.push_back(static_cast<INT>(outline.size()));
    }
    if (sizes.empty()) return;
    const HBRUSH brush = CreateSolidBrush(RGB(colour.red, colour.green, colour.blue));
    {
      const Selected filled(dc_, brush);
      const Selected no_edge(dc_, GetStockObject(NULL_PEN));
      SetPolyFillMode(dc_, how);
      PolyPolygon(dc_, points.data(), sizes.data(), static_cast<int>(sizes.size()));
    }
    DeleteObject(brush);
  }

  HDC dc_;
  double dots_across_;  ///< of the printer, in a point
  double dots_down_;
  double point_;  ///< of a dot of the layout
  double left_;
  double top_;
  HFONT font_ = nullptr;
  double letters_ = 1;
  int clipped_ = 0;
};

std::wstring default_printer() {
  DWORD size = 0;
  GetDefaultPrinterW(nullptr, &size);
  std::wstring name(size, L'\0');
  if (size == 0 || GetDefaultPrinterW(name.data(), &size) == FALSE) return {};
  name.resize(size > 0 ? size - 1 : 0);  // without its end
  return name;
}

// That of the default printer, A4 where there is none that answers.
paper::SheetSize usual_sheet() {
  const std::wstring name = default_printer();
  const HDC dc = name.empty() ? nullptr : CreateICW(L"WINSPOOL", name.c_str(), nullptr, nullptr);
  if (dc == nullptr) return paper::sheet_of(paper::kA4Width, paper::kA4Height);
  const paper::SheetSize size = sheet_of(dc);
  DeleteDC(dc);
  return size;
}

paper::Proportions proportions() {
  const PaperLetters& letters = paper_letters();
  return letters.faces.empty() ? paper::Proportions{}
                               : paper::proportions_of(*letters.faces.front());
}

// An hourglass until it goes.
class Waiting {
 public:
  Waiting() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
  ~Waiting() { SetCursor(before_); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  HCURSOR before_;
};

ui::PrintResult failure() {
  const DWORD why = GetLastError();
  return why == ERROR_CANCELLED || why == ERROR_PRINT_CANCELLED ? ui::PrintResult::kCancelled
                                                                : ui::PrintResult::kFailed;
}

}  // namespace

paper::SheetSize sheet_of(HDC printer) {
  const auto points = [printer](int dots, int dots_per_inch) {
    return dots * paper::kPointsOfAnInch / std::max(1, GetDeviceCaps(printer, dots_per_inch));
  };
  const int left = GetDeviceCaps(printer, PHYSICALOFFSETX);
  const int top = GetDeviceCaps(printer, PHYSICALOFFSETY);
  const int across = GetDeviceCaps(printer, HORZRES);
  const int down = GetDeviceCaps(printer, VERTRES);
  // What is no printer has no paper beyond what it reaches.
  const int width = std::max(GetDeviceCaps(printer, PHYSICALWIDTH), left + across);
  const int height = std::max(GetDeviceCaps(printer, PHYSICALHEIGHT), top + down);
  return paper::sheet_of(
      points(width, LOGPIXELSX), points(height, LOGPIXELSY),
      {points(left, LOGPIXELSX), points(top, LOGPIXELSY), points(width - left - across, LOGPIXELSX),
       points(height - top - down, LOGPIXELSY)});
}

ui::PrintResult print_on(HDC printer, const ui::Sheets& sheets, const wchar_t* file) {
  if (paper_letters().faces.empty()) return ui::PrintResult::kFailed;
  const std::wstring name = wide(sheets.name);
  DOCINFOW job{};
  job.cbSize = sizeof job;
  job.lpszDocName = name.c_str();
  job.lpszOutput = file;
  SetLastError(ERROR_SUCCESS);
  if (StartDocW(printer, &job) <= 0) return failure();
  const paper::SheetSize size = sheet_of(printer);
  std::optional<ui::PrintResult> failed;
  try {
    PrinterCanvas canvas(printer, sheets, size);
    if (!canvas.start_page() || !paper::draw_pages(sheets, size, proportions(), canvas) ||
        EndPage(printer) <= 0)
      failed = failure();
  } catch (...) {
    AbortDoc(printer);
    throw;
  }
  if (!failed && EndDoc(printer) > 0) return ui::PrintResult::kSuccess;
  if (!failed) failed = failure();
  AbortDoc(printer);
  return *failed;
}

const paper::SheetSize& Printer::sheet() const {
  const auto now = std::chrono::steady_clock::now();
  if (!sheet_ || now - asked_ > kSheetIsGood) {
    sheet_ = usual_sheet();
    asked_ = now;
  }
  return *sheet_;
}

bool Printer::has_default_printer() const {
  return !default_printer().empty();
}

ui::PageRoom Printer::page_room(const ui::Sheets& sheets) const {
  return paper::measure_page(sheets, sheet(), proportions()).room;
}

ui::PrintResult Printer::print(const ui::Sheets& sheets) {
  sheet_.reset();  // the dialog may change what the printer does by itself
  PRINTDLGW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner_();
  dialog.Flags = PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION | PD_HIDEPRINTTOFILE |
                 PD_USEDEVMODECOPIESANDCOLLATE;
  dialog.nCopies = 1;
  const bool chosen = PrintDlgW(&dialog) != FALSE;
  if (dialog.hDevMode != nullptr) GlobalFree(dialog.hDevMode);
  if (dialog.hDevNames != nullptr) GlobalFree(dialog.hDevNames);
  if (!chosen)
    return CommDlgExtendedError() == 0 ? ui::PrintResult::kCancelled : ui::PrintResult::kFailed;
  if (dialog.hDC == nullptr) return ui::PrintResult::kFailed;
  const Waiting waiting;
  struct Close {
    HDC dc;
    ~Close() { DeleteDC(dc); }
  } const close{dialog.hDC};
  return print_on(close.dc, sheets);
}

std::optional<std::string> Printer::pdf(const ui::Sheets& sheets) const {
  const Waiting waiting;
  return paper::pdf_of(sheets, sheet(), paper_letters().faces);
}

}  // namespace win32
