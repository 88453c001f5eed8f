// What has lines: lists, choices and trees.

#include "win32/system.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <map>
#include <utility>

#include "ui/dump.h"
#include "win32/spoken_words.h"
#include "win32/utf.h"
#include "win32/widgets.h"

namespace win32 {
namespace {

class ListWidget : public Widget {
 public:
  ListWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    // Its lines are drawn here: some have boxes, some are slanted.
    make(WC_LISTBOXW, WS_BORDER | WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY |
                          LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    set_line_height();
  }
  void command(HWND /*from*/, WORD code) override {
    if (code == LBN_SELCHANGE)
      host().hand_later([this, line = chosen()] { screen().choose(control(), line); });
    if (code == LBN_DBLCLK) host().hand_later([this] { screen().press(control()); });
  }
  void dress_anew() override {
    Widget::dress_anew();
    set_line_height();
    widest_ = -1;
    host().room_changed();
  }
  void draw(const DRAWITEMSTRUCT& item) override;
  [[nodiscard]] Shown shown() const override {
    Shown result;
    const auto count = static_cast<int>(SendMessageW(window(), LB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
      const auto at = static_cast<WPARAM>(i);
      std::wstring text(static_cast<std::size_t>(SendMessageW(window(), LB_GETTEXTLEN, at, 0)) + 1,
                        L'\0');
      const LRESULT length =
          SendMessageW(window(), LB_GETTEXT, at, reinterpret_cast<LPARAM>(text.data()));
      text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
      result.items.push_back(narrow(text));
    }
    result.selected = chosen();
    result.ticked = ticked_;
    return result;
  }
  [[nodiscard]] Span across() const override {
    constexpr int kWidest = 900;
    const int bar = GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi());
    const int wanted = text_width() + bar + look().pixels(6);
    return {std::min(wanted, look().pixels(kWidest)), wanted, kNoLimit, true};
  }
  [[nodiscard]] Span down(int width) const override {
    const int line = line_height_;
    int height = line * ui::extent_of(control()).least_lines + line / 2;
    // The bar by which a wide line is scrolled to must not hide another.
    if (text_width() > width - look().pixels(4))
      height += GetSystemMetricsForDpi(SM_CYHSCROLL, look().dpi());
    return {height, height, kNoLimit, true};
  }
  void place(const Place& place) override {
    Widget::place(place);
    // Chosen before there was room for it, a line may lie below what is seen.
    if (const int line = chosen(); line >= 0)
      SendMessageW(window(), LB_SETCURSEL, static_cast<WPARAM>(line), 0);
    // A line that is wider is scrolled to.
    SendMessageW(window(), LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(text_width()), 0);
  }

