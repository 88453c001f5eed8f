#include "desktop/binding.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTextLayout>
#include <QTreeWidget>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/fixed_pitch.h"
#include "desktop/picture_label.h"
#include "ui/dump.h"
#include "ui/spoken.h"

namespace desktop {
namespace {

QString text_of(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QStringList lines_of(const std::vector<std::string>& lines) {
  QStringList result;
  result.reserve(static_cast<qsizetype>(lines.size()));
  for (const std::string& line : lines) result << text_of(line);
  return result;
}

// What a control is called and by which keys it is pressed; empty without keys.
QString with_keys(const QString& name, std::string_view shortcut) {
  const auto keys = QString::fromLatin1(shortcut.data(), static_cast<qsizetype>(shortcut.size()));
  if (keys.isEmpty()) return {};
  return name.contains(keys) ? name : QStringLiteral("%1 (%2)").arg(name, keys);
}

// Room for so many figures or letters, and the frame.
int width_for(const QWidget& widget, int characters) {
  return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters +
         widget.fontMetrics().height();
}

// The text on as many lines as it takes where each has room for so many figures; one that fits
// stays to the letter.
QString broken(const QString& text, const QWidget& widget, int characters) {
  if (characters == 0) return text;
  QTextLayout layout(text, widget.font());
  layout.beginLayout();
  QStringList lines;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters);
    lines << text.mid(line.textStart(), line.textLength());
  }
  layout.endLayout();
  if (lines.size() < 2) return text;
  for (QString& line : lines) line = line.trimmed();
  return lines.join(QLatin1Char('\n'));
}

// The font that the control asks for, beside the usual one.
QFont font_of(const ui::Control& control, const QFont& usual) {
  if (control.font == ui::kFixedPitch) return fixed_pitch_font(usual);
  QFont font = usual;
  font.setFamily(text_of(control.font));
  return font;
}

// What the widget itself cuts at; 0 for nothing. A field that goes on in another must see its
// point.
int largest_length(const ui::Control& control) {
  return control.continues_in == nullptr ? control.max_length : 0;
}

// A refused entry has a frame of its own, which those see who cannot tell its paper from another.
class FieldEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
  void show_wrong(bool wrong) {
    if (wrong_ == wrong) return;
    wrong_ = wrong;
    update();
  }

 protected:
  // A dialog that opens gives its first field the focus as Tab does, which selects all of it. What is
  // only read is selected as the screen says.
  void focusInEvent(QFocusEvent* event) override {
    const int from = selectionStart();
    const auto length = static_cast<int>(selectedText().size());
    QLineEdit::focusInEvent(event);
    if (!isReadOnly()) return;
    deselect();
    if (from >= 0) setSelection(from, length);
  }
  void paintEvent(QPaintEvent* event) override {
    QLineEdit::paintEvent(event);
    if (!wrong_) return;
    constexpr int kWidth = 2;
    QPainter painter(this);
    painter.setPen(QPen(wrong_frame(), kWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }

 private:
  bool wrong_ = false;
};

// Tells the person's typing in a line of text, and whether it was a key at the end of the text: what
// is pasted, dropped, taken back or corrected before the end is none.
class Typing : public QObject {
 public:
  using Told = std::function<void(const QString& text, bool by_key)>;
  /// `around` hands its keys on to the line without an event of their own: an editable drop-down.
  Typing(QLineEdit& edit, QWidget* around, Told told)
      : QObject(&edit), edit_(edit), told_(std::move(told)) {
    edit.installEventFilter(this);
    if (around != nullptr) around->installEventFilter(this);
    // The person's alone: textChanged would answer to setText() as well.
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
      const bool written = std::exchange(written_, false);
      told_(text, written && edit_.cursorPosition() == text.size());
    });
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool command =
            (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
        written_ = !command && !key.text().isEmpty() && key.text().front().isPrint();
        break;
      }
      case QEvent::InputMethod:
        written_ = !static_cast<QInputMethodEvent*>(event)->commitString().isEmpty();
        break;
      // A key that wrote nothing, in a field that was full.
      case QEvent::KeyRelease:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::ContextMenu:
      case QEvent::Drop:
      case QEvent::FocusIn:
        written_ = false;
        break;
      default:
        break;
    }
    return false;
  }

 private:
  QLineEdit& edit_;
  Told told_;
  bool written_ = false;
};

// A wheel that turns over a drop-down on the way through a form would change an observation unseen.
// Only one that has the focus listens to it, and only while the pointer is on it; the others leave
// it to the form, which scrolls.
class QuietWheel : public QObject {
 public:
  explicit QuietWheel(QComboBox& box) : QObject(&box), box_(box) {
    box.installEventFilter(this);
    box.setFocusPolicy(Qt::StrongFocus);  // the wheel gives no focus either
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::Wheel) return false;
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    if (box_.hasFocus() && box_.rect().contains(wheel.position().toPoint())) return false;
    event->ignore();
    return true;
  }

 private:
  QComboBox& box_;
};

