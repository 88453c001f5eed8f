#include "mainwindow/entry_messages.h"

namespace mainwindow {

using elements::Answer;

std::string worded(const elements::Notice& notice, const text::Texts& texts) {
  return text::fill(texts.get(notice.message), {notice.bounds[0], notice.bounds[1]});
}

bool settle(ui::Messages& messages, const text::Texts& texts,
            const std::function<Answer(elements::Confirmed)>& take) {
  for (elements::Confirmed confirmed = 0;; ++confirmed) {
    const Answer answer = take(confirmed);
    const elements::Notice& notice = answer.notice;
    switch (answer.kind) {
      case Answer::Kind::kAccepted:
        return true;
      case Answer::Kind::kRefused:
        messages.error_filled(notice.message, {notice.bounds[0], notice.bounds[1]},
                              texts.get(text::Ref{notice.below, 0}));
        return false;
      case Answer::Kind::kAsks:
        if (messages.question(notice.message, ui::QuestionMode::kYesNo) != ui::kYes) return false;
    }
  }
}

}  // namespace mainwindow