 protected:
  void show_state() override {
    if (control().items != lines_ || control().item_marked != marked_) fill();
    if (control().item_ticked != ticked_) {
      ticked_ = control().item_ticked;
      InvalidateRect(window(), nullptr, TRUE);
      host().room_changed();
    }
    if (chosen() != control().selected)
      SendMessageW(window(), LB_SETCURSEL, static_cast<WPARAM>(control().selected), 0);
  }
  LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l) override {
    const int ticks = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK ? box_at(l) : -1;
    // Two quick clicks on a box are two ticks, and open nothing.
    if (ticks >= 0 && message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
    const LRESULT result = Widget::on_message(window, message, w, l);
    if (ticks >= 0) {
      host().hand_later([this, ticks] {
        const auto at = static_cast<std::size_t>(ticks);
        if (at < control().item_ticked.size())
          screen().tick_line(control(), ticks, !control().item_ticked[at]);
      });
    }
    return result;
  }

 private:
  [[nodiscard]] int chosen() const {
    return static_cast<int>(SendMessageW(window(), LB_GETCURSEL, 0, 0));
  }
  [[nodiscard]] int box_room() const {
    return ticked_.empty() ? 0 : line_height_ + look().pixels(2);
  }
  [[nodiscard]] int text_width() const { return widest() + box_room() + look().pixels(8); }
  // The line whose box stands there.
  [[nodiscard]] int box_at(LPARAM where) const {
    if (ticked_.empty() || GET_X_LPARAM(where) >= box_room()) return -1;
    const auto found = static_cast<DWORD>(SendMessageW(window(), LB_ITEMFROMPOINT, 0, where));
    return HIWORD(found) != 0 ? -1 : LOWORD(found);
  }
  void set_line_height() {
    line_height_ = look().line_of(font()) + look().pixels(2);
    SendMessageW(window(), LB_SETITEMHEIGHT, 0, line_height_);
  }

  void fill() {
    lines_ = control().items;
    marked_ = control().item_marked;
    widest_ = -1;
    SendMessageW(window(), WM_SETREDRAW, FALSE, 0);
    SendMessageW(window(), LB_RESETCONTENT, 0, 0);
    for (const std::string& line : lines_)
      SendMessageW(window(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(line).c_str()));
    SendMessageW(window(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window(), nullptr, TRUE);
    host().room_changed();
  }

  [[nodiscard]] int widest() const {
    // Asked often, and a folder may hold ten thousand reports.
    if (widest_ >= 0) return widest_;
    widest_ = 0;
    for (const std::string& line : lines_)
      widest_ = std::max<int>(widest_, look().size_of(font(), wide(line)).cx);
    return widest_;
  }

  std::vector<std::string> lines_;
  std::vector<bool> marked_;
  std::vector<bool> ticked_;  ///< as shown
  int line_height_ = 1;
  mutable int widest_ = -1;
};

void ListWidget::draw(const DRAWITEMSTRUCT& item) {
  const auto line = static_cast<std::size_t>(item.itemID);
  const bool chosen = (item.itemState & ODS_SELECTED) != 0;
  const bool off = IsWindowEnabled(window()) == FALSE;
  const Colours& colours = look().colours();
  FillRect(item.hDC, &item.rcItem,
           look().brush(chosen ? colours.selected
                        : off  ? colours.window
                               : colours.paper));
  if (line >= lines_.size()) return;
  RECT room = item.rcItem;
  if (line < ticked_.size()) {
    const int side = line_height_ - look().pixels(4);
    RECT box{room.left + look().pixels(2), room.top + look().pixels(2),
             room.left + look().pixels(2) + side, room.top + look().pixels(2) + side};
    const auto tick = static_cast<UINT>(ticked_[line] ? DFCS_CHECKED : 0);
    DrawFrameControl(item.hDC, &box, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_FLAT | tick);
    room.left += box_room();
  }
  const HFONT own = line < marked_.size() && marked_[line] ? look().slanted(font()) : font();
  const HGDIOBJ before = SelectObject(item.hDC, own);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, chosen ? colours.selected_ink : off ? colours.faint : colours.ink);
  room.left += look().pixels(3);
  const std::wstring text = wide(lines_[line]);
  DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &room,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
  SelectObject(item.hDC, before);
}

// Stands for boxes that are made anew while the window lives.
class Changing : public Box {
 public:
  using Now = std::function<Box*()>;
  Changing(Now now, std::function<bool()> shown) : now_(std::move(now)), shown_(std::move(shown)) {}
  [[nodiscard]] bool shown() const override { return now_() != nullptr && shown_(); }
  [[nodiscard]] Span across() const override { return now_()->across(); }
  [[nodiscard]] Span down(int width) const override { return now_()->down(width); }
  void place(const Place& place) override { now_()->place(place); }