class LineBinding : public Binding {
 public:
  LineBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), edit_(new FieldEdit(parent)) {
    new Typing(*edit_, nullptr,
               [this](const QString& typed, bool by_key) { tell_typed(typed, by_key); });
    edit_->setDragEnabled(true);
    if (c.figures) edit_->setInputMethodHints(Qt::ImhPreferNumbers);
  }
  [[nodiscard]] QWidget* widget() const override { return edit_; }
  void select(int length) override {
    if (length < 0) {
      edit_->selectAll();
    } else {
      edit_->setSelection(0, length);
    }
  }
  [[nodiscard]] Shown shown() const override { return {edit_->text(), {}, {}, -1, false}; }

 protected:
  void show_state() override {
    // Setting the largest length anew would wipe undo and move the caret.
    const int largest = largest_length(control());
    if (largest > 0 && edit_->maxLength() != largest) edit_->setMaxLength(largest);
    const QString wanted = text_of(control().content);
    // So would the text that is there already: the caret would go to its end.
    if (edit_->text() != wanted) {
      edit_->setText(wanted);
      // A long text that nobody is typing shows its beginning.
      if (!edit_->hasFocus() || control().on_arrow) edit_->setCursorPosition(0);
    }
    edit_->show_wrong(control().mark == "wrong");
    make_room();
    if (edit_->isReadOnly() != control().read_only) edit_->setReadOnly(control().read_only);
  }

 private:
  FieldEdit* edit_;
};

// A value that is shown, never typed: looks like a field, takes no focus.
class ReadOnlyBinding : public Binding {
 public:
  ReadOnlyBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), edit_(new QLineEdit(parent)) {
    edit_->setReadOnly(true);
    edit_->setFocusPolicy(Qt::NoFocus);
  }
  [[nodiscard]] QWidget* widget() const override { return edit_; }
  [[nodiscard]] QWidget* focus_widget() const override { return nullptr; }
  [[nodiscard]] Shown shown() const override { return {edit_->text(), {}, {}, -1, false}; }

 protected:
  void show_state() override {
    make_room();
    const QString wanted = text_of(control().content);
    if (edit_->text() == wanted) return;
    edit_->setText(wanted);
    edit_->setCursorPosition(0);
  }

 private:
  QLineEdit* edit_;
};

// A page breaks its lines where the paper does, and is as high as the display has room for.
class PageText : public QPlainTextEdit {
 public:
  explicit PageText(QWidget* parent) : QPlainTextEdit(parent) {
    setLineWrapMode(QPlainTextEdit::NoWrap);
  }
  [[nodiscard]] QSize sizeHint() const override {
    constexpr int kLines = 30;
    return {QPlainTextEdit::sizeHint().width(), fontMetrics().lineSpacing() * kLines};
  }
};

class MemoBinding : public Binding {
 public:
  MemoBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)),
        edit_(c.max_length > 0 ? new PageText(parent) : new QPlainTextEdit(parent)) {
    edit_->setReadOnly(true);
    edit_->setTabChangesFocus(true);
  }
  [[nodiscard]] QWidget* widget() const override { return edit_; }
  [[nodiscard]] bool scrolls(ui::Key page_key) const override {
    QScrollBar& bar = *edit_->verticalScrollBar();
    const bool forward = page_key == ui::Key::kPageDown;
    if (bar.value() == (forward ? bar.maximum() : bar.minimum())) return false;
    bar.triggerAction(forward ? QAbstractSlider::SliderPageStepAdd
                              : QAbstractSlider::SliderPageStepSub);
    return true;
  }
  [[nodiscard]] Shown shown() const override { return {edit_->toPlainText(), {}, {}, -1, false}; }

 protected:
  void show_state() override {
    QString wanted = text_of(control().content);
    // The widget ends its lines with "\n" alone and would seem to differ for ever.
    wanted.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (edit_->toPlainText() != wanted) edit_->setPlainText(wanted);
    make_room();
  }

 private:
  QPlainTextEdit* edit_;
};

