#pragma once
// A control and its widget. One small class per control kind: it makes the widget, shows the
// control's state on it, and reports what the person did. Only signals that the person causes are
// connected, and only what differs is written.

#include <QLabel>
#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/clickable_label.h"
#include "desktop/style.h"
#include "ui/access_keys.h"
#include "ui/plan.h"

namespace desktop {

/// How a binding tells its window what the person did: the window hands the event to the screen and
/// then shows everything.
using Hand = std::function<void(const std::function<void()>& event)>;

class Binding : public QObject {
  Q_OBJECT
 public:
  Binding(ui::Screen& screen, ui::Control& control, Hand hand);

  [[nodiscard]] ui::Control& control() const { return control_; }
  /// The widget that stands for the control.
  [[nodiscard]] virtual QWidget* widget() const = 0;
  /// The part of it that takes the focus, nullptr when none does.
  [[nodiscard]] virtual QWidget* focus_widget() const { return widget(); }
  /// True when this widget is it or a part of it.
  [[nodiscard]] bool owns(const QWidget* candidate) const;
  /// Selects the first `length` characters (all when negative); nothing where there is no text.
  virtual void select(int length);
  /// Of a choice: its lines are to stand in this many columns, each beside its picture. The
  /// pictures become parts of the widget. Nothing of any other.
  struct BesideLine {
    int line = -1;
    QWidget* picture = nullptr;
    QString name;  ///< of the picture
  };
  virtual void stand_beside(int columns, const std::vector<BesideLine>& pictures);
  /// A page key shows more of what does not fit the widget. False where there is no more of it in
  /// that direction.
  [[nodiscard]] virtual bool scrolls(ui::Key /*page_key*/) const { return false; }
  /// The control's state on the widget.
  void show();
  /// The state read back from the widget, for tests: content, selected line, tick.
  struct Shown {
    QString content;
    QStringList items;
    QStringList codes;  ///< in front of a choice's lines
    int selected = -1;
    bool checked = false;
    std::vector<bool> ticked = {};  ///< of a list's lines; empty when they have no boxes
  };
  [[nodiscard]] virtual Shown shown() const { return {}; }

  /// Titles of the groups around it; the window knows them.
  std::vector<const ui::Control*> titles;
  char access_key = '\0';  ///< see ui::access_keys_of
  /// With its access key.
  [[nodiscard]] QString caption() const {
    return QString::fromStdString(ui::with_access_key(screen_.caption(control_), access_key));
  }

  /// The labels beside the widget; the window places them. They stay empty until there is a text.
  ClickableLabel* caption_label = nullptr;
  QLabel* unit_label = nullptr;

 protected:
  virtual void show_state() = 0;
  /// What a screen reader is to say of the widget; called when it is another.
  virtual void speak(const QString& name, const QString& state);
  /// The room that the control wants now (ui::extent_of), in characters and lines of the widget's
  /// font, and `besides` pixels beside the characters.
  void make_room(int besides = 0);
  [[nodiscard]] ui::Screen& screen() const { return screen_; }
  /// Hands one event to the screen and shows the result.
  template <class Event>
  void tell(Event event) {
    hand_(event);
  }
  /// The text that a person made of the control's, and whether by a key at its end.
  void tell_typed(const QString& text, bool by_key);

 private:
  ui::Screen& screen_;
  ui::Control& control_;
  Hand hand_;
  void show_dress();

  ui::Extent room_;  ///< made last
  QString spoken_name_;
  QString spoken_state_;
  Dress dress_ = Dress::kPlain;
  qint64 palette_ = 0;  ///< the application's that it was dressed in
};

/// The binding for the control's kind, its widget a child of `parent`.
[[nodiscard]] std::unique_ptr<Binding> make_binding(ui::Screen& screen, ui::Control& control,
                                                    QWidget* parent, Hand hand);

}  // namespace desktop
