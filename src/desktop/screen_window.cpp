#include "desktop/screen_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <ranges>
#include <utility>

#include "desktop/flow_layout.h"
#include "desktop/qt_words.h"
#include "ui/access_keys.h"
#include "ui/front_end.h"
#include "ui/line_keys.h"
#include "ui/spoken.h"

namespace desktop {
namespace {

struct KeyRow {
  Qt::Key key;
  ui::Key told;
};

// Keys that mean the same in every field of a window.
constexpr KeyRow kWindowKeys[] = {
    {Qt::Key_F1, ui::Key::kF1},
    {Qt::Key_Return, ui::Key::kEnter},
    {Qt::Key_Enter, ui::Key::kEnter},
    {Qt::Key_Escape, ui::Key::kEscape},
};

// Keys for the line of a control; a field that is typed into moves its caret with them.
constexpr KeyRow kLineKeys[] = {
    {Qt::Key_Up, ui::Key::kUp},         {Qt::Key_Down, ui::Key::kDown},
    {Qt::Key_Left, ui::Key::kLeft},     {Qt::Key_Right, ui::Key::kRight},
    {Qt::Key_Home, ui::Key::kHome},     {Qt::Key_End, ui::Key::kEnd},
    {Qt::Key_PageUp, ui::Key::kPageUp}, {Qt::Key_PageDown, ui::Key::kPageDown},
    {Qt::Key_Space, ui::Key::kSpace},
};

std::optional<ui::Key> key_in(std::span<const KeyRow> rows, const QKeyEvent& event) {
  // The keypad's arrows and Enter are keys like the others.
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return std::nullopt;
  const auto at = std::ranges::find(rows, event.key(), [](const KeyRow& row) { return row.key; });
  return at == rows.end() ? std::nullopt : std::optional(at->told);
}

bool is_written(const QKeyEvent& event) {
  return !event.text().isEmpty() && event.text().front().isPrint();
}

// What the key writes, empty for keys that write nothing. Space is not among it: it presses.
QString character_of(const QKeyEvent& event) {
  if ((event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != Qt::NoModifier) return {};
  return is_written(event) && !event.text().front().isSpace() ? event.text() : QString();
}

// Keys that a window with a menu keeps from its fields, where they would open the field's own menu.
bool does_nothing(const QKeyEvent& event) {
  return event.modifiers() == Qt::ShiftModifier &&
         (event.key() == Qt::Key_F10 || event.key() == Qt::Key_F12);
}

bool is_key_or_click(const QEvent& event) {
  return event.type() == QEvent::KeyPress || event.type() == QEvent::MouseButtonPress;
}

bool is_tab(const QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent&>(event).key() == Qt::Key_Tab;
}

// A menu bar does not write the keys behind its titles, so they stand in the tip as well.
void show_shortcut(QAction& action, std::string_view label, std::string_view keys) {
  const QString shortcut = QString::fromLatin1(keys.data(), static_cast<qsizetype>(keys.size()));
  const QString tip = QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size())) +
                      QStringLiteral(" (%1)").arg(shortcut);
  action.setShortcut(QKeySequence(shortcut, QKeySequence::PortableText));
  action.setToolTip(tip);
  action.setStatusTip(tip);
}

}  // namespace

ScreenWindow::ScreenWindow(ui::Screen& screen, QWidget* parent) : QDialog(parent), screen_(screen) {
  if (!screen_.menu().empty()) {
    // A dialog's title bar has no buttons to make the window larger or smaller.
    setWindowFlags(Qt::Window);
  } else {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  }
  setObjectName(QString::fromStdString(screen_.class_name()));
  build();
  refresh();
  take_place();
  // On the application: a part of a widget, as the field of a drop-down, has its keys first.
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    const bool is_field = binding_of(now) != nullptr;
    for (FocusFrame* const frame : focus_frames_)
      frame->surround(is_field && frame->parentWidget()->isAncestorOf(now) ? now : nullptr);
    // The focus has already moved; the screen is asked once the event that moved it is through.
    if (now != nullptr && now->window() == this) {
      QMetaObject::invokeMethod(
          this, [this] { settle_focus(); }, Qt::QueuedConnection);
    }
  });
}