class ComboBinding : public Binding {
 public:
  ComboBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), box_(new QComboBox(parent)) {
    if (c.kind == ui::Kind::kCombo) {
      box_->setEditable(true);
      // Qt would complete "087" to "0870" while it is typed, and add what was typed to the list.
      box_->setCompleter(nullptr);
      box_->setInsertPolicy(QComboBox::NoInsert);
      if (const int largest = largest_length(c); largest > 0)
        box_->lineEdit()->setMaxLength(largest);
      new Typing(*box_->lineEdit(), box_,
                 [this](const QString& typed, bool by_key) { tell_typed(typed, by_key); });
      box_->lineEdit()->setDragEnabled(true);
      if (c.figures) {
        // The box asks for its line, which has the focus from it.
        box_->setInputMethodHints(Qt::ImhPreferNumbers);
        box_->lineEdit()->setInputMethodHints(Qt::ImhPreferNumbers);
      }
    }
    new QuietWheel(*box_);
    if (ui::extent_of(c).least_characters == 0)
      box_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // The person's alone: currentIndexChanged also fires while the lines are filled anew.
    connect(box_, &QComboBox::activated, this,
            [this](int index) { tell([&] { screen().choose(control(), index); }); });
  }
  [[nodiscard]] QWidget* widget() const override { return box_; }
  [[nodiscard]] QWidget* focus_widget() const override { return box_; }
  void select(int length) override {
    if (box_->lineEdit() == nullptr) return;
    if (length < 0) {
      box_->lineEdit()->selectAll();
    } else {
      box_->lineEdit()->setSelection(0, length);
    }
  }
  [[nodiscard]] Shown shown() const override {
    return {box_->isEditable() ? box_->currentText() : box_->itemText(box_->currentIndex()),
            lines_,
            {},
            box_->currentIndex(),
            false};
  }

 protected:
  void show_state() override {
    make_room(box_->fontMetrics().height() * 2);  // the arrow
    if (const QStringList wanted = lines_of(control().items); wanted != lines_) {
      lines_ = wanted;
      box_->clear();
      box_->addItems(lines_);
      show_marks();
    }
    // The line before the text: it writes its own into the field.
    if (box_->currentIndex() != control().selected) box_->setCurrentIndex(control().selected);
    if (QLineEdit* const edit = box_->lineEdit()) {
      const QString wanted = text_of(control().content);
      if (edit->text() != wanted) edit->setText(wanted);
      edit->setReadOnly(control().read_only);
    }
  }
  // The field within has the focus.
  void speak(const QString& name, const QString& state) override {
    Binding::speak(name, state);
    if (box_->lineEdit() == nullptr) return;
    box_->lineEdit()->setAccessibleName(name);
    box_->lineEdit()->setAccessibleDescription(state);
  }

 private:
  // As in a tree, what stands apart is written in italics.
  void show_marks() {
    QFont italic = box_->font();
    italic.setItalic(true);
    const auto& marked = control().item_marked;
    for (std::size_t i = 0; i < marked.size(); ++i) {
      if (marked[i]) box_->setItemData(static_cast<int>(i), italic, Qt::FontRole);
    }
  }

  QComboBox* box_;
  QStringList lines_;
};

// A list as high as it has room for lines.
class ShortList : public QListWidget {
 public:
  using QListWidget::QListWidget;
  int lines = 0;
  [[nodiscard]] QSize sizeHint() const override {
    // Asked often, and a folder may hold ten thousand reports.
    if (widest_ < 0)
      for (int row = 0; row < count(); ++row)
        widest_ = std::max(widest_, fontMetrics().horizontalAdvance(item(row)->text()));
    const int line = fontMetrics().height();
    const int box = ticks ? style()->pixelMetric(QStyle::PM_IndicatorWidth) : 0;
    // Whole lines: half of one more would pass for the last one, badly drawn.
    return {std::max(widest_, 0) + box + line * 2, line_height() * lines + frameWidth() * 2};
  }
  void measure_anew() {
    widest_ = -1;
    updateGeometry();
  }
  /// A line of one row, as its delegate draws it.
  [[nodiscard]] int line_height() const {
    QStyleOptionViewItem line;
    initViewItemOption(&line);
    line.features = QStyleOptionViewItem::HasDisplay;
    if (ticks) line.features |= QStyleOptionViewItem::HasCheckIndicator;
    // A letter of another font may make it higher.
    line.text = count() > 0 ? item(0)->text() : QStringLiteral("0");
    return style()->sizeFromContents(QStyle::CT_ItemViewItem, &line, {}, this).height();
  }
  bool ticks = false;  ///< the lines have boxes
  [[nodiscard]] QSize minimumSizeHint() const override {
    constexpr int kWidest = 900;
    return {std::min(sizeHint().width(), kWidest), sizeHint().height()};
  }

 protected:
  void changeEvent(QEvent* event) override {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) measure_anew();
  }

 private:
  mutable int widest_ = -1;  ///< of the lines' texts; -1: not measured
};

