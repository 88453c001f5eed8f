#include "mainwindow/copy_messages.h"

#include "text/ids.h"
#include "text/numbers.h"
#include "text/reasons.h"

namespace mainwindow {

namespace id = text::id;
using media::CopyOutcome;

bool CopyMessages::wants(text::Id question, std::initializer_list<std::string_view> arguments) {
  const text::Texts& texts = services_.texts;
  return services_.messages.question(text::fill(texts.get(question), arguments),
                                     texts.get(id::kExitQuestionTitle), ui::QuestionMode::kYesNo,
                                     question) == ui::kYes;
}

int CopyMessages::wants_or_end(text::Id question,
                               std::initializer_list<std::string_view> arguments) {
  const text::Texts& texts = services_.texts;
  return services_.messages.question(text::fill(texts.get(question), arguments),
                                     texts.get(id::kExitQuestionTitle),
                                     ui::QuestionMode::kYesNoCancel, question);
}

ForAll CopyMessages::ask_for_all(const std::string& question, text::Id question_id, text::Id yes) {
  const text::Texts& texts = services_.texts;
  ui::CMessageBox2 box(
      question, std::string(texts.get(yes)), std::string(texts.get(id::kButtonKeepAll)),
      std::string(texts.get(id::kButtonAskEach)), std::string(texts.get(id::kExitQuestionTitle)));
  box.box().buttons[0].name = "all";
  box.box().buttons[1].name = "none";
  box.box().buttons[2].name = "each";
  box.box().text_id = question_id;
  switch (services_.messages.show(box)) {
    case ui::kOk:
      return ForAll::kYes;
    case ui::kNo:
      return ForAll::kNo;
    default:
      return ForAll::kEach;
  }
}

int CopyMessages::ask_about_faults(const explain::Summary& found) {
  const text::Texts& texts = services_.texts;
  const auto number = [](std::uint64_t n) { return text::format_int(static_cast<long long>(n)); };
  ui::CMessageBox2 box(
      text::fill(texts.get(id::kAskCopyFaulty),
                 {number(found.with_errors()), number(found.with_doubts()), number(found.lines())}),
      std::string(texts.get(id::kShowFaults)), std::string(texts.get(id::kCopyFaulty)),
      std::string(texts.get(id::kButtonCancel)), std::string(texts.get(id::kExitQuestionTitle)));
  box.box().buttons[0].name = "show";
  box.box().buttons[1].name = "copy";
  box.box().text_id = id::kAskCopyFaulty;
  return services_.messages.show(box);
}

void CopyMessages::told(text::Id message, const std::string& path, text::Id reason) {
  const text::Texts& texts = services_.texts;
  services_.messages.error_filled(
      message, {}, text::fill(texts.get(id::kFileAndReason), {path, texts.get(reason)}));
}

void CopyMessages::told(text::Id message, const std::string& path, platform::FileError why) {
  told(message, path, text::reason_of(why));
}

void CopyMessages::failed(text::Id message, const media::CopyResult& result) {
  if (result.outcome == CopyOutcome::kDiffers)
    told(message, result.failed, id::kReasonReadBackDiffers);
  else
    told(message, result.failed, result.error);
}

void CopyMessages::not_removed(const std::string& source, const std::string& reason) {
  services_.messages.error_filled(id::kSourceNotDeleted, {source, reason});
}

void CopyMessages::not_removed(const std::string& source, const media::CopyResult& result) {
  const text::Texts& texts = services_.texts;
  if (result.outcome == CopyOutcome::kDone) return;
  std::string reason(texts.get(result.outcome == CopyOutcome::kFailed
                                   ? text::reason_of(result.error)
                                   : id::kReasonNotTheCopy));
  // The copy may be what could not be read.
  if (!result.failed.empty() && result.failed != source && result.outcome == CopyOutcome::kFailed)
    reason.insert(0, result.failed + ": ");
  not_removed(source, reason);
}

}  // namespace mainwindow