ScreenWindow::~ScreenWindow() {
  qApp->removeEventFilter(this);
  // The base class moves the focus while it is taken down; nothing of this class is there any more.
  disconnect(qApp, nullptr, this, nullptr);
}

void ScreenWindow::build() {
  auto* const outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);
  scroll_ = new QScrollArea(this);
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  // Else Tab stops at the area itself.
  scroll_->setFocusPolicy(Qt::NoFocus);
  content_ = new QWidget(scroll_);
  for (ui::Control* const control : screen_.controls()) {
    bindings_.push_back(make_binding(screen_, *control, content_,
                                     [this](const std::function<void()>& event) { hand(event); }));
  }
  const ui::Plan plan = ui::plan_of(screen_);
  const ui::Titles titles = ui::titles_of(screen_, plan);
  const auto keys = ui::access_keys_of(screen_, plan);
  // Texts go in before the layouts are made, which remember the sizes they find.
  for (const auto& binding : bindings_) {
    if (const auto of = titles.find(&binding->control()); of != titles.end())
      binding->titles = of->second;
    if (const auto of = keys.find(&binding->control()); of != keys.end()) {
      binding->access_key = of->second;
      if (binding->control().kind == ui::Kind::kTick) paint_as_measured(*binding->widget());
    }
    binding->show();
  }
  compact_ = plan.has_menu;
  build_part(plan.body, *content_);
  scroll_->setWidget(content_);
  if (plan.has_menu) {
    menu_bar_ = new QMenuBar(this);
    show_titles_reached(*menu_bar_);
    outer->setMenuBar(menu_bar_);
  }
  outer->addWidget(scroll_, 1);
  focus_frames_.push_back(new FocusFrame(content_));
  if (!plan.foot.children.empty()) {
    foot_ = new QWidget(this);
    build_part(plan.foot, *foot_);
    outer->addWidget(foot_);
    focus_frames_.push_back(new FocusFrame(foot_));
  }
  set_tab_order();
  built_ = true;
}

void ScreenWindow::build_part(const ui::PlanNode& part, QWidget& on) {
  auto* const column = new QVBoxLayout(&on);
  const int margin = compact_ ? 6 : 10;
  // The foot stands as near to the body as the parts of the body to each other.
  column->setContentsMargins(margin, &on == foot_ ? 0 : margin, margin, margin);
  column->setSpacing(compact_ ? 4 : 8);
  for (const ui::PlanNode& child : part.children) build_node(child, *column);
}

void ScreenWindow::watch(const std::function<void()>& call) {
  ui::watched(screen_, call, [this] {
    // The toolkit may have moved the focus before the screen was asked.
    const Binding* const entered = binding_of(focusWidget());
    if (entered == nullptr || &entered->control() != screen_.focused())
      focus_serial_ = screen_.focus_serial() - 1;
  });
}

void ScreenWindow::hand(const std::function<void()>& event) {
  watch(event);
  watch([this] { refresh(); });
}

ClickableLabel* ScreenWindow::caption_of(Binding& binding) {
  auto* const label = new ClickableLabel(content_);
  binding.caption_label = label;
  if (binding.access_key != '\0') paint_as_measured(*label);
  label->setText(binding.caption());
  // Its access key leads to the field then.
  if (binding.focus_widget() != nullptr) label->setBuddy(binding.focus_widget());
  return label;
}