 private:
  Now now_;
  std::function<bool()> shown_;
};

// One of several lines, each with a button.
class ChoiceWidget : public Widget {
 public:
  using Widget::Widget;
  // Tab enters by the line that is chosen, else by the first that can be.
  [[nodiscard]] HWND focus_window() const override {
    for (const Line& line : lines_)
      if (is_checked(line) && IsWindowEnabled(line.button) != FALSE) return line.button;
    for (const Line& line : lines_)
      if (IsWindowEnabled(line.button) != FALSE) return line.button;
    return lines_.empty() ? nullptr : lines_.front().button;
  }
  [[nodiscard]] HWND window() const override {
    return lines_.empty() ? nullptr : lines_.front().button;
  }
  void command(HWND from, WORD code) override {
    // A round button says that it was clicked when the focus comes to it as well.
    if (code != BN_CLICKED || entering_) return;
    const int line = line_of(from);
    // Later: the choice may get other lines, and the button that is being clicked goes with the old.
    if (line >= 0) host().hand_later([this, line] { screen().choose(control(), line); });
  }
  [[nodiscard]] bool on_paper() const override { return false; }
  [[nodiscard]] Shown shown() const override {
    Shown result;
    for (const Line& line : lines_) {
      result.items.push_back(joined(line.text != nullptr ? narrow(text_on(line.text))
                                                         : unescaped(text_on(line.button))));
      if (line.code != nullptr) result.codes.push_back(narrow(text_on(line.code)));
      if (is_checked(line)) result.selected = static_cast<int>(result.items.size()) - 1;
      result.disabled.push_back(IsWindowEnabled(line.button) == FALSE);
    }
    // Beside a picture the code is on the button.
    if (!pictures_.empty()) result.codes = codes_;
    return result;
  }
  [[nodiscard]] std::unique_ptr<Box> box() override {
    return std::make_unique<Changing>([this] { return box_.get(); },
                                      [this] { return control().visible; });
  }
  [[nodiscard]] Span across() const override { return box_ == nullptr ? Span{} : box_->across(); }
  [[nodiscard]] Span down(int width) const override {
    return box_ == nullptr ? Span{} : box_->down(width);
  }
  void place(const Place& place) override {
    if (box_ != nullptr) box_->place(place);
  }
  void stand_beside(int columns, std::vector<BesideLine> pictures) override {
    columns_ = columns;
    pictures_ = std::move(pictures);
    make_anew();
    show();
  }
  void dress_anew() override {
    Widget::dress_anew();
    make_boxes();
  }

 protected:
  void show_state() override {
    if (control().items.size() != items_.size() || control().item_codes != codes_) {
      make_anew();
    } else if (control().items != items_) {
      // Another language alone: the buttons stay, and with them the focus.
      items_ = control().items;
      for (std::size_t i = 0; i < lines_.size(); ++i) show_line(i);
      say_anew();
      host().room_changed();
    }
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const bool wanted = control().selected == static_cast<int>(i);
      if (is_checked(lines_[i]) != wanted)
        SendMessageW(lines_[i].button, BM_SETCHECK, wanted ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    // The focus goes with what is chosen, but not from a button that is being clicked.
    if (shows_choice() && owns(GetFocus()) && !owns(GetCapture()) && focus_window() != GetFocus())
      SetFocus(focus_window());
  }
  void show_flags() override {
    const auto& off = control().item_disabled;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const bool on = control().enabled && !(i < off.size() && off[i]);
      for (const HWND window : {lines_[i].button, lines_[i].code, lines_[i].text}) {
        if (window == nullptr) continue;
        if ((IsWindowEnabled(window) != FALSE) != on) EnableWindow(window, on ? TRUE : FALSE);
        show_window(window, control().visible);
      }
    }
  }
  // A line has the focus, and says what it is a line of.
  void speak(const std::wstring& name, const std::wstring& /*state*/) override {
    for (std::size_t i = 0; i < lines_.size(); ++i) say_of(lines_[i].button, wide(items_[i]), name);
  }
  LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l) override {
    if (message == WM_SETFOCUS) {
      entering_ = true;
      const LRESULT result = Widget::on_message(window, message, w, l);
      entering_ = false;
      return result;
    }
    // A click on a line's text is one on its button.
    if (message == WM_LBUTTONUP) {
      const auto at = std::find_if(lines_.begin(), lines_.end(),
                                   [window](const Line& line) { return line.text == window; });
      if (at != lines_.end() && IsWindowEnabled(at->button) != FALSE) {
        SetFocus(at->button);
        SendMessageW(at->button, BM_CLICK, 0, 0);
        return 0;
      }
    }
    return Widget::on_message(window, message, w, l);
  }

 private:
  struct Line {
    HWND button = nullptr;
    HWND code = nullptr;  ///< in front of it
    HWND text = nullptr;  ///< below it, beside a picture
  };

  [[nodiscard]] static bool is_checked(const Line& line) {
    return SendMessageW(line.button, BM_GETCHECK, 0, 0) == BST_CHECKED;
  }
  [[nodiscard]] bool shows_choice() const {
    return std::any_of(lines_.begin(), lines_.end(), is_checked);
  }
  [[nodiscard]] int line_of(HWND button) const {
    const auto at = std::find_if(lines_.begin(), lines_.end(),
                                 [button](const Line& line) { return line.button == button; });
    return at == lines_.end() ? -1 : static_cast<int>(at - lines_.begin());
  }
  [[nodiscard]] static std::string joined(std::string text) {
    std::erase(text, '\r');
    return text;
  }
  [[nodiscard]] const BesideLine* picture_of(std::size_t line) const {
    const auto at = std::find_if(
        pictures_.begin(), pictures_.end(),
        [line](const BesideLine& beside) { return beside.line == static_cast<int>(line); });
    return at == pictures_.end() ? nullptr : &*at;
  }