class ListBinding : public Binding {
 public:
  ListBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), list_(new ShortList(parent)) {
    // Item by item, the list would count its last line as hidden and show a scroll bar for it.
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(list_, &QListWidget::itemSelectionChanged, this,
            [this] { tell([&] { screen().choose(control(), chosen()); }); });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
      const bool on = item->checkState() == Qt::Checked;
      const auto at = static_cast<std::size_t>(list_->row(item));
      if (at >= ticked_.size() || ticked_[at] == on) return;
      ticked_[at] = on;
      tell([&] { screen().tick_line(control(), list_->row(item), on); });
    });
    connect(list_, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem*) { tell([&] { screen().press(control()); }); });
  }
  [[nodiscard]] QWidget* widget() const override { return list_; }
  [[nodiscard]] Shown shown() const override {
    std::vector<bool> ticked;
    if (list_->ticks)
      for (int row = 0; row < list_->count(); ++row)
        ticked.push_back(list_->item(row)->checkState() == Qt::Checked);
    return {{}, lines_of(lines_), {}, chosen(), false, std::move(ticked)};
  }

 protected:
  void show_state() override {
    // A list's selection signal also fires for the program's own changes.
    const QSignalBlocker quiet(list_);
    list_->lines = ui::extent_of(control()).least_lines;
    if (control().items != lines_) fill();
    if (control().item_ticked != ticked_) show_ticks();
    if (chosen() != control().selected) {
      list_->setCurrentRow(control().selected, QItemSelectionModel::ClearAndSelect);
      if (control().selected < 0) list_->clearSelection();
    }
  }

 private:
  // The current line alone is none that was chosen: the focus makes the first one current.
  [[nodiscard]] int chosen() const {
    const QList<QListWidgetItem*> items = list_->selectedItems();
    return items.isEmpty() ? -1 : list_->row(items.front());
  }

  void fill() {
    lines_ = control().items;
    ticked_.clear();
    list_->ticks = false;
    list_->clear();
    // A line that is wider than the display goes on below, but where there are so many that laying
    // out each by itself would be felt.
    const bool many = lines_.size() > kMany;
    list_->setWordWrap(!many);
    list_->setUniformItemSizes(many);
    list_->addItems(lines_of(lines_));
    for (std::size_t i = 0; i < lines_.size() && i < control().item_marked.size(); ++i) {
      if (!control().item_marked[i]) continue;
      QFont slanted = list_->font();
      slanted.setItalic(true);
      list_->item(static_cast<int>(i))->setFont(slanted);
    }
    // A list does not ask for its size anew when it has other lines.
    list_->measure_anew();
  }

  void show_ticks() {
    const std::vector<bool>& wanted = control().item_ticked;
    list_->ticks = !wanted.empty();
    for (int row = 0; row < list_->count(); ++row) {
      const auto at = static_cast<std::size_t>(row);
      if (at >= wanted.size() || (at < ticked_.size() && ticked_[at] == wanted[at])) continue;
      list_->item(row)->setCheckState(wanted[at] ? Qt::Checked : Qt::Unchecked);
    }
    ticked_ = wanted;
    list_->measure_anew();
  }

  static constexpr std::size_t kMany = 200;

  ShortList* list_;
  std::vector<std::string> lines_;
  std::vector<bool> ticked_;  ///< as shown
};

// A line with its picture: a click on its text, or beside it, is one on its button.
class LineCell : public QWidget {
 public:
  using QWidget::QWidget;
  void stands_for(QRadioButton& button) { button_ = &button; }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton || !rect().contains(event->pos())) return;
    button_->setFocus(Qt::MouseFocusReason);
    button_->click();
  }

 private:
  QRadioButton* button_ = nullptr;
};