QWidget* ScreenWindow::placed(const ui::PlanNode& node) {
  Binding& found = *binding(node.name);
  const bool above = node.caption == ui::CaptionPlace::kAbove;
  const bool captioned = above || node.caption == ui::CaptionPlace::kBeside;
  if (!node.has_unit && !captioned) return found.widget();
  auto* const box = new QWidget(content_);
  auto* const outer =
      new QBoxLayout(above ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, box);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(above ? 1 : 6);
  if (captioned) outer->addWidget(caption_of(found));
  if (!node.has_unit) {
    outer->addWidget(found.widget());
    return box;
  }
  auto* const line = new QHBoxLayout;
  line->setSpacing(4);
  line->addWidget(found.widget());
  found.unit_label = new QLabel(content_);
  // Else the toolkit guesses, and a "<" may begin a mark-up.
  found.unit_label->setTextFormat(Qt::PlainText);
  found.unit_label->setText(QString::fromStdString(screen_.unit(found.control())));
  line->addWidget(found.unit_label);
  if (node.room_behind_unit) line->addStretch();
  outer->addLayout(line);
  return box;
}

void ScreenWindow::build_node(const ui::PlanNode& node, QBoxLayout& into) {
  using Type = ui::PlanNode::Type;
  switch (node.type) {
    case Type::kRows:
      build_box(node, QBoxLayout::TopToBottom, into.spacing(), into);
      break;
    case Type::kColumns:
      build_box(node, QBoxLayout::LeftToRight, into.spacing(), into);
      break;
    case Type::kLine:
      build_box(node, QBoxLayout::LeftToRight, 10, into);
      break;
    case Type::kButtons:
      build_box(node, QBoxLayout::LeftToRight, 8, into);
      break;
    case Type::kFlow:
      build_flow(node, into);
      break;
    case Type::kGroup:
      into.addWidget(build_group(node));
      break;
    case Type::kGrid:
      build_grid(node, into);
      break;
    case Type::kLines:
      build_lines(node, into);
      break;
    case Type::kSpace:
      into.addStretch();
      break;
    case Type::kControl:
      into.addWidget(placed(node));
      break;
  }
}

void ScreenWindow::build_box(const ui::PlanNode& node, QBoxLayout::Direction direction, int spacing,
                             QBoxLayout& into) {
  auto* const box = new QBoxLayout(direction);
  box->setSpacing(spacing);
  into.addLayout(box);
  for (const ui::PlanNode& child : node.children) build_node(child, *box);
}

void ScreenWindow::build_flow(const ui::PlanNode& node, QBoxLayout& into) {
  const bool of_controls =
      !node.children.empty() && node.children.front().type == ui::PlanNode::Type::kControl;
  // Fields under their captions stand near each other; columns are as far apart as their parts.
  auto* const flow =
      of_controls ? new FlowLayout(6, 2) : new FlowLayout(into.spacing(), into.spacing());
  into.addLayout(flow, 1);
  for (const ui::PlanNode& child : node.children) {
    if (child.type == ui::PlanNode::Type::kControl) {
      flow->addWidget(placed(child));
      continue;
    }
    auto* const column = new QVBoxLayout;
    column->setSpacing(into.spacing());
    flow->add_column(column);
    if (child.type != ui::PlanNode::Type::kRows) {
      build_node(child, *column);
      continue;
    }
    for (const ui::PlanNode& part : child.children) build_node(part, *column);
  }
}

void ScreenWindow::build_grid(const ui::PlanNode& node, QBoxLayout& into) {
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(compact_ ? 3 : 6);
  into.addLayout(grid);
  for (const ui::GridCell& cell : ui::cells_of(node)) {
    switch (cell.holds) {
      case ui::GridCell::Holds::kCaption:
        grid->addWidget(caption_of(*binding(cell.node->name)), cell.row, cell.column,
                        Qt::AlignLeft | Qt::AlignVCenter);
        break;
      case ui::GridCell::Holds::kControl:
        grid->addWidget(placed(*cell.node), cell.row, cell.column, 1, cell.columns);
        break;
      case ui::GridCell::Holds::kPart:
        auto* const box = new QVBoxLayout;
        grid->addLayout(box, cell.row, cell.column, 1, cell.columns);
        build_node(*cell.node, *box);
        break;
    }
  }
  grid->setColumnStretch(node.columns * 2, 1);
}

