#include "ui/messages.h"

#include <utility>

#include "text/ids.h"
#include "text/reasons.h"

namespace id = text::id;

namespace ui {
namespace {

constexpr std::string_view kTitle = "KAVREL for WIN";
// Spelt otherwise on purpose.
constexpr std::string_view kTitle3 = "KAVREL for Win";

std::string or_default(std::string given, std::string_view otherwise) {
  return given.empty() ? std::string(otherwise) : std::move(given);
}

// Sets a flag for as long as a box is shown, and puts back what was there: boxes nest.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Raised() { flag_ = before_; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

CMessageBox1::CMessageBox1(std::string text, std::string yes, std::string no, std::string title)
    : box_{or_default(std::move(title), kTitle),
           std::move(text),
           {{or_default(std::move(yes), "&YES"), "yes", kYes},
            {or_default(std::move(no), "&NO"), "no", kNo}},
           kNo,
           {},
           Sign::kQuestion} {}

CMessageBox2::CMessageBox2(std::string text, std::string yes, std::string no, std::string cancel,
                           std::string title)
    : box_{or_default(std::move(title), kTitle),
           std::move(text),
           {{std::move(yes), "yes", kOk},
            {std::move(no), "no", kNo},
            {std::move(cancel), "cancel", kCancel}},
           kCancel,
           {},
           Sign::kQuestion} {}

CMessageBox3::CMessageBox3(std::string text, std::string yes, std::string no, std::string title)
    : box_{or_default(std::move(title), kTitle3),
           std::move(text),
           {{or_default(std::move(no), "&NO"), "no", kNo},
            {or_default(std::move(yes), "&YES"), "yes", kYes}},
           kNo,
           {},
           Sign::kQuestion} {}

// The one road of all that is shown.
int Messages::show_box(const MessageBox& box) {
  ++told_;
  return windows_.show_message(box);
}

// The one road of every notice.
void Messages::notice(std::string title, std::string shown, text::Id id, Sign sign) {
  if (quiet) return;
  show_box({std::move(title), std::move(shown), {{"OK", "ok", kOk}}, kOk, id, sign});
}

std::string Messages::filled(text::Id id, std::initializer_list<std::string_view> arguments,
                             std::string_view below) const {
  std::string shown = text::fill(texts_.get(id), arguments);
  if (!below.empty()) shown.append("\n").append(below);
  return shown;
}

std::string Messages::words_of(text::Id id, std::string_view literal) const {
  std::string shown(id ? texts_.get(id) : literal);
  if (shown.empty() && !id) shown = texts_.get(id::kCheckError);
  return shown;
}

void Messages::error(text::Id id, std::string_view literal) {
  notice(std::string(kTitle), words_of(id, literal), id, Sign::kWarning);
}

void Messages::error_titled(text::Id id, text::Id title) {
  notice(std::string(texts_.get(title)), std::string(texts_.get(id)), id, Sign::kWarning);
}

void Messages::error_filled(text::Id id, std::initializer_list<std::string_view> arguments,
                            std::string_view below) {
  notice(std::string(kTitle), filled(id, arguments, below), id, Sign::kWarning);
}

void Messages::information(text::Id id, std::string_view literal) {
  notice(std::string(kTitle), words_of(id, literal), id, Sign::kInformation);
}

void Messages::information_filled(text::Id id, std::initializer_list<std::string_view> arguments,
                                  std::string_view below) {
  notice(std::string(kTitle), filled(id, arguments, below), id, Sign::kInformation);
}

void Messages::error_filled_once(text::Id id, std::initializer_list<std::string_view> arguments) {
  if (!quiet && told_once_.insert(id).second) error_filled(id, arguments);
}

void Messages::file_error(text::Id id, std::string_view path, platform::FileError why) {
  error_filled(id, {path, texts_.get(text::reason_of(why))});
}

int Messages::question(std::string_view text, std::string_view title, QuestionMode mode,
                       text::Id text_id) {
  const bool english = texts_.language == text::Language::kEnglish;
  const auto label = [&](text::Id id) { return std::string(texts_.get(id)); };
  const Raised open(question_open);
  switch (mode) {
    case QuestionMode::kOkCancel: {
      // No slip: the English button says OK, the Japanese one Yes.
      CMessageBox1 box(std::string(text), english ? "OK" : label(id::kButtonYes),
                       label(id::kButtonCancel), std::string(title));
      box.box().buttons[0].name = "ok";
      box.box().buttons[1].name = "cancel";
      box.box().text_id = text_id;
      return show(box) == kYes ? kOk : kCancel;
    }
    case QuestionMode::kYesNoCancel: {
      CMessageBox2 box(std::string(text), label(id::kButtonYes), label(id::kButtonNo),
                       label(id::kButtonCancel), std::string(title));
      box.box().text_id = text_id;
      return show(box);
    }
    case QuestionMode::kYesNo: {
      CMessageBox1 box(std::string(text), label(id::kButtonYes), label(id::kButtonNo),
                       std::string(title));
      box.box().text_id = text_id;
      return show(box);
    }
  }
  return 0;
}

int Messages::show(const CMessageBox1& box) {
  const Raised open(message_box_open);
  return show_box(box.box());
}

int Messages::show(const CMessageBox2& box) {
  return show_box(box.box());
}

int Messages::show(const CMessageBox3& box) {
  return show_box(box.box());
}

}  // namespace ui