class ChoiceBinding : public Binding {
 public:
  ChoiceBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), box_(new QWidget(parent)), group_(new QButtonGroup(box_)) {
    // Clicked, not toggled: the program checks buttons, too.
    connect(group_, &QButtonGroup::idClicked, this,
            [this](int index) { tell([&] { screen().choose(control(), index); }); });
  }
  [[nodiscard]] QWidget* widget() const override { return box_; }
  [[nodiscard]] QWidget* focus_widget() const override {
    // Tab enters by the line that is chosen, else by the first that can be.
    QAbstractButton* const on = group_->checkedButton();
    if (on != nullptr && on->isEnabled()) return on;
    const auto buttons = group_->buttons();
    const auto open = std::find_if(buttons.begin(), buttons.end(),
                                   [](const QAbstractButton* b) { return b->isEnabled(); });
    if (open != buttons.end()) return *open;
    return buttons.isEmpty() ? nullptr : buttons.front();
  }
  [[nodiscard]] Shown shown() const override {
    return {{}, lines_, codes_, group_->checkedId(), false};
  }
  void stand_beside(int columns, const std::vector<BesideLine>& pictures) override {
    columns_ = columns;
    beside_ = pictures;
    place_anew();
    check_chosen(group_->buttons());
  }

 protected:
  void show_state() override {
    if (lines_of(control().items) != lines_ || lines_of(control().item_codes) != codes_) relabel();
    const auto buttons = group_->buttons();
    for (int i = 0; i < buttons.size(); ++i) {
      const auto at = static_cast<std::size_t>(i);
      const auto& off = control().item_disabled;
      buttons[i]->setEnabled(!(at < off.size() && off[at]));
    }
    if (group_->checkedId() != control().selected) check_chosen(buttons);
    // The focus goes with what is chosen.
    if (owns(QApplication::focusWidget()) && group_->checkedButton() != nullptr)
      focus_widget()->setFocus(Qt::OtherFocusReason);
  }
  // A line has the focus, and says what it is a line of.
  void speak(const QString& name, const QString& state) override {
    Binding::speak(name, state);
    for (QAbstractButton* const line : group_->buttons()) line->setAccessibleDescription(name);
  }

 private:
  void check_chosen(const QList<QAbstractButton*>& buttons) {
    // An exclusive group cannot be emptied: it is opened for the moment.
    group_->setExclusive(false);
    for (QAbstractButton* const button : buttons)
      button->setChecked(group_->id(button) == control().selected);
    group_->setExclusive(true);
  }

  void relabel() {
    const bool other_lines = control().items.size() != static_cast<std::size_t>(lines_.size()) ||
                             lines_of(control().item_codes) != codes_;
    lines_ = lines_of(control().items);
    codes_ = lines_of(control().item_codes);
    // Another language alone: the buttons stay, and with them the focus.
    if (other_lines) return place_anew();
    for (int i = 0; i < lines_.size(); ++i) show_line(i);
  }

  void place_anew() {
    for (const BesideLine& beside : beside_) beside.picture->setParent(box_->parentWidget());
    qDeleteAll(box_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    delete box_->layout();
    texts_.clear();
    if (columns_ > 0) {
      place_beside_pictures();
    } else if (const ui::ChoiceLook look = ui::look_of(control());
               look == ui::ChoiceLook::kBehindCodes) {
      place_behind_codes();
    } else {
      place_plain(look == ui::ChoiceLook::kSideBySide);
    }
  }

  // A line beside a picture has its text in a label, which goes on in further lines.
  void show_line(int index) {
    QLabel* const text = texts_.value(index);
    if (text == nullptr) {
      group_->button(index)->setText(
          broken(lines_[index], *box_, ui::extent_of(control()).most_characters));
    } else {
      text->setText(lines_[index]);
      group_->button(index)->setAccessibleName(lines_[index]);
    }
  }

  QRadioButton* add_button(int index) {
    auto* const button = new QRadioButton(box_);
    group_->addButton(button, index);
    button->setAccessibleDescription(box_->accessibleName());
    show_line(index);
    return button;
  }

  QLabel* code_label(int index) {
    auto* const code = new QLabel(codes_.value(index), box_);
    code->setTextFormat(Qt::PlainText);
    // The system's fixed font does not follow the size of the others.
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSizeF(box_->font().pointSizeF());
    code->setFont(fixed);
    return code;
  }

  void place_plain(bool side_by_side) {
    auto* const layout =
        new QBoxLayout(side_by_side ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, box_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(side_by_side ? 10 : 2);
    for (int i = 0; i < lines_.size(); ++i) layout->addWidget(add_button(i));
    if (side_by_side) layout->addStretch();
  }

  // The codes line up in a column of their own.
  void place_behind_codes() {
    auto* const layout = new QGridLayout(box_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(10);
    layout->setVerticalSpacing(2);
    layout->setColumnStretch(1, 1);
    for (int i = 0; i < lines_.size(); ++i) {
      layout->addWidget(code_label(i), i, 0, Qt::AlignRight | Qt::AlignVCenter);
      layout->addWidget(add_button(i), i, 1);
    }
  }

  // What has no picture stands on one line above; the others in columns, picture by picture.
  void place_beside_pictures() {
    auto* const layout = new QVBoxLayout(box_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto* const above = new QHBoxLayout;
    above->setSpacing(10);
    layout->addLayout(above);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(8);
    layout->addLayout(grid, 1);
    int cell = 0;
    for (int i = 0; i < lines_.size(); ++i) {
      const auto beside = std::find_if(beside_.begin(), beside_.end(),
                                       [i](const BesideLine& one) { return one.line == i; });
      if (beside == beside_.end()) {
        above->addWidget(code_label(i));
        above->addWidget(add_button(i));
        above->addSpacing(20);
        continue;
      }
      grid->addWidget(cell_of(*beside), cell / columns_, cell % columns_);
      ++cell;
    }
    above->addStretch();
    for (int column = 0; column < columns_; ++column) grid->setColumnStretch(column, 1);
  }

  // The picture; right of it the button with the code and the line's text below.
  QWidget* cell_of(const BesideLine& beside) {
    auto* const cell = new LineCell(box_);
    auto* const across = new QHBoxLayout(cell);
    across->setContentsMargins(0, 0, 0, 0);
    across->setSpacing(8);
    across->addWidget(beside.picture);
    auto* const text = new QLabel(cell);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setMinimumWidth(width_for(*text, kFewestOfLine));
    text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    texts_.insert(beside.line, text);
    QRadioButton* const button = add_button(beside.line);
    button->setText(beside.name);
    cell->stands_for(*button);
    auto* const down = new QVBoxLayout;
    down->setSpacing(2);
    down->addWidget(button, 0, Qt::AlignLeft);
    down->addWidget(text, 1);
    across->addLayout(down, 1);
    return cell;
  }

  static constexpr int kFewestOfLine = 14;  // characters of a line's text beside its picture

  QWidget* box_;
  QButtonGroup* group_;
  QStringList lines_;
  QStringList codes_;
  int columns_ = 0;  ///< of lines beside pictures; 0 for none
  std::vector<BesideLine> beside_;
  QMap<int, QLabel*> texts_;  ///< of the lines whose button does not have it
};

class TickBinding : public Binding {
 public:
  TickBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), box_(new QCheckBox(parent)) {
    connect(box_, &QCheckBox::clicked, this,
            [this](bool on) { tell([&] { screen().tick(control(), on); }); });
  }
  [[nodiscard]] QWidget* widget() const override { return box_; }
  [[nodiscard]] Shown shown() const override { return {{}, {}, {}, -1, box_->isChecked()}; }

 protected:
  void show_state() override {
    if (box_->text() != caption()) box_->setText(caption());
    if (box_->isChecked() != control().checked) box_->setChecked(control().checked);
  }

 private:
  QCheckBox* box_;
};

class ButtonBinding : public Binding {
 public:
  ButtonBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), button_(new QPushButton(parent)) {
    // Else the button that has the focus becomes the default one, which is OK and no other.
    button_->setAutoDefault(false);
    connect(button_, &QPushButton::clicked, this,
            [this] { tell([&] { screen().press(control()); }); });
  }
  [[nodiscard]] QWidget* widget() const override { return button_; }

 protected:
  void show_state() override {
    if (button_->text() != caption()) button_->setText(caption());
    // For the looks only: what Enter does is the screen's.
    button_->setDefault(control().role == ui::Role::kAccept);
  }

 private:
  QPushButton* button_;
};

class LabelBinding : public Binding {
 public:
  LabelBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), label_(new ClickableLabel(parent)) {
    connect(label_, &ClickableLabel::clicked, this,
            [this] { tell([&] { screen().press(control()); }); });
  }
  [[nodiscard]] QWidget* widget() const override { return label_; }
  [[nodiscard]] QWidget* focus_widget() const override { return nullptr; }
  [[nodiscard]] Shown shown() const override { return {label_->text(), {}, {}, -1, false}; }

 protected:
  void show_state() override {
    QString wanted = caption();
    wanted.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (label_->text() != wanted) label_->setText(wanted);
    label_->set_clickable(static_cast<bool>(control().on_press));
  }

 private:
  ClickableLabel* label_;
};