void ScreenWindow::build_lines(const ui::PlanNode& node, QBoxLayout& into) {
  std::vector<Binding::BesideLine> pictures;
  for (const ui::PlanNode& child : node.children) {
    const Binding& picture = *binding(child.name);
    pictures.push_back({picture.control().beside_line, picture.widget(),
                        QString::fromStdString(screen_.caption(picture.control()))});
  }
  Binding& choice = *binding(node.name);
  choice.stand_beside(node.columns, pictures);
  into.addWidget(choice.widget(), 1);
}

QWidget* ScreenWindow::build_group(const ui::PlanNode& node) {
  auto* const frame = new QFrame(content_);
  frame->setObjectName(QStringLiteral("group"));
  frame->setFrameShape(QFrame::StyledPanel);
  auto* const column = new QVBoxLayout(frame);
  const int side = compact_ ? 6 : 10;
  column->setContentsMargins(side, compact_ ? 3 : 6, side, compact_ ? 4 : 8);
  column->setSpacing(compact_ ? 2 : 6);
  if (!node.name.empty()) {
    QWidget* const title = binding(node.name)->widget();
    QFont bold;  // says nothing else, so it follows the window's
    bold.setBold(true);
    title->setFont(bold);
    if (node.beside.empty()) {
      column->addWidget(title);
    } else {
      auto* const line = new FlowLayout(18, 2);
      column->addLayout(line);
      line->addWidget(title);
      for (const ui::PlanNode& each : node.beside) line->addWidget(placed(each));
    }
  }
  for (const ui::PlanNode& child : node.children) build_node(child, *column);
  return frame;
}

