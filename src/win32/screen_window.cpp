#include "win32/screen_window.h"

#include "win32/system.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "ui/dump.h"
#include "ui/front_end.h"
#include "ui/line_keys.h"
#include "ui/spoken.h"
#include "win32/utf.h"

namespace win32 {
namespace {

constexpr const wchar_t* kFrameKind = L"KavrelWindow";
constexpr const wchar_t* kPartKind = L"KavrelPart";
constexpr WORD kIcon = 1;

// Sent to itself: the focus is asked about once the event that moved it is through.
constexpr UINT kSettle = WM_APP + 1;
constexpr UINT kLater = WM_APP + 2;

constexpr int kFrameWidth = 2;  // of the frame around what has the focus

HINSTANCE program() {
  return GetModuleHandleW(nullptr);
}

void register_kind(const wchar_t* name, WNDPROC proc) {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = proc;
  kind.hInstance = program();
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.hIcon = LoadIconW(program(), MAKEINTRESOURCEW(kIcon));
  kind.lpszClassName = name;
  RegisterClassExW(&kind);
}

void add_names(const ui::PlanNode& node, std::set<std::string>& into) {
  if (!node.name.empty()) into.insert(node.name);
  for (const ui::PlanNode& each : node.beside) add_names(each, into);
  for (const ui::PlanNode& child : node.children) add_names(child, into);
}

RECT rect_on(HWND window, HWND part) {
  RECT rect{};
  GetWindowRect(window, &rect);
  MapWindowPoints(HWND_DESKTOP, part, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

SIZE client_size(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return {rect.right, rect.bottom};
}

// What the person does, Tab excepted, whether the screen is told of it or not.
bool is_key_or_click(const MSG& message) {
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return message.wParam != VK_TAB || GetKeyState(VK_SHIFT) < 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
      return true;
    default:
      return false;
  }
}

void draw_frame(HDC canvas, RECT around, int width, HBRUSH brush) {
  for (int i = 0; i < width; ++i) {
    FrameRect(canvas, &around, brush);
    InflateRect(&around, -1, -1);
  }
}

}  // namespace

ScreenWindow::ScreenWindow(ui::Screen& screen, HWND owner) : screen_(screen) {
  static const bool registered = [] {
    register_kind(kFrameKind, frame_proc);
    register_kind(kPartKind, part_proc);
    return true;
  }();
  static_cast<void>(registered);
  plan_ = ui::plan_of(screen_);
  compact_ = plan_.has_menu;
  const DWORD size = plan_.has_menu ? WS_MAXIMIZEBOX | WS_MINIMIZEBOX : 0;
  frame_ = CreateWindowExW(WS_EX_CONTROLPARENT, kFrameKind, wide(screen_.title()).c_str(),
                           WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN | size,
                           CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, owner, nullptr, program(), nullptr);
  SetWindowLongPtrW(frame_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  set_filter(frame_, this);
  look_ = std::make_unique<Look>(GetDpiForWindow(frame_), screen_.language(), system_is_dark());
  darken_frame(frame_, look_->dark());
  viewport_ = make_part(frame_, 0);
  content_ = make_part(viewport_, 0);
  body_.window = content_;
  if (!plan_.foot.children.empty()) {
    foot_ = make_part(frame_, 0);
    below_.window = foot_;
    add_names(plan_.foot, in_foot_);
  }
  menu_bar_ = std::make_unique<MenuBar>(frame_);
  make_widgets(plan_);
  make_boxes(plan_);
  make_tips();
  built_ = true;
  refresh();
  take_place();
  // Once for all that was asked for meanwhile: there are hundreds of windows to move.
  placed_ = true;
  room_changed_ = false;
  lay_out();
  apply_focus();
}

ScreenWindow::~ScreenWindow() {
  set_filter(frame_, nullptr);
  SetWindowLongPtrW(frame_, GWLP_USERDATA, 0);
  for (const HWND part : {viewport_, content_, foot_})
    if (part != nullptr) SetWindowLongPtrW(part, GWLP_USERDATA, 0);
  widgets_.clear();
  menu_bar_.reset();
  DestroyWindow(frame_);
}

HWND ScreenWindow::make_part(HWND parent, DWORD style) {
  const HWND part =
      CreateWindowExW(WS_EX_CONTROLPARENT, kPartKind, L"",
                      style | WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                      parent, nullptr, program(), nullptr);
  SetWindowLongPtrW(part, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  return part;
}

void ScreenWindow::show_up() {
  const auto kept = screen_.kept_place();
  ShowWindow(frame_, kept && kept->maximised ? SW_SHOWMAXIMIZED : SW_SHOW);
  is_being_put_ = false;
  SetForegroundWindow(frame_);
  lay_out_now();
  give_focus();
  if (const ui::Control* const focused = screen_.focused())
    if (const Widget* const target = widget(*focused)) bring_into_view(*target);
  UpdateWindow(frame_);
}

// What the window is made of.

void ScreenWindow::make_widgets(const ui::Plan& plan) {
  const ui::Titles titles = ui::titles_of(screen_, plan);
  const auto keys = ui::access_keys_of(screen_, plan);
  for (ui::Control* const control : screen_.controls()) {
    const HWND on = in_foot_.contains(control->name) ? foot_ : content_;
    widgets_.push_back(make_widget(screen_, *control, *this, on));
    Widget& made = *widgets_.back();
    if (const auto of = titles.find(control); of != titles.end()) made.titles = of->second;
    if (const auto of = keys.find(control); of != keys.end()) made.access_key = of->second;
  }
}

int ScreenWindow::gap_between() const {
  return look_->pixels(compact_ ? 4 : 8);
}

void ScreenWindow::make_boxes(const ui::Plan& plan) {
  build_part(plan.body, body_, false);
  if (foot_ != nullptr) build_part(plan.foot, below_, true);
  // The lines of a choice stand where the plan says only once they have their texts.
  for (const auto& widget : widgets_) widget->show();
}

void ScreenWindow::build_part(const ui::PlanNode& from, Part& into, bool is_foot) {
  building_ = &into;
  into.frames.clear();
  auto column = std::make_unique<Column>(gap_between());
  for (const ui::PlanNode& child : from.children) build_node(child, *column, gap_between());
  const int margin = look_->pixels(compact_ ? 6 : 10);
  // The foot stands as near to the body as the parts of the body to each other.
  into.box = std::make_unique<Padded>(
      std::move(column), Padded::Sides{margin, is_foot ? 0 : margin, margin, margin}, false);
  building_ = nullptr;
}

void ScreenWindow::build_children(const ui::PlanNode& node, Holder& into, int gap) {
  for (const ui::PlanNode& child : node.children) build_node(child, into, gap);
}

void ScreenWindow::build_node(const ui::PlanNode& node, Holder& into, int gap) {
  using Type = ui::PlanNode::Type;
  switch (node.type) {
    case Type::kRows:
      build_children(node, into.add<Column>(gap), gap);
      break;
    case Type::kColumns:
      build_children(node, into.add<Row>(gap), gap);
      break;
    case Type::kLine:
      build_children(node, into.add<Row>(look_->pixels(10)), gap);
      break;
    case Type::kButtons:
      build_children(node, into.add<Row>(look_->pixels(8)), gap);
      break;
    case Type::kFlow:
      build_flow(node, into, gap);
      break;
    case Type::kGroup:
      build_group(node, into);
      break;
    case Type::kGrid:
      build_grid(node, into, gap);
      break;
    case Type::kLines:
      build_lines(node, into);
      break;
    case Type::kSpace:
      into.add<Space>();
      break;
    case Type::kControl:
      into.add(placed(node));
      break;
  }
}

void ScreenWindow::build_flow(const ui::PlanNode& node, Holder& into, int gap) {
  const bool of_controls =
      !node.children.empty() && node.children.front().type == ui::PlanNode::Type::kControl;
  // Fields under their captions stand near each other; columns are as far apart as their parts.
  Flow& flow =
      of_controls ? into.add<Flow>(look_->pixels(6), look_->pixels(2)) : into.add<Flow>(gap, gap);
  for (const ui::PlanNode& child : node.children) build_node(child, flow, gap);
}

void ScreenWindow::build_grid(const ui::PlanNode& node, Holder& into, int gap) {
  Grid& grid =
      into.add<Grid>(look_->pixels(8), look_->pixels(compact_ ? 3 : 6), Grid::Rest::kBehind);
  for (const ui::GridCell& cell : ui::cells_of(node)) {
    std::unique_ptr<Box> box;
    switch (cell.holds) {
      case ui::GridCell::Holds::kCaption:
        box = caption_of(*widget(cell.node->name));
        break;
      case ui::GridCell::Holds::kControl:
        box = placed(*cell.node);
        break;
      case ui::GridCell::Holds::kPart:
        auto column = std::make_unique<Column>(gap);
        build_node(*cell.node, *column, gap);
        box = std::move(column);
        break;
    }
    grid.add_cell(std::move(box), cell.row, cell.column, cell.columns);
  }
}

void ScreenWindow::build_lines(const ui::PlanNode& node, Holder& into) {
  std::vector<Widget::BesideLine> pictures;
  for (const ui::PlanNode& child : node.children) {
    Widget& picture = *widget(child.name);
    pictures.push_back({picture.control().beside_line, &picture});
  }
  Widget& choice = *widget(node.name);
  choice.stand_beside(node.columns, std::move(pictures));
  into.add(choice.box());
}

void ScreenWindow::build_group(const ui::PlanNode& node, Holder& into) {
  const int gap = look_->pixels(compact_ ? 2 : 6);
  auto column = std::make_unique<Column>(gap);
  if (!node.name.empty()) {
    Widget& title = *widget(node.name);
    if (!title.is_title) {
      title.is_title = true;
      title.dress_anew();
    }
    if (node.beside.empty()) {
      column->add(title.box());
    } else {
      Flow& line = column->add<Flow>(look_->pixels(18), look_->pixels(2));
      line.add(title.box());
      for (const ui::PlanNode& each : node.beside) line.add(placed(each));
    }
  }
  build_children(node, *column, gap);
  const int side = look_->pixels(compact_ ? 6 : 10);
  const Padded::Sides sides{side, look_->pixels(compact_ ? 3 : 6), side,
                            look_->pixels(compact_ ? 4 : 8)};
  building_->frames.push_back(&into.add<Padded>(std::move(column), sides, true));
}

std::unique_ptr<Box> ScreenWindow::text_box(const Widget& widget, HWND label) {
  // The text without its access key, as it is drawn.
  const auto size = [this, &widget, label] {
    return look_->size_of(look_->usual(), label == widget.unit_label
                                              ? wide(screen_.unit(widget.control()))
                                              : drawn(widget.caption()));
  };
  return std::make_unique<WindowBox>(
      label, [&widget] { return widget.control().visible; },
      [size] {
        const int width = size().cx;
        return Span{width, width, width, false};
      },
      [size](int) {
        const int height = size().cy;
        return Span{height, height, height, false};
      });
}

std::unique_ptr<Box> ScreenWindow::caption_of(Widget& widget) {
  if (widget.caption_label == nullptr) {
    const HWND on = in_foot_.contains(widget.control().name) ? foot_ : content_;
    widget.caption_label = CreateWindowExW(0, WC_STATICW, L"", WS_CHILD | WS_VISIBLE | SS_LEFT, 0,
                                           0, 0, 0, on, nullptr, program(), nullptr);
    labels_.push_back(widget.caption_label);
    SendMessageW(widget.caption_label, WM_SETFONT, reinterpret_cast<WPARAM>(look_->usual()), FALSE);
    // Who reads the window out meets the caption in front of what it is of.
    if (widget.window() != nullptr)
      SetWindowPos(widget.window(), widget.caption_label, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  return text_box(widget, widget.caption_label);
}

std::unique_ptr<Box> ScreenWindow::unit_of(Widget& widget) {
  if (widget.unit_label == nullptr) {
    const HWND on = in_foot_.contains(widget.control().name) ? foot_ : content_;
    widget.unit_label =
        CreateWindowExW(0, WC_STATICW, L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX, 0, 0, 0,
                        0, on, nullptr, program(), nullptr);
    labels_.push_back(widget.unit_label);
    SendMessageW(widget.unit_label, WM_SETFONT, reinterpret_cast<WPARAM>(look_->usual()), FALSE);
  }
  return text_box(widget, widget.unit_label);
}

// The control with its unit, and its caption where that stands beside it or above.
std::unique_ptr<Box> ScreenWindow::placed(const ui::PlanNode& node) {
  Widget& found = *widget(node.name);
  const bool above = node.caption == ui::CaptionPlace::kAbove;
  const bool captioned = above || node.caption == ui::CaptionPlace::kBeside;
  if (!node.has_unit && !captioned) return found.box();
  std::unique_ptr<Holder> box;
  if (above) {
    box = std::make_unique<Column>(look_->pixels(1));
  } else {
    box = std::make_unique<Row>(look_->pixels(6));
  }
  if (captioned) box->add(caption_of(found));
  if (!node.has_unit) {
    box->add(found.box());
    return box;
  }
  auto line = std::make_unique<Row>(look_->pixels(4));
  line->add(found.box());
  line->add(unit_of(found));
  if (node.room_behind_unit) line->add<Space>();
  box->add(std::move(line));
  return box;
}

void ScreenWindow::make_tips() {
  tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                          WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, frame_, nullptr, program(), nullptr);
  constexpr int kWidest = 400;
  SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, look_->pixels(kWidest));
  const auto add = [this](HWND window, HWND on) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = on;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  };
  for (const auto& widget : widgets_) {
    std::vector<HWND> windows = widget->windows();
    if (windows.empty() && widget->window() != nullptr) windows.push_back(widget->window());
    for (const HWND window : windows) add(window, GetParent(window));
  }
  // What is disabled hears nothing of the pointer: the part around it does.
  add(content_, content_);
  if (foot_ != nullptr) add(foot_, foot_);
}

// What it shows.

Widget* ScreenWindow::widget(const ui::Control& control) const {
  const auto at = std::find_if(widgets_.begin(), widgets_.end(), [&](const auto& candidate) {
    return &candidate->control() == &control;
  });
  return at == widgets_.end() ? nullptr : at->get();
}

Widget* ScreenWindow::widget(std::string_view name) const {
  const auto at = std::find_if(widgets_.begin(), widgets_.end(), [&](const auto& candidate) {
    return candidate->control().name == name;
  });
  return at == widgets_.end() ? nullptr : at->get();
}

Widget* ScreenWindow::widget_of(HWND part) const {
  if (part == nullptr) return nullptr;
  const auto at = std::find_if(widgets_.begin(), widgets_.end(), [part](const auto& candidate) {
    return candidate->owns(part) || candidate->window() == part;
  });
  return at == widgets_.end() ? nullptr : at->get();
}

void ScreenWindow::watch(const std::function<void()>& call) {
  ui::watched(screen_, call, [this] {
    // The system may have moved the focus before the screen was asked.
    const Widget* const entered = widget_of(GetFocus());
    if (entered == nullptr || &entered->control() != screen_.focused())
      focus_serial_ = screen_.focus_serial() - 1;
  });
}

void ScreenWindow::hand(const std::function<void()>& event) {
  watch(event);
  watch([this] { refresh(); });
}

void ScreenWindow::hand_later(std::function<void()> event) {
  later_.push_back(std::move(event));
  PostMessageW(frame_, kLater, 0, 0);
}

void ScreenWindow::carry_out_later() {
  // One by one, for each may open a window in which others come.
  while (!later_.empty()) {
    const std::function<void()> event = std::move(later_.front());
    later_.erase(later_.begin());
    hand(event);
  }
}

void ScreenWindow::refresh() {
  if (!built_ || finished_) return;
  if (screen_.result()) {
    if (IsWindowVisible(frame_) != FALSE) screen_.keep_place(place_now());
    finished_ = true;
    // A loop that waits for a message looks whether there is anything to wait for.
    PostMessageW(frame_, WM_NULL, 0, 0);
    return;
  }
  if (look_->language() != screen_.language()) look_anew(look_->dpi());
  put_text(frame_, wide(screen_.title()));
  show_controls();
  show_menu();
  apply_focus();
}

void ScreenWindow::show_controls() {
  if (!built_ || finished_ || screen_.result()) return;
  for (const auto& widget : widgets_) widget->show();
  lay_out_now();
}

void ScreenWindow::show_menu() {
  if (screen_.menu().empty()) return;
  if (menu_serial_ == screen_.menu_serial() && menu_language_ == screen_.language() &&
      !menu_bar_->is_empty())
    return;
  menu_serial_ = screen_.menu_serial();
  menu_language_ = screen_.language();
  menu_bar_->show(screen_.menu(), menu_language_);
}

void ScreenWindow::look_anew(unsigned dpi) {
  auto old = std::move(look_);
  look_ = std::make_unique<Look>(dpi, screen_.language(), system_is_dark());
  darken_frame(frame_, look_->dark());
  for (const auto& widget : widgets_) widget->dress_anew();
  for (const HWND label : labels_)
    SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(look_->usual()), TRUE);
  // The gaps are others, too.
  build_part(plan_.body, body_, false);
  if (foot_ != nullptr) build_part(plan_.foot, below_, true);
  room_changed_ = true;
  RedrawWindow(frame_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Where everything stands.

void ScreenWindow::room_changed() {
  room_changed_ = true;
}

void ScreenWindow::lay_out_now() {
  if (!placed_ || !room_changed_) return;
  room_changed_ = false;
  if (IsWindowVisible(frame_) != FALSE) grow_to_content();
  lay_out();
}

int ScreenWindow::foot_height(int width) const {
  return foot_ == nullptr ? 0 : below_.box->down(width).wanted;
}

void ScreenWindow::lay_out() {
  if (laying_out_ || !placed_) return;
  laying_out_ = true;
  const SIZE room = client_size(frame_);
  const int foot = foot_height(room.cx);
  const int high = std::max<int>(room.cy - foot, 0);
  if (foot_ != nullptr) {
    move_to(foot_, {0, high, room.cx, foot});
    below_.box->place({0, 0, room.cx, foot});
    InvalidateRect(foot_, nullptr, TRUE);
  }
  move_to(viewport_, {0, 0, room.cx, high});
  place_body({0, 0, room.cx, high});
  InvalidateRect(content_, nullptr, TRUE);
  laying_out_ = false;
  frame_focus();
}

// It scrolls where the window has no room for all of it.
void ScreenWindow::place_body(const Place& room) {
  const int bar = GetSystemMetricsForDpi(SM_CXVSCROLL, look_->dpi());
  const int least = body_.box->across().least;
  bool across = least > room.width;
  int width = std::max(room.width, least);
  int height = body_.box->down(width).least;
  const bool down = height > room.height - (across ? bar : 0);
  if (down) {
    across = least > room.width - bar;
    width = std::max(room.width - bar, least);
    height = body_.box->down(width).least;
  }
  const int shown_width = room.width - (down ? bar : 0);
  const int shown_height = room.height - (across ? bar : 0);
  height = std::max(height, shown_height);
  const auto set_bar = [this](int which, int size, int page) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_PAGE | SIF_RANGE;
    info.nMax = std::max(size - 1, 0);
    info.nPage = static_cast<UINT>(std::max(page, 0));
    SetScrollInfo(viewport_, which, &info, TRUE);
  };
  set_bar(SB_HORZ, width, shown_width);
  set_bar(SB_VERT, height, shown_height);
  const RECT now = rect_on(content_, viewport_);
  const int left = std::clamp<int>(now.left, std::min(shown_width - width, 0), 0);
  const int top = std::clamp<int>(now.top, std::min(shown_height - height, 0), 0);
  move_to(content_, {left, top, width, height});
  body_.box->place({0, 0, width, height});
  scroll_to({-left, -top});
}

void ScreenWindow::scroll_to(POINT corner) {
  const auto set = [this](int which, int position) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = position;
    SetScrollInfo(viewport_, which, &info, TRUE);
    return GetScrollPos(viewport_, which);
  };
  const int left = set(SB_HORZ, corner.x);
  const int top = set(SB_VERT, corner.y);
  SetWindowPos(content_, nullptr, -left, -top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ScreenWindow::scroll(int bar, WORD how) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(viewport_, bar, &info);
  const int line = look_->line_of(look_->usual()) * 2;
  const int page = static_cast<int>(info.nPage);
  int to = info.nPos;
  switch (how) {
    case SB_LINEUP:
      to -= line;
      break;
    case SB_LINEDOWN:
      to += line;
      break;
    case SB_PAGEUP:
      to -= page;
      break;
    case SB_PAGEDOWN:
      to += page;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      to = info.nTrackPos;
      break;
    default:
      return;
  }
  const POINT other{GetScrollPos(viewport_, SB_HORZ), GetScrollPos(viewport_, SB_VERT)};
  scroll_to(bar == SB_VERT ? POINT{other.x, to} : POINT{to, other.y});
}

// With its title or caption, which is above or to the left.
void ScreenWindow::bring_into_view(const Widget& target) {
  const HWND window = target.window();
  if (window == nullptr || IsWindowVisible(frame_) == FALSE || IsChild(content_, window) == FALSE)
    return;
  const SIZE room = client_size(viewport_);
  const RECT own = target.stands();
  constexpr int kRight = 40;
  const int height = own.bottom - own.top;
  // Where the room is low, the field comes before its title.
  const int above = std::max(std::min(height * 3, static_cast<int>(room.cy - height) / 2), 0);
  const int side = look_->pixels(kRight);
  const RECT wanted{own.left - side, own.top - above, own.right + side, own.bottom + above};
  POINT corner{GetScrollPos(viewport_, SB_HORZ), GetScrollPos(viewport_, SB_VERT)};
  const auto into = [](LONG from, LONG first, LONG last, LONG size) {
    if (last > from + size) from = last - size;
    return first < from ? std::max<LONG>(first, 0) : from;
  };
  corner.x = into(corner.x, wanted.left, wanted.right, room.cx);
  corner.y = into(corner.y, wanted.top, wanted.bottom, room.cy);
  scroll_to(corner);
}

std::optional<RECT> ScreenWindow::spoken_of() {
  const Widget* const target =
      screen_.speaks_of() == nullptr ? nullptr : widget(*screen_.speaks_of());
  if (target == nullptr || target->window() == nullptr ||
      IsWindowVisible(target->window()) == FALSE)
    return std::nullopt;
  bring_into_view(*target);
  RECT rect = target->stands();
  MapWindowPoints(GetParent(target->window()), HWND_DESKTOP, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

// All of the content, as far as the display has room. Where one direction is cut, the scroll bar that
// this takes must not cut the other.
SIZE ScreenWindow::fitting_size() const {
  const RECT display = info_of(MonitorFromWindow(frame_, MONITOR_DEFAULTTOPRIMARY)).rcWork;
  RECT around{0, 0, 0, 0};
  AdjustWindowRectExForDpi(&around, static_cast<DWORD>(GetWindowLongPtrW(frame_, GWL_STYLE)),
                           plan_.has_menu ? TRUE : FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(frame_, GWL_EXSTYLE)),
                           look_->dpi());
  const SIZE frame{around.right - around.left, around.bottom - around.top};
  const SIZE room{display.right - display.left - frame.cx, display.bottom - display.top - frame.cy};
  int wanted_width = body_.box->across().wanted;
  if (foot_ != nullptr) wanted_width = std::max(wanted_width, below_.box->across().least);
  // A notice of a few words has room for its title, its icon and its close box all the same.
  constexpr int kAroundTitle = 110;
  const int title = look_->size_of(look_->usual(), wide(screen_.title())).cx;
  wanted_width = std::max(wanted_width, title + look_->pixels(kAroundTitle));
  const int width = std::min<int>(wanted_width, room.cx);
  const int wanted_height = body_.box->down(width).wanted + foot_height(width);
  const int least_height = body_.box->down(width).least + foot_height(width);
  const int bar = GetSystemMetricsForDpi(SM_CXVSCROLL, look_->dpi());
  SIZE size{width, std::min<int>(wanted_height, room.cy)};
  const bool is_wide = body_.box->across().least > room.cx;
  const bool is_high = least_height > room.cy;
  if (is_wide && !is_high) size.cy = std::min<LONG>(size.cy + bar, room.cy);
  if (is_high && !is_wide) size.cx = std::min<LONG>(size.cx + bar, room.cx);
  return {size.cx + frame.cx, size.cy + frame.cy};
}

void ScreenWindow::take_place() {
  const auto kept = screen_.kept_place();
  if (kept && take_kept_place(kept->place)) return;
  const SIZE size = fitting_size();
  const HWND owner = GetWindow(frame_, GW_OWNER);
  const HWND on_display = owner == nullptr ? frame_ : owner;
  const RECT display = info_of(MonitorFromWindow(on_display, MONITOR_DEFAULTTOPRIMARY)).rcWork;
  RECT around = display;
  if (owner != nullptr && IsWindowVisible(owner) != FALSE) GetWindowRect(owner, &around);
  const auto middle = [](LONG from, LONG to, LONG own, LONG first, LONG last) {
    return std::clamp((from + to - own) / 2, first, std::max(first, last - own));
  };
  SetWindowPos(frame_, nullptr,
               middle(around.left, around.right, size.cx, display.left, display.right),
               middle(around.top, around.bottom, size.cy, display.top, display.bottom), size.cx,
               size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ScreenWindow::take_kept_place(const Place& kept) {
  const ui::Corner title = ui::title_of(kept);
  const HMONITOR found = MonitorFromPoint({title.left, title.top}, MONITOR_DEFAULTTONULL);
  if (found == nullptr) return false;
  const Place place = ui::fitted(kept, place_of(info_of(found).rcWork));
  is_being_put_ = true;
  SetWindowPos(frame_, nullptr, place.left, place.top, place.width, place.height,
               SWP_NOZORDER | SWP_NOACTIVATE);
  return true;
}

ui::WindowPlace ScreenWindow::place_now() const {
  RECT now{};
  GetWindowRect(frame_, &now);
  const bool maximised = IsZoomed(frame_) != FALSE;
  if (maximised || IsIconic(frame_) != FALSE) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(frame_, &placement);
    now = placement.rcNormalPosition;
    // It counts from where the task bar leaves off.
    const MONITORINFO display = info_of(MonitorFromWindow(frame_, MONITOR_DEFAULTTOPRIMARY));
    OffsetRect(&now, display.rcWork.left - display.rcMonitor.left,
               display.rcWork.top - display.rcMonitor.top);
  }
  return {place_of(now), maximised};
}

// A window never shrinks under the person's hands. A main window has the size that the person gave
// it, and its form scrolls.
void ScreenWindow::grow_to_content() {
  if (plan_.has_menu) return;
  RECT now{};
  GetWindowRect(frame_, &now);
  const SIZE wanted = fitting_size();
  const int width = std::max(wanted.cx, now.right - now.left);
  const int height = std::max(wanted.cy, now.bottom - now.top);
  if (width == now.right - now.left && height == now.bottom - now.top) return;
  // It grows to the right and downwards.
  const HMONITOR display = MonitorFromWindow(frame_, MONITOR_DEFAULTTOPRIMARY);
  const ui::Corner corner =
      ui::drawn_back({now.left, now.top, width, height}, place_of(info_of(display).rcWork));
  SetWindowPos(frame_, nullptr, corner.left, corner.top, width, height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

// The focus.

void ScreenWindow::focus_moved() {
  if (!built_) return;
  frame_focus();
  PostMessageW(frame_, kSettle, 0, 0);
}

void ScreenWindow::frame_focus() {
  const auto redraw = [this](HWND window) {
    if (window == nullptr || IsWindow(window) == FALSE) return;
    const HWND part = GetParent(window);
    RECT around = rect_on(window, part);
    const int width = look_->pixels(kFrameWidth);
    InflateRect(&around, width, width);
    InvalidateRect(part, &around, TRUE);
  };
  HWND now = GetFocus();
  const Widget* const target = widget_of(now);
  // The field within a drop-down has it for the whole box.
  if (target != nullptr && now != nullptr && GetParent(now) != content_ && GetParent(now) != foot_)
    now = target->window();
  if (target == nullptr) now = nullptr;
  redraw(framed_);
  framed_ = now;
  redraw(framed_);
}

void ScreenWindow::apply_focus() {
  // A field without a width would be scrolled to the end of its text, and stay so.
  if (!placed_ || screen_.focused() == nullptr || focus_serial_ == screen_.focus_serial()) return;
  focus_serial_ = screen_.focus_serial();
  Widget* const target = widget(*screen_.focused());
  if (target == nullptr || target->focus_window() == nullptr) return;
  // A line of a choice that is being clicked has it already, and keeps the pointer with it.
  if (!target->owns(GetFocus())) SetFocus(target->focus_window());
  target->select(screen_.selection_length());
  bring_into_view(*target);
}

void ScreenWindow::settle_focus() {
  const Widget* const entered = widget_of(GetFocus());
  if (entered == nullptr || screen_.focused() == &entered->control()) return;
  hand([&] {
    // Refused: with another serial the refresh puts the focus back.
    if (!screen_.move_focus(entered->control())) focus_serial_ = screen_.focus_serial() - 1;
  });
}

// To the field that has the screen's, when the window itself got it.
void ScreenWindow::give_focus() {
  const Widget* const target = screen_.focused() == nullptr ? nullptr : widget(*screen_.focused());
  if (target == nullptr || target->focus_window() == nullptr) return;
  if (GetFocus() != target->focus_window()) SetFocus(target->focus_window());
}

// Keys.

bool ScreenWindow::filter(const MSG& message) {
  if (finished_) return false;
  // What the screen is told of below, it counts itself.
  if (is_key_or_click(message)) screen_.did_something_else();
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return key_down(message);
    case WM_CHAR:
      return character(message);
    case WM_SYSCHAR:
      return access_key(message);
    default:
      return false;
  }
}

bool ScreenWindow::key_down(const MSG& message) {
  Widget* const at = widget_of(message.hwnd);
  if (at != nullptr && at->keeps_keys()) {
    // Tab takes the line on which the list stands, and goes on.
    if (message.wParam != VK_TAB) return false;
    at->take_open_line();
  }
  const Pressed key = pressed(message);
  const std::string name = name_of(key);
  // They would open a field's own menu.
  if (!screen_.menu().empty() && (name == "Shift+F10" || name == "Shift+F12")) return true;
  if (const auto item = menu_bar_->run_by(name)) {
    run_command(*item);
    return true;
  }
  if (!name.empty() && screen_.pressed_by(name) != nullptr) {
    press_shortcut(name);
    return true;
  }
  if (choose_line(message, key)) return true;
  auto told = window_key(key);
  if (!told) told = tab_key(key);
  if (!told) return false;
  settle_focus();
  hand([&] { screen_.key(*told); });
  return true;
}

bool ScreenWindow::choose_line(const MSG& message, const Pressed& pressed) {
  Widget* const target = widget_of(message.hwnd);
  const auto key = line_key(pressed);
  if (target == nullptr || !key || !ui::means_line(target->control(), *key)) return false;
  const bool page = *key == ui::Key::kPageUp || *key == ui::Key::kPageDown;
  if (page && target->scrolls(*key)) return true;
  settle_focus();
  hand([&] {
    if (screen_.focused() == &target->control()) screen_.key(*key);
  });
  return true;
}

bool ScreenWindow::character(const MSG& message) {
  const std::string text = written(message);
  if (text.empty()) return false;
  Widget* const target = widget_of(message.hwnd);
  if (target != nullptr && target->keeps_keys()) return false;
  if (screen_.pressed_by(text) != nullptr) {
    press_shortcut(text);
    return true;
  }
  if (target == nullptr || !ui::finds_lines(target->control().kind)) return false;
  settle_focus();
  hand([&] {
    if (screen_.focused() == &target->control()) screen_.find_line(text);
  });
  return true;
}

// A letter with Alt: in a window with a menu it is the menu's.
bool ScreenWindow::access_key(const MSG& message) {
  if (!screen_.menu().empty() || message.wParam == VK_SPACE) return false;
  // Where nothing has the focus the system says of each letter that it came so; this bit tells.
  constexpr LPARAM kWithAlt = 1 << 29;
  if ((message.lParam & kWithAlt) == 0) return false;
  auto letter = static_cast<char>(message.wParam < 0x80 ? message.wParam : 0);
  if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  const auto at = std::find_if(widgets_.begin(), widgets_.end(), [letter](const auto& candidate) {
    const ui::Control& control = candidate->control();
    return letter != '\0' && candidate->access_key == letter && control.visible && control.enabled;
  });
  // A slip on Alt must not beep, nor overwrite what the field holds.
  if (at == widgets_.end()) return true;
  ui::Control& control = (*at)->control();
  settle_focus();
  hand([&] {
    if (control.kind == ui::Kind::kButton) {
      screen_.press(control);
    } else if (control.can_focus() && screen_.move_focus(control) &&
               control.kind == ui::Kind::kTick) {
      screen_.tick(control, !control.checked);
    }
  });
  return true;
}

void ScreenWindow::press_shortcut(const std::string& keys) {
  settle_focus();
  hand([&] {
    // Leaving a field may have switched it off.
    if (ui::Control* const control = screen_.pressed_by(keys)) screen_.press(*control);
  });
}

void ScreenWindow::run_command(const ui::MenuItem& item) {
  // The question about the focus that is on its way would come behind the command.
  settle_focus();
  hand([&] { screen_.command(item); });
}

// Messages of the system.

LRESULT CALLBACK ScreenWindow::frame_proc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<ScreenWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, w, l);
  try {
    return self->on_frame(message, w, l);
  } catch (...) {  // no exception may cross the system's own code
    return 0;
  }
}

LRESULT ScreenWindow::on_frame(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case kSettle:
      settle_focus();
      return 0;
    case kLater:
      carry_out_later();
      return 0;
    case WM_SETFOCUS:
      give_focus();
      return 0;
    case WM_SIZE:
      if (w != SIZE_MINIMIZED) lay_out();
      return 0;
    case WM_CLOSE:
      // The screen says whether it closes.
      hand([this] { screen_.close_box(); });
      return 0;
    case WM_COMMAND:
      if (l == 0) {
        if (const auto item = menu_bar_->item(LOWORD(w))) run_command(*item);
        return 0;
      }
      break;
    case WM_MENUCHAR:
      // A slip on Alt must not beep. Who is in the menu already stays there.
      if (reinterpret_cast<HMENU>(l) == GetMenu(frame_) && GetKeyState(VK_MENU) < 0)
        return MAKELRESULT(0, MNC_CLOSE);
      break;
    case WM_DPICHANGED: {
      const RECT& wanted = *reinterpret_cast<const RECT*>(l);
      look_anew(HIWORD(w));
      // A window that is put onto another display has its size there already.
      if (!is_being_put_)
        SetWindowPos(frame_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                     wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
      lay_out_now();
      return 0;
    }
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
      if (built_) {
        look_anew(look_->dpi());
        lay_out_now();
      }
      break;
    case WM_QUERYENDSESSION:
      // The computer is being shut down: what waits for a pause has none.
      watch([this] { screen_.idle(); });
      return TRUE;
    case WM_ERASEBKGND:
      return 1;
    default:
      break;
  }
  return DefWindowProcW(frame_, message, w, l);
}

LRESULT CALLBACK ScreenWindow::part_proc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<ScreenWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, w, l);
  try {
    return self->on_part(window, message, w, l);
  } catch (...) {  // no exception may cross the system's own code
    return 0;
  }
}

LRESULT ScreenWindow::on_part(HWND window, UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND:
      if (Widget* const from = widget_of(reinterpret_cast<HWND>(l)))
        from->command(reinterpret_cast<HWND>(l), HIWORD(w));
      return 0;
    case WM_NOTIFY:
      return on_notify(*reinterpret_cast<const NMHDR*>(l));
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
      if (Widget* const of = widget_of(item.hwndItem)) of->draw(item);
      return TRUE;
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
      return colour(message, reinterpret_cast<HDC>(w), reinterpret_cast<HWND>(l));
    case WM_VSCROLL:
    case WM_HSCROLL:
      if (window == viewport_) scroll(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(w));
      return 0;
    case WM_MOUSEWHEEL:
      if (window == viewport_) {
        // A touchpad turns by less than a notch at a time.
        wheel_ += GET_WHEEL_DELTA_WPARAM(w);
        const int notches = wheel_ / WHEEL_DELTA;
        wheel_ -= notches * WHEEL_DELTA;
        for (int i = 0; i < std::abs(notches); ++i)
          scroll(SB_VERT, notches > 0 ? SB_LINEUP : SB_LINEDOWN);
        return 0;
      }
      break;
    case WM_MOUSEMOVE: {
      const POINT at{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
      const HWND over = ChildWindowFromPointEx(window, at, CWP_SKIPINVISIBLE);
      if (over != under_pointer_) {
        under_pointer_ = over;
        SendMessageW(tips_, TTM_POP, 0, 0);
      }
      break;
    }
    case WM_ERASEBKGND: {
      RECT all{};
      GetClientRect(window, &all);
      FillRect(reinterpret_cast<HDC>(w), &all, look_->brush(look_->colours().window));
      return 1;
    }
    case WM_PAINT:
      paint(window);
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window, message, w, l);
}

LRESULT ScreenWindow::on_notify(const NMHDR& told) {
  if (told.hwndFrom != tips_) {
    Widget* const from = widget_of(told.hwndFrom);
    return from == nullptr ? 0 : from->notify(told);
  }
  if (told.code != TTN_GETDISPINFOW) return 0;
  auto& asked = *reinterpret_cast<NMTTDISPINFOW*>(const_cast<NMHDR*>(&told));
  auto of = reinterpret_cast<HWND>(told.idFrom);
  if (of == content_ || of == foot_) of = under_pointer_;
  const Widget* const found = widget_of(of);
  tip_ = found == nullptr ? std::wstring() : wide(found->tip());
  asked.lpszText = tip_.data();
  asked.hinst = nullptr;
  return 0;
}

LRESULT ScreenWindow::colour(UINT message, HDC canvas, HWND control) const {
  const Colours& colours = look_->colours();
  const Widget* const of = widget_of(control);
  COLORREF paper = colours.paper;
  COLORREF ink = colours.ink;
  const bool field = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
  if (of != nullptr) {
    const Dress dress = of->dress();
    const bool on_paper = of->on_paper();
    paper = on_paper ? look_->paper(dress) : colours.window;
    ink = on_paper ? look_->ink(dress) : dress == Dress::kLink ? colours.link : colours.text;
    if (IsWindowEnabled(control) == FALSE) {
      paper = colours.window;
      ink = colours.faint;
    }
  } else if (!field) {
    paper = colours.window;
    ink = colours.text;
  }
  SetTextColor(canvas, ink);
  SetBkColor(canvas, paper);
  return reinterpret_cast<LRESULT>(look_->brush(paper));
}

void ScreenWindow::paint(HWND window) {
  PAINTSTRUCT painting{};
  const HDC canvas = BeginPaint(window, &painting);
  const Part* const part = window == content_ ? &body_ : window == foot_ ? &below_ : nullptr;
  if (part != nullptr) {
    const Colours& colours = look_->colours();
    for (const Padded* const frame : part->frames) {
      if (!frame->shown()) continue;
      const Place& place = frame->stands();
      draw_frame(canvas, {place.left, place.top, place.right(), place.bottom()}, 1,
                 look_->brush(colours.frame));
    }
    const int width = look_->pixels(kFrameWidth);
    const auto surround = [&](HWND target, COLORREF colour) {
      RECT around = rect_on(target, window);
      InflateRect(&around, width, width);
      draw_frame(canvas, around, width, look_->brush(colour));
    };
    for (const auto& widget : widgets_)
      if (widget->is_wrong() && widget->window() != nullptr &&
          GetParent(widget->window()) == window && widget->control().visible)
        surround(widget->window(), colours.wrong_frame);
    if (framed_ != nullptr && GetParent(framed_) == window) surround(framed_, colours.focus);
  }
  EndPaint(window, &painting);
}

}  // namespace win32