// A drawing, or the picture of a file; the caption where that is missing.
class PictureBinding : public Binding {
 public:
  PictureBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), label_(new PictureLabel(parent)) {
    connect(label_, &ClickableLabel::clicked, this, [this](QPointF position) {
      if (const auto place = label_->point_at(position)) {
        tell([&] { screen().press_at(control(), *place); });
      } else if (!label_->text().isEmpty()) {
        tell([&] { screen().press(control()); });
      }
    });
  }
  [[nodiscard]] QWidget* widget() const override { return label_; }
  [[nodiscard]] QWidget* focus_widget() const override { return nullptr; }
  [[nodiscard]] Shown shown() const override { return {file_, {}, {}, -1, false}; }

 protected:
  void show_state() override {
    label_->show_drawing(control().drawing);
    if (const QString wanted = text_of(control().content); wanted != file_ || !looked_) {
      looked_ = true;
      file_ = wanted;
      found_ = label_->show_file(file_, control().beside_line >= 0);
    }
    if (!found_) {
      const QString wanted = control().drawing == nullptr ? caption() : QString();
      if (label_->text() != wanted) label_->setText(wanted);
    }
    label_->set_clickable(control().on_press || control().on_point);
    make_room();
  }

 private:
  PictureLabel* label_;
  QString file_;
  bool looked_ = false;
  bool found_ = false;
};

