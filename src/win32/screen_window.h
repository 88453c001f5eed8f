#pragma once
// Draws any screen: the system's controls from its controls, their places from its plan. It contains
// no rule of the program, and of the look only fonts, colours and gaps.

#include "win32/system.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "ui/plan.h"
#include "win32/boxes.h"
#include "win32/keys.h"
#include "win32/look.h"
#include "win32/loop.h"
#include "win32/menu_bar.h"
#include "win32/widgets.h"

namespace win32 {

class ScreenWindow : public Host, public Filter {
 public:
  /// The screen must be open and outlive the window. `owner` may be none.
  ScreenWindow(ui::Screen& screen, HWND owner);
  ~ScreenWindow() override;
  ScreenWindow(const ScreenWindow&) = delete;
  ScreenWindow& operator=(const ScreenWindow&) = delete;

  [[nodiscard]] HWND frame() const { return frame_; }
  /// On the display, with the focus where the screen has it.
  void show_up();
  /// The screen has a result.
  [[nodiscard]] bool finished() const { return finished_; }

  /// Hands one event to the screen and shows the result: the one place through which everything that
  /// the person does goes. No exception leaves it, for none may cross the system's own code: the
  /// person is told, and the window and all that was entered stay.
  void hand(const std::function<void()>& event) override;
  void hand_later(std::function<void()> event) override;
  /// Everything the screen holds, on the widgets.
  void refresh();
  /// What the controls hold, on the widgets, while a handler of the screen is still running. The focus
  /// stays where it is.
  void show_controls();
  /// Where on the display the control stands that the screen's message is about, brought into view.
  [[nodiscard]] std::optional<RECT> spoken_of();

  [[nodiscard]] ui::Screen& shown_screen() const { return screen_; }
  [[nodiscard]] const std::vector<std::unique_ptr<Widget>>& widgets() const { return widgets_; }
  [[nodiscard]] Widget* widget(const ui::Control& control) const;
  [[nodiscard]] Widget* widget(std::string_view name) const;
  [[nodiscard]] Widget* widget_of(HWND part) const;
  [[nodiscard]] const MenuBar& menu_bar() const { return *menu_bar_; }
  /// The parts of the window on which the controls stand: what scrolls, and what does not.
  [[nodiscard]] HWND content() const { return content_; }
  [[nodiscard]] HWND foot() const { return foot_; }
  /// Makes the places good that something asked for since.
  void lay_out_now();

  [[nodiscard]] const Look& look() const override { return *look_; }
  void room_changed() override;
  void focus_moved() override;
  bool filter(const MSG& message) override;

 private:
  /// A part of the window: what stands on it, and the frames that are drawn on it.
  struct Part {
    HWND window = nullptr;
    std::unique_ptr<Box> box;
    std::vector<Padded*> frames;
  };

  static LRESULT CALLBACK frame_proc(HWND window, UINT message, WPARAM w, LPARAM l);
  static LRESULT CALLBACK part_proc(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT on_frame(UINT message, WPARAM w, LPARAM l);
  LRESULT on_part(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT on_notify(const NMHDR& told);
  [[nodiscard]] HWND make_part(HWND parent, DWORD style);

  // What the window is made of.
  void make_widgets(const ui::Plan& plan);
  void make_boxes(const ui::Plan& plan);
  void build_part(const ui::PlanNode& from, Part& into, bool is_foot);
  void build_node(const ui::PlanNode& node, Holder& into, int gap);
  void build_children(const ui::PlanNode& node, Holder& into, int gap);
  void build_group(const ui::PlanNode& node, Holder& into);
  void build_grid(const ui::PlanNode& node, Holder& into, int gap);
  void build_flow(const ui::PlanNode& node, Holder& into, int gap);
  void build_lines(const ui::PlanNode& node, Holder& into);
  [[nodiscard]] std::unique_ptr<Box> placed(const ui::PlanNode& node);
  [[nodiscard]] std::unique_ptr<Box> caption_of(Widget& widget);
  [[nodiscard]] std::unique_ptr<Box> unit_of(Widget& widget);
  [[nodiscard]] std::unique_ptr<Box> text_box(const Widget& widget, HWND label);
  [[nodiscard]] int gap_between() const;
  void make_tips();

  // Where everything stands.
  void lay_out();
  [[nodiscard]] int foot_height(int width) const;
  void place_body(const Place& room);
  void scroll(int bar, WORD how);
  void scroll_to(POINT corner);
  void bring_into_view(const Widget& target);
  [[nodiscard]] SIZE fitting_size() const;
  void take_place();
  [[nodiscard]] bool take_kept_place(const Place& kept);
  [[nodiscard]] ui::WindowPlace place_now() const;
  void grow_to_content();
  /// In other fonts or colours.
  void look_anew(unsigned dpi);

  // The focus.
  void apply_focus();
  void settle_focus();
  void give_focus();
  void frame_focus();

  // Keys.
  [[nodiscard]] bool key_down(const MSG& message);
  [[nodiscard]] bool character(const MSG& message);
  [[nodiscard]] bool access_key(const MSG& message);
  [[nodiscard]] bool choose_line(const MSG& message, const Pressed& pressed);
  void press_shortcut(const std::string& keys);
  void run_command(const ui::MenuItem& item);

  void show_menu();
  void paint(HWND window);
  [[nodiscard]] LRESULT colour(UINT message, HDC canvas, HWND control) const;
  void watch(const std::function<void()>& call);
  void carry_out_later();

  ui::Screen& screen_;
  HWND frame_ = nullptr;
  HWND viewport_ = nullptr;
  HWND content_ = nullptr;
  HWND foot_ = nullptr;  ///< none where the plan has none
  HWND tips_ = nullptr;
  HWND under_pointer_ = nullptr;  ///< what cannot be used and has a tip all the same
  std::unique_ptr<Look> look_;
  ui::Plan plan_;
  Part body_;
  Part below_;
  Part* building_ = nullptr;
  std::vector<std::unique_ptr<Widget>> widgets_;
  std::set<std::string> in_foot_;
  std::vector<HWND> labels_;  ///< captions and units
  std::unique_ptr<MenuBar> menu_bar_;
  std::vector<std::function<void()>> later_;
  std::wstring tip_;
  unsigned focus_serial_ = 0;
  unsigned menu_serial_ = 0;
  text::Language menu_language_ = text::Language::kEnglish;
  HWND framed_ = nullptr;  ///< has the frame of the focus
  bool compact_ = false;   ///< a form of many fields has small gaps
  bool built_ = false;
  bool placed_ = false;  ///< its frame stands, and what is in it follows
  bool room_changed_ = false;
  bool laying_out_ = false;
  bool is_being_put_ = false;  ///< onto a display, which may have another scale
  int wheel_ = 0;              ///< turned, less than a notch
  bool finished_ = false;
};

}  // namespace win32