  void make_anew() {
    const bool had_focus = owns(GetFocus());
    for (const HWND window : std::vector(windows())) unmake(window);
    lines_.clear();
    items_ = control().items;
    codes_ = control().item_codes;
    const bool has_codes = columns_ > 0 || ui::look_of(control()) == ui::ChoiceLook::kBehindCodes;
    for (std::size_t i = 0; i < items_.size(); ++i) {
      Line line;
      const bool pictured = picture_of(i) != nullptr;
      if (has_codes && !pictured) line.code = make(WC_STATICW, SS_LEFT | SS_NOPREFIX);
      const auto first = static_cast<DWORD>(i == 0 ? WS_GROUP | WS_TABSTOP : 0);
      line.button = make(WC_BUTTONW, BS_RADIOBUTTON | BS_NOTIFY | BS_MULTILINE | first);
      if (pictured) line.text = make(WC_STATICW, SS_LEFT | SS_NOPREFIX | SS_NOTIFY);
      lines_.push_back(line);
      show_line(i);
    }
    make_boxes();
    say_anew();
    host().room_changed();
    if (had_focus && focus_window() != nullptr) SetFocus(focus_window());
  }

  // A line beside a picture has its text below the button, which bears the picture's name.
  void show_line(std::size_t at) {
    const Line& line = lines_[at];
    if (line.code != nullptr && at < codes_.size()) put_text(line.code, wide(codes_[at]));
    if (line.text == nullptr) {
      put_text(line.button, escaped(items_[at]));
      return;
    }
    put_text(line.text, wide(items_[at]));
    put_text(line.button, escaped(screen().caption(picture_of(at)->picture->control())));
  }

  // As long as the control says; a longer one goes on in further lines.
  [[nodiscard]] std::unique_ptr<Box> button_box(std::size_t at) {
    const auto room = [this] { return look().pixels(20); };
    const auto across = [this, at, room] {
      const std::wstring text =
          lines_[at].text == nullptr ? wide(items_[at]) : text_on(lines_[at].button);
      int width = look().size_of(font(), text).cx;
      if (const int most = ui::extent_of(control()).most_characters; most > 0)
        width = std::min(width, look().figure_of(font()) * most);
      width += room();
      return Span{width, width, width, false};
    };
    const auto down = [this, at, room](int width) {
      const std::wstring text =
          lines_[at].text == nullptr ? wide(items_[at]) : text_on(lines_[at].button);
      const int height = std::max(look().height_of(font(), text, width - room() + look().pixels(2)),
                                  look().pixels(13)) +
                         look().pixels(2);
      return Span{height, height, height, false};
    };
    return std::make_unique<WindowBox>(
        lines_[at].button, [] { return true; }, across, down);
  }
  [[nodiscard]] std::unique_ptr<Box> code_box(std::size_t at) {
    const auto across = [this, at] {
      const int width = look().size_of(font(), at < codes_.size() ? wide(codes_[at]) : L"").cx;
      return Span{width, width, width, false};
    };
    const auto down = [this](int) {
      const int height = look().line_of(font());
      return Span{height, height, height, false};
    };
    return std::make_unique<WindowBox>(
        lines_[at].code, [] { return true; }, across, down);
  }
  [[nodiscard]] std::unique_ptr<Box> text_box(std::size_t at) {
    constexpr int kFewest = 14;  // characters on a line of it
    constexpr int kUsual = 24;
    const auto across = [this] {
      const int figure = look().figure_of(font());
      return Span{figure * kFewest, figure * kUsual, kNoLimit, true};
    };
    const auto down = [this, at](int width) {
      const int height = look().height_of(font(), wide(items_[at]), width);
      return Span{height, height, kNoLimit, false};
    };
    return std::make_unique<WindowBox>(
        lines_[at].text, [] { return true; }, across, down);
  }