class TreeBinding : public Binding {
 public:
  TreeBinding(ui::Screen& s, ui::Control& c, QWidget* parent, Hand hand)
      : Binding(s, c, std::move(hand)), tree_(new QTreeWidget(parent)) {
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    connect(tree_, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* item) { tell_later(item, &ui::Screen::expand); });
    connect(tree_, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem* item) { tell_later(item, &ui::Screen::collapse); });
    connect(tree_, &QTreeWidget::itemSelectionChanged, this, [this] {
      // A tree that is emptied selects nothing; that was nobody's choice.
      if (chosen() >= 0) tell([&] { screen().choose(control(), chosen()); });
    });
  }
  [[nodiscard]] QWidget* widget() const override { return tree_; }
  [[nodiscard]] Shown shown() const override {
    Shown result;
    result.selected = chosen();
    for (const ui::TreeRow& row : rows_) result.items << text_of(row.text);
    return result;
  }

 protected:
  void show_state() override {
    const QSignalBlocker quiet(tree_);
    make_room();
    const auto same = [](const ui::TreeRow& a, const ui::TreeRow& b) {
      return a.text == b.text && a.path == b.path && a.depth == b.depth &&
             a.can_expand == b.can_expand && a.expanded == b.expanded && a.marked == b.marked;
    };
    const auto& rows = control().rows;
    if (!std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(), same)) {
      rows_ = rows;
      fill();
    }
    const auto at = static_cast<std::size_t>(control().selected);
    QTreeWidgetItem* const wanted =
        control().selected >= 0 && at < items_.size() ? items_[at] : nullptr;
    if (chosen() != (wanted == nullptr ? -1 : control().selected)) {
      tree_->setCurrentItem(wanted);
      if (wanted != nullptr) tree_->scrollToItem(wanted);
    }
  }

 private:
  static int row_of(const QTreeWidgetItem* item) { return item->data(0, Qt::UserRole).toInt(); }

  // Not while the tree deals with the key or click: it goes on with its rows afterwards, and the
  // screen's answer makes new ones, so that the arrow would lead to another row than the one opened.
  void tell_later(const QTreeWidgetItem* item,
                  void (ui::Screen::*what)(ui::Control&, std::size_t)) {
    const auto row = static_cast<std::size_t>(row_of(item));
    const auto act = [this, row, what, path = rows_.at(row).path] {
      if (row >= rows_.size() || rows_[row].path != path) return;
      tell([&] { (screen().*what)(control(), row); });
    };
    QMetaObject::invokeMethod(tree_, act, Qt::QueuedConnection);
  }

  // The current row alone is none that was chosen: the focus makes the first one current.
  [[nodiscard]] int chosen() const {
    const QList<QTreeWidgetItem*> items = tree_->selectedItems();
    return items.isEmpty() ? -1 : row_of(items.front());
  }

  // The branches grow before they are hung into the tree, which looks at each item that comes.
  void fill() {
    tree_->clear();
    items_.clear();
    QFont slanted = tree_->font();
    slanted.setItalic(true);
    QList<QTreeWidgetItem*> roots;
    std::vector<QTreeWidgetItem*> parents;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      const ui::TreeRow& row = rows_[i];
      const auto depth = static_cast<std::size_t>(std::max(row.depth, 0));
      parents.resize(std::min(parents.size(), depth));
      auto* const item = new QTreeWidgetItem;
      item->setText(0, text_of(row.text));
      item->setData(0, Qt::UserRole, static_cast<int>(i));
      item->setChildIndicatorPolicy(row.can_expand ? QTreeWidgetItem::ShowIndicator
                                                   : QTreeWidgetItem::DontShowIndicator);
      if (row.marked) item->setFont(0, slanted);
      if (parents.empty()) {
        roots << item;
      } else {
        parents.back()->addChild(item);
      }
      parents.push_back(item);
      items_.push_back(item);
    }
    tree_->addTopLevelItems(roots);
    // Only an item that has its children can be opened.
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (rows_[i].expanded) items_[i]->setExpanded(true);
    }
  }

  QTreeWidget* tree_;
  std::vector<ui::TreeRow> rows_;
  std::vector<QTreeWidgetItem*> items_;
};

template <class B>
std::unique_ptr<Binding> make(ui::Screen& screen, ui::Control& control, QWidget* parent,
                              Hand hand) {
  return std::make_unique<B>(screen, control, parent, std::move(hand));
}

using Maker = std::unique_ptr<Binding> (*)(ui::Screen&, ui::Control&, QWidget*, Hand);

// One row per ui::Kind, in its order.
constexpr std::array<Maker, 12> kMakers = {
    make<LabelBinding>, make<ReadOnlyBinding>, make<LineBinding>,    make<MemoBinding>,
    make<ComboBinding>, make<ComboBinding>,    make<ListBinding>,    make<ChoiceBinding>,
    make<TickBinding>,  make<ButtonBinding>,   make<PictureBinding>, make<TreeBinding>,
};

}  // namespace

