#pragma once
// Draws any screen: widgets from its controls, their places from its plan. It contains no rule of
// the program, and of the look only fonts, colours and gaps.

#include <QBoxLayout>
#include <QDialog>
#include <QRect>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "desktop/binding.h"
#include "desktop/style.h"
#include "ui/placing.h"
#include "ui/plan.h"

class QMenuBar;
class QScrollArea;

namespace desktop {

[[nodiscard]] inline ui::Place place_of(const QRect& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

class ScreenWindow : public QDialog {
  Q_OBJECT
 public:
  /// The screen must be open and outlive the window.
  ScreenWindow(ui::Screen& screen, QWidget* parent);
  ~ScreenWindow() override;

  /// Hands one event to the screen and shows the result: the one place through which everything
  /// that the person does goes. No exception leaves it, for none may cross the toolkit's event
  /// loop: the person is told, and the window and all that was entered stay.
  void hand(const std::function<void()>& event);
  /// Everything the screen holds, on the widgets; closes the window when the screen has a result.
  void refresh();
  /// What the controls hold, on the widgets, while a handler of the screen is still running. The
  /// focus stays where it is.
  void show_controls();
  /// The widget that the screen's message is about (ui::Screen::speaks_of), brought into view;
  /// nullptr for none.
  [[nodiscard]] const QWidget* spoken_of() const;
  [[nodiscard]] const ui::Screen& shown_screen() const { return screen_; }
  [[nodiscard]] const std::vector<std::unique_ptr<Binding>>& bindings() const { return bindings_; }
  [[nodiscard]] Binding* binding(const ui::Control& control) const;
  [[nodiscard]] Binding* binding(std::string_view name) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  /// Escape reaches the screen as a key; a window never closes behind its back.
  void reject() override;

 private:
  void build();
  void build_node(const ui::PlanNode& node, QBoxLayout& into);
  void build_box(const ui::PlanNode& node, QBoxLayout::Direction direction, int spacing,
                 QBoxLayout& into);
  void build_grid(const ui::PlanNode& node, QBoxLayout& into);
  void build_lines(const ui::PlanNode& node, QBoxLayout& into);
  void build_flow(const ui::PlanNode& node, QBoxLayout& into);
  QWidget* build_group(const ui::PlanNode& node);
  /// The children of the body or of the foot, on this widget.
  void build_part(const ui::PlanNode& part, QWidget& on);
  /// The control with its unit, and its caption where that stands beside it or above.
  QWidget* placed(const ui::PlanNode& node);
  ClickableLabel* caption_of(Binding& binding);
  void set_tab_order();
  void show_menu();
  void add_items(QWidget& menu, std::span<const ui::MenuItem> items);
  void apply_focus();
  void settle_focus();
  [[nodiscard]] Binding* binding_of(const QWidget* part) const;
  [[nodiscard]] bool is_in_menu(const QWidget* widget) const;
  /// Keys that press a control of the screen. True when they were such.
  bool press_shortcut(const QKeyEvent& pressed);
  /// Keys that choose a line of the control that the widget belongs to. True when it was one.
  bool choose_line(const QWidget& widget, const QKeyEvent& pressed);
  void run_command(const ui::MenuItem& item);
  /// Calls it and tells the person of an exception.
  void watch(const std::function<void()>& call);
  /// The field that has the screen's focus has the window's too.
  void give_focus_back();
  /// Of the menu bar and the foot in a window so wide.
  [[nodiscard]] int height_around(int width) const;
  [[nodiscard]] QSize fitting_size() const;
  /// Its kept place, as far as a display has it; else as large as its content on this display.
  void take_place();
  [[nodiscard]] bool take_kept_place(const ui::Place& kept);
  [[nodiscard]] ui::WindowPlace place_now() const;
  void fit_to_screen();
  /// A window never shrinks under the person's hands.
  void grow_to_content();
  void bring_into_view(const Binding& target) const;

  ui::Screen& screen_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  QScrollArea* scroll_ = nullptr;
  QWidget* content_ = nullptr;
  QWidget* foot_ = nullptr;  ///< stays in view below the content; none where the plan has none
  QMenuBar* menu_bar_ = nullptr;
  /// One for the content, which scrolls with it, and one for the foot.
  std::vector<FocusFrame*> focus_frames_;
  unsigned focus_serial_ = 0;
  unsigned menu_serial_ = 0;
  bool compact_ = false;  ///< a form of many fields has small gaps
  bool built_ = false;
  text::Language menu_language_ = text::Language::kEnglish;
};

}  // namespace desktop