  void make_boxes() {
    if (lines_.empty()) {
      box_.reset();
      return;
    }
    if (columns_ > 0) {
      box_ = boxes_beside_pictures();
      return;
    }
    switch (ui::look_of(control())) {
      case ui::ChoiceLook::kBehindCodes: {
        auto grid =
            std::make_unique<Grid>(look().pixels(10), look().pixels(2), Grid::Rest::kLastColumn);
        for (std::size_t i = 0; i < lines_.size(); ++i) {
          const auto row = static_cast<int>(i);
          grid->add_cell(code_box(i), row, 0, 1, Grid::Side::kRight);
          grid->add_cell(button_box(i), row, 1);
        }
        box_ = std::move(grid);
        return;
      }
      case ui::ChoiceLook::kSideBySide: {
        auto row = std::make_unique<Row>(look().pixels(10));
        for (std::size_t i = 0; i < lines_.size(); ++i) row->add(button_box(i));
        row->add<Space>();
        box_ = std::move(row);
        return;
      }
      case ui::ChoiceLook::kBelow: {
        auto column = std::make_unique<Column>(look().pixels(2));
        for (std::size_t i = 0; i < lines_.size(); ++i) column->add(button_box(i));
        box_ = std::move(column);
        return;
      }
    }
  }

  // What has no picture stands on one line above; the others in columns, picture by picture.
  [[nodiscard]] std::unique_ptr<Box> boxes_beside_pictures() {
    auto all = std::make_unique<Column>(look().pixels(8));
    auto above = std::make_unique<Row>(look().pixels(10));
    auto grid =
        std::make_unique<Grid>(look().pixels(14), look().pixels(8), Grid::Rest::kAllColumns);
    int cell = 0;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const BesideLine* const beside = picture_of(i);
      if (beside == nullptr) {
        above->add(code_box(i));
        above->add(button_box(i));
        continue;
      }
      auto across = std::make_unique<Row>(look().pixels(8));
      auto picture = std::make_unique<Column>(0);
      picture->add(beside->picture->box());
      across->add(std::move(picture));
      auto text = std::make_unique<Column>(look().pixels(2));
      text->add(button_box(i));
      text->add(text_box(i));
      across->add(std::move(text));
      grid->add_cell(std::move(across), cell / columns_, cell % columns_);
      ++cell;
    }
    above->add<Space>();
    all->add(std::move(above));
    all->add(std::move(grid));
    return all;
  }

  std::vector<Line> lines_;
  std::vector<std::string> items_;
  std::vector<std::string> codes_;
  std::unique_ptr<Box> box_;
  int columns_ = 0;  ///< of lines beside pictures; 0 for none
  std::vector<BesideLine> pictures_;
  bool entering_ = false;
};