void ScreenWindow::set_tab_order() {
  QWidget* before = nullptr;
  for (const auto& binding : bindings_) {
    QWidget* const widget = binding->focus_widget();
    if (widget == nullptr) continue;
    if (before != nullptr) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

Binding* ScreenWindow::binding(const ui::Control& control) const {
  const auto at = std::find_if(bindings_.begin(), bindings_.end(), [&](const auto& candidate) {
    return &candidate->control() == &control;
  });
  return at == bindings_.end() ? nullptr : at->get();
}

Binding* ScreenWindow::binding(std::string_view name) const {
  const auto at = std::find_if(bindings_.begin(), bindings_.end(), [&](const auto& candidate) {
    return candidate->control().name == name;
  });
  return at == bindings_.end() ? nullptr : at->get();
}

void ScreenWindow::refresh() {
  if (!built_) return;
  if (screen_.result()) {
    if (isVisible()) screen_.keep_place(place_now());
    done(*screen_.result());
    return;
  }
  speak_qt(screen_.language());
  const QString title = QString::fromStdString(screen_.title());
  if (windowTitle() != title) setWindowTitle(title);
  show_controls();
  show_menu();
  apply_focus();
}

void ScreenWindow::show_controls() {
  if (!built_ || screen_.result()) return;
  for (const auto& binding : bindings_) binding->show();
}

void ScreenWindow::add_items(QWidget& menu, std::span<const ui::MenuItem> items) {
  std::vector<std::string> english;
  for (const ui::MenuItem& item : items)
    english.emplace_back(text::resolve(item.text, text::Language::kEnglish));
  const std::vector<char> keys = ui::access_keys(english);
  for (std::size_t at = 0; at < items.size(); ++at) {
    const ui::MenuItem& item = items[at];
    const std::string_view label = text::resolve(item.text, screen_.language());
    const QString text = QString::fromStdString(ui::with_access_key(label, keys[at]));
    if (!item.children.empty()) {
      auto* const below = new QMenu(text, &menu);
      menu.addAction(below->menuAction());
      add_items(*below, item.children);
      continue;
    }
    auto* const action = new QAction(text, &menu);
    action->setEnabled(item.enabled);
    menu.addAction(action);
    if (!item.shortcut.empty()) show_shortcut(*action, label, item.shortcut);
    // A copy: the command may make a new menu bar.
    connect(action, &QAction::triggered, this, [this, item] { run_command(item); });
  }
}

void ScreenWindow::run_command(const ui::MenuItem& item) {
  // The queued question about the focus would come behind the command.
  settle_focus();
  hand([&] { screen_.command(item); });
  // Once the menu itself has let go of the keyboard.
  QMetaObject::invokeMethod(
      this, [this] { give_focus_back(); }, Qt::QueuedConnection);
}

void ScreenWindow::give_focus_back() {
  const QWidget* const now = focusWidget();
  if (screen_.focused() == nullptr || (now != nullptr && !is_in_menu(now))) return;
  const Binding* const target = binding(*screen_.focused());
  if (target != nullptr && target->focus_widget() != nullptr)
    target->focus_widget()->setFocus(Qt::MenuBarFocusReason);
}

bool ScreenWindow::is_in_menu(const QWidget* widget) const {
  // A menu within a menu has that one for its parent.
  const QObject* part = widget;
  while (part != nullptr && part != menu_bar_) part = part->parent();
  return part != nullptr;
}

void ScreenWindow::show_menu() {
  if (menu_bar_ == nullptr) return;
  if (menu_serial_ == screen_.menu_serial() && menu_language_ == screen_.language() &&
      !menu_bar_->actions().isEmpty())
    return;
  menu_serial_ = screen_.menu_serial();
  menu_language_ = screen_.language();
  menu_bar_->clear();
  for (QMenu* const old : menu_bar_->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
    // Not at once: the command that is being carried out may be one of theirs.
    old->deleteLater();
  add_items(*menu_bar_, screen_.menu());
}

void ScreenWindow::apply_focus() {
  if (screen_.focused() == nullptr || focus_serial_ == screen_.focus_serial()) return;
  focus_serial_ = screen_.focus_serial();
  Binding* const target = binding(*screen_.focused());
  if (target == nullptr || target->focus_widget() == nullptr) return;
  target->focus_widget()->setFocus(Qt::OtherFocusReason);
  target->select(screen_.selection_length());
  bring_into_view(*target);
}

// With its title or caption, which is above or to the left.
void ScreenWindow::bring_into_view(const Binding& target) const {
  // Before it is shown its layouts do not have their heights.
  if (!isVisible() || !content_->isAncestorOf(target.widget())) return;
  constexpr int kRight = 40;
  const QWidget& widget = *target.widget();
  const QRect place(widget.mapTo(content_, QPoint(0, 0)), widget.size());
  // Of a field the area would show the caret only. Where it is low, the field comes before its title.
  const int above =
      std::min(place.height() * 3, (scroll_->viewport()->height() - place.height()) / 2);
  const QPoint middle = place.center();
  scroll_->ensureVisible(middle.x(), middle.y(), place.width() / 2 + kRight,
                         place.height() / 2 + std::max(above, 0));
}

const QWidget* ScreenWindow::spoken_of() const {
  const Binding* const target =
      screen_.speaks_of() == nullptr ? nullptr : binding(*screen_.speaks_of());
  if (target == nullptr || !target->widget()->isVisible()) return nullptr;
  bring_into_view(*target);
  return target->widget();
}

void ScreenWindow::settle_focus() {
  const QWidget* const now = QApplication::focusWidget();
  if (now == nullptr || now->window() != this) return;
  const Binding* const entered = binding_of(now);
  if (entered == nullptr || screen_.focused() == &entered->control()) return;
  hand([&] {
    // Refused: with another serial the refresh puts the focus back.
    if (!screen_.move_focus(entered->control())) focus_serial_ = screen_.focus_serial() - 1;
  });
}

Binding* ScreenWindow::binding_of(const QWidget* part) const {
  const auto at =
      std::ranges::find_if(bindings_, [&](const auto& binding) { return binding->owns(part); });
  return at == bindings_.end() ? nullptr : at->get();
}

bool ScreenWindow::choose_line(const QWidget& widget, const QKeyEvent& pressed) {
  const Binding* const target = binding_of(&widget);
  if (target == nullptr) return false;
  const ui::Kind kind = target->control().kind;
  const auto key = key_in(kLineKeys, pressed);
  const bool steps = key && ui::means_line(target->control(), *key);
  const QString character = ui::finds_lines(kind) ? character_of(pressed) : QString();
  if (!steps && character.isEmpty()) return false;
  if (steps && target->scrolls(*key)) return true;
  settle_focus();
  hand([&] {
    if (screen_.focused() != &target->control()) return;
    if (steps) {
      screen_.key(*key);
    } else {
      screen_.find_line(character.toStdString());
    }
  });
  return true;
}

bool ScreenWindow::press_shortcut(const QKeyEvent& pressed) {
  QString keys = character_of(pressed);
  if (keys.isEmpty()) {
    const auto modifiers = pressed.modifiers() & ~Qt::KeypadModifier;
    keys = QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(pressed.key())))
               .toString(QKeySequence::PortableText);
  }
  const std::string told = keys.toStdString();
  if (screen_.pressed_by(told) == nullptr) return false;
  settle_focus();
  hand([&] {
    // Leaving a field may have switched it off.
    if (ui::Control* const control = screen_.pressed_by(told)) screen_.press(*control);
  });
  return true;
}

bool ScreenWindow::eventFilter(QObject* watched, QEvent* event) {
  // A list got more lines, a text a second line: asked once all of this event has been laid out.
  if ((watched == content_ || (watched == foot_ && foot_ != nullptr)) &&
      event->type() == QEvent::LayoutRequest) {
    QMetaObject::invokeMethod(
        this, [this] { grow_to_content(); }, Qt::QueuedConnection);
  }
  // A menu bar shows no tips of its own accord.
  if (watched == menu_bar_ && event->type() == QEvent::ToolTip) {
    const auto& rests = *static_cast<QHelpEvent*>(event);
    const QAction* const title = menu_bar_->actionAt(rests.pos());
    const bool tells = title != nullptr && !title->shortcut().isEmpty();
    QToolTip::showText(rests.globalPos(), tells ? title->toolTip() : QString(), menu_bar_);
    return true;
  }
  if (const QEvent::Type type = event->type(); type == QEvent::Move || type == QEvent::Resize ||
                                               type == QEvent::Show || type == QEvent::Hide)
    for (FocusFrame* const frame : focus_frames_) frame->place();
  // What the screen is told of below, it counts itself.
  if (is_key_or_click(*event) && !is_tab(*event)) screen_.did_something_else();
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const auto* const widget = qobject_cast<QWidget*>(watched);
  const auto& pressed = *static_cast<QKeyEvent*>(event);
  // A menu that has the keyboard opens, goes on and lets go by keys of its own.
  if (is_in_menu(widget)) return false;
  // A message or the help beside this window has keys of its own.
  if (widget == nullptr || widget->window() != this) return QDialog::eventFilter(watched, event);
  if (!screen_.menu().empty() && does_nothing(pressed)) return true;
  if (press_shortcut(pressed)) return true;
  if (choose_line(*widget, pressed)) return true;
  // A slip on Alt must not overwrite what the field holds: no menu and no control has the letter.
  if (pressed.modifiers() == Qt::AltModifier && is_written(pressed)) return true;
  const auto key = key_in(kWindowKeys, pressed);
  if (!key) return QDialog::eventFilter(watched, event);
  settle_focus();
  hand([&] { screen_.key(*key); });
  return true;
}

bool ScreenWindow::focusNextPrevChild(bool next) {
  settle_focus();
  // The toolkit would go on without asking whether the field lets go.
  hand([&] { screen_.key(next ? ui::Key::kTab : ui::Key::kShiftTab); });
  return true;
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // The screen says whether it closes; refresh() then does it.
  event->ignore();
  hand([this] { screen_.close_box(); });
}

void ScreenWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  QMetaObject::invokeMethod(
      this,
      [this] {
        const ui::Control* const focused = screen_.focused();
        if (const Binding* const target = focused == nullptr ? nullptr : binding(*focused))
          bring_into_view(*target);
      },
      Qt::QueuedConnection);
}