Binding::Binding(ui::Screen& screen, ui::Control& control, Hand hand)
    : screen_(screen), control_(control), hand_(std::move(hand)) {}

bool Binding::owns(const QWidget* candidate) const {
  return candidate != nullptr && (candidate == widget() || widget()->isAncestorOf(candidate));
}

void Binding::tell_typed(const QString& text, bool by_key) {
  const std::string typed = text.toStdString();
  tell([&] {
    if (by_key) {
      screen_.type_by_key(control_, typed);
    } else {
      screen_.type(control_, typed);
    }
  });
}

void Binding::select(int /*length*/) {}

void Binding::speak(const QString& name, const QString& state) {
  widget()->setAccessibleName(name);
  widget()->setAccessibleDescription(state);
}

void Binding::stand_beside(int /*columns*/, const std::vector<BesideLine>& /*pictures*/) {}

void Binding::make_room(int besides) {
  const ui::Extent extent = ui::extent_of(control_);
  if (extent == room_) return;
  room_ = extent;
  QWidget& shown_widget = *widget();
  if (extent.least_characters > 0)
    shown_widget.setMinimumWidth(width_for(shown_widget, extent.least_characters) + besides);
  if (extent.least_lines > 1)
    shown_widget.setMinimumHeight(shown_widget.fontMetrics().lineSpacing() * extent.least_lines);
  if (extent.most_characters == 0) return;
  // What room is left goes behind the field, not around it.
  shown_widget.setMaximumWidth(width_for(shown_widget, extent.most_characters) + besides);
  shown_widget.setSizePolicy(QSizePolicy::Preferred, shown_widget.sizePolicy().verticalPolicy());
}

// A locked value and one that is only shown stand on the window's paper.
void Binding::show_dress() {
  const bool field = control_.kind == ui::Kind::kEdit || control_.kind == ui::Kind::kCombo;
  const bool shown_only = control_.kind == ui::Kind::kReadOnly;
  if (!field && !shown_only) return;
  const Dress wanted = control_.mark == ui::kWrongMark     ? Dress::kWrong
                       : control_.mark == ui::kMissingMark ? Dress::kMissing
                       : control_.read_only || shown_only  ? Dress::kLocked
                                                           : Dress::kPlain;
  const qint64 palette = QApplication::palette().cacheKey();
  if (wanted == dress_ && (palette == palette_ || wanted == Dress::kPlain)) return;
  dress_ = wanted;
  palette_ = palette;
  dress(*widget(), wanted);
}

void Binding::show() {
  QWidget* const shown_widget = widget();
  const QSignalBlocker quiet(shown_widget);
  show_state();
  // Its own state: isEnabled() is false for the sake of a parent as well.
  if (shown_widget->isEnabledTo(shown_widget->parentWidget()) != control_.enabled)
    shown_widget->setEnabled(control_.enabled);
  for (QWidget* const part :
       {shown_widget, static_cast<QWidget*>(caption_label), static_cast<QWidget*>(unit_label)}) {
    // isVisible() is false until the window is shown.
    if (part != nullptr && part->isHidden() == control_.visible) part->setVisible(control_.visible);
  }
  if (caption_label != nullptr) {
    if (caption_label->text() != caption()) caption_label->setText(caption());
  }
  if (unit_label != nullptr) {
    const QString unit = QString::fromStdString(screen_.unit(control_));
    if (unit_label->text() != unit) unit_label->setText(unit);
  }
  show_dress();
  if (!control_.font.empty()) {
    // The window's font, also when the system's was changed meanwhile.
    const QWidget* const around = shown_widget->parentWidget();
    const QFont wanted =
        font_of(control_, around == nullptr ? QApplication::font() : around->font());
    if (shown_widget->font().family() != wanted.family() ||
        shown_widget->font().pointSizeF() != wanted.pointSizeF())
      shown_widget->setFont(wanted);
  }
  const QString name = text_of(ui::spoken_name(screen_, control_, titles));
  const QString state = text_of(ui::spoken_state(screen_, control_));
  if (name != spoken_name_ || state != spoken_state_) {
    spoken_name_ = name;
    spoken_state_ = state;
    speak(name, state);
  }
  // Whoever wonders why a field is locked is told.
  const QString why = text_of(control_.why_locked);
  const QString tip =
      why.isEmpty()
          ? with_keys(text_of(ui::without_access_key(screen_.caption(control_))), control_.shortcut)
          : why;
  if (shown_widget->toolTip() != tip) shown_widget->setToolTip(tip);
}

std::unique_ptr<Binding> make_binding(ui::Screen& screen, ui::Control& control, QWidget* parent,
                                      Hand hand) {
  return kMakers[static_cast<std::size_t>(control.kind)](screen, control, parent, std::move(hand));
}

}  // namespace desktop