class TreeWidget : public Widget {
 public:
  TreeWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    make(WC_TREEVIEWW, WS_BORDER | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT |
                           TVS_SHOWSELALWAYS | TVS_NOTOOLTIPS);
    colour();
  }
  void dress_anew() override {
    Widget::dress_anew();
    colour();
  }
  LRESULT notify(const NMHDR& told) override {
    if (told.code == NM_CUSTOMDRAW) return draw_row(reinterpret_cast<const NMTVCUSTOMDRAW&>(told));
    if (writing_) return 0;
    const auto& view = reinterpret_cast<const NMTREEVIEWW&>(told);
    if (told.code == TVN_SELCHANGEDW) {
      const int row = row_of(view.itemNew.hItem);
      if (row >= 0) host().hand_later([this, row] { screen().choose(control(), row); });
      return 0;
    }
    if (told.code != TVN_ITEMEXPANDINGW) return 0;
    // The screen opens and closes rows; the tree shows what it says then.
    const int row = row_of(view.itemNew.hItem);
    if (row < 0) return TRUE;
    const auto at = static_cast<std::size_t>(row);
    const bool open = !rows_[at].expanded;
    host().hand_later([this, at, open, path = rows_[at].path] {
      if (at >= rows_.size() || rows_[at].path != path) return;
      if (open) {
        screen().expand(control(), at);
      } else {
        screen().collapse(control(), at);
      }
    });
    return TRUE;
  }
  [[nodiscard]] Shown shown() const override {
    Shown result;
    result.selected = chosen();
    for (const HTREEITEM item : items_) {
      wchar_t text[512]{};
      TVITEMW asked{};
      asked.mask = TVIF_TEXT | TVIF_HANDLE;
      asked.hItem = item;
      asked.pszText = text;
      asked.cchTextMax = 511;
      SendMessageW(window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
      result.items.push_back(narrow(asked.pszText));
    }
    return result;
  }
  [[nodiscard]] Span across() const override {
    Span span = field_across(GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()));
    span.grows = true;
    span.most = kNoLimit;
    return span;
  }
  [[nodiscard]] Span down(int /*width*/) const override {
    const int height = look().line_of(font()) * ui::extent_of(control()).least_lines;
    return {height, height, kNoLimit, true};
  }

 protected:
  void show_state() override {
    writing_ = true;
    const auto same = [](const ui::TreeRow& a, const ui::TreeRow& b) {
      return a.text == b.text && a.path == b.path && a.depth == b.depth &&
             a.can_expand == b.can_expand && a.expanded == b.expanded && a.marked == b.marked;
    };
    const auto& rows = control().rows;
    if (!std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(), same)) {
      rows_ = rows;
      fill();
    }
    if (chosen() != control().selected) {
      const auto at = static_cast<std::size_t>(control().selected);
      const HTREEITEM item = control().selected >= 0 && at < items_.size() ? items_[at] : nullptr;
      SendMessageW(window(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    }
    writing_ = false;
  }

 protected:
  // A tree that gets the focus chooses its first row, which the person did not.
  LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l) override {
    if (message != WM_SETFOCUS || chosen() >= 0) return Widget::on_message(window, message, w, l);
    writing_ = true;
    const LRESULT result = Widget::on_message(window, message, w, l);
    SendMessageW(window, TVM_SELECTITEM, TVGN_CARET, 0);
    writing_ = false;
    return result;
  }

 private:
  void colour() {
    SendMessageW(window(), TVM_SETBKCOLOR, 0, static_cast<LPARAM>(look().colours().paper));
    SendMessageW(window(), TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(look().colours().ink));
  }
  [[nodiscard]] int row_of(HTREEITEM item) const {
    const auto at = std::find(items_.begin(), items_.end(), item);
    return at == items_.end() ? -1 : static_cast<int>(at - items_.begin());
  }
  [[nodiscard]] int chosen() const {
    return row_of(
        reinterpret_cast<HTREEITEM>(SendMessageW(window(), TVM_GETNEXTITEM, TVGN_CARET, 0)));
  }
  // Rows that are set apart are slanted.
  [[nodiscard]] LRESULT draw_row(const NMTVCUSTOMDRAW& drawn) const {
    if (drawn.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (drawn.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const int row = row_of(reinterpret_cast<HTREEITEM>(drawn.nmcd.dwItemSpec));
    if (row < 0 || !rows_[static_cast<std::size_t>(row)].marked) return CDRF_DODEFAULT;
    SelectObject(drawn.nmcd.hdc, look().slanted(font()));
    return CDRF_NEWFONT;
  }

  void fill() {
    SendMessageW(window(), WM_SETREDRAW, FALSE, 0);
    SendMessageW(window(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    items_.clear();
    std::vector<HTREEITEM> parents;
    for (const ui::TreeRow& row : rows_) {
      const auto depth = static_cast<std::size_t>(std::max(row.depth, 0));
      parents.resize(std::min(parents.size(), depth));
      std::wstring text = wide(row.text);
      TVINSERTSTRUCTW added{};
      added.hParent = parents.empty() ? TVI_ROOT : parents.back();
      added.hInsertAfter = TVI_LAST;
      added.item.mask = TVIF_TEXT | TVIF_CHILDREN;
      added.item.pszText = text.data();
      added.item.cChildren = row.can_expand ? 1 : 0;
      items_.push_back(reinterpret_cast<HTREEITEM>(
          SendMessageW(window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&added))));
      parents.push_back(items_.back());
    }
    for (std::size_t i = 0; i < rows_.size(); ++i)
      if (rows_[i].expanded)
        SendMessageW(window(), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(items_[i]));
    SendMessageW(window(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window(), nullptr, TRUE);
  }

  std::vector<ui::TreeRow> rows_;
  std::vector<HTREEITEM> items_;
  bool writing_ = false;
};

}  // namespace

std::unique_ptr<Widget> make_list(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<ListWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_choice(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<ChoiceWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_tree(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<TreeWidget>(s, c, host, parent);
}

}  // namespace win32