void ScreenWindow::reject() {
  hand([this] { screen_.key(ui::Key::kEscape); });
}

namespace {

// Sizes are passed up layout by layout, and only in windows that are visible; before that, a group
// or a choice within still has the size of when it was empty. The innermost come first.
void settle_layouts(QWidget& content) {
  QList<QWidget*> widgets = content.findChildren<QWidget*>();
  widgets.prepend(&content);
  for (QWidget* const widget : std::views::reverse(std::as_const(widgets))) {
    if (QLayout* const layout = widget->layout()) {
      widget->ensurePolished();
      layout->invalidate();
      layout->activate();
    }
  }
}

}  // namespace

// All of the content, as far as the screen has room. Where one direction is cut, the scroll bar
// that this takes must not cut the other.
QSize ScreenWindow::fitting_size() const {
  // How high the frame is, a window knows only when it is shown.
  constexpr int kTitleBar = 32;
  const QSize room = screen()->availableGeometry().size() - QSize(0, kTitleBar);
  QSize wanted = content_->sizeHint() + QSize(2, 2);
  // What flows is as high as its width makes it.
  if (content_->hasHeightForWidth()) {
    wanted.setWidth(std::min(wanted.width(), room.width()));
    wanted.setHeight(content_->heightForWidth(wanted.width()) + 2);
  }
  wanted.rheight() += height_around(wanted.width());
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const bool wide = wanted.width() > room.width();
  const bool high = wanted.height() > room.height();
  if (wide && !high) wanted.rheight() += bar;
  if (high && !wide) wanted.rwidth() += bar;
  return wanted.boundedTo(room);
}

int ScreenWindow::height_around(int width) const {
  const int menu = menu_bar_ == nullptr ? 0 : menu_bar_->sizeHint().height();
  if (foot_ == nullptr) return menu;
  return menu +
         (foot_->hasHeightForWidth() ? foot_->heightForWidth(width) : foot_->sizeHint().height());
}

void ScreenWindow::take_place() {
  fit_to_screen();
  const auto kept = screen_.kept_place();
  if (kept && take_kept_place(kept->place) && kept->maximised)
    setWindowState(windowState() | Qt::WindowMaximized);
}

bool ScreenWindow::take_kept_place(const ui::Place& kept) {
  const ui::Corner title = ui::title_of(kept);
  const QScreen* const display = QGuiApplication::screenAt(QPoint(title.left, title.top));
  if (display == nullptr) return false;
  const QSize least = minimumSizeHint();
  const ui::Place place =
      ui::fitted(kept, place_of(display->availableGeometry()), {least.width(), least.height()});
  setGeometry(place.left, place.top, place.width, place.height);
  return true;
}

ui::WindowPlace ScreenWindow::place_now() const {
  return {place_of(isMaximized() ? normalGeometry() : geometry()), isMaximized()};
}

void ScreenWindow::fit_to_screen() {
  settle_layouts(*content_);
  if (foot_ != nullptr) settle_layouts(*foot_);
  resize(fitting_size());
}

void ScreenWindow::grow_to_content() {
  // A main window has the size that the person gave it, and its form scrolls.
  if (menu_bar_ != nullptr) return;
  const QSize wanted = size().expandedTo(fitting_size());
  if (wanted == size()) return;
  resize(wanted);
  // It grows to the right and downwards.
  const ui::Place frame = place_of(frameGeometry());
  const ui::Corner corner = ui::drawn_back(frame, place_of(screen()->availableGeometry()));
  if (corner != frame.corner()) move(corner.left, corner.top);
}

}  // namespace desktop
