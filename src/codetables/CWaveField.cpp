#include "codetables/CWaveField.h"

#include <utility>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;
using codetables::CheckedWave;
using codetables::WaveCheck;

CWaveField::CWaveField(ui::Screen& owner, std::string_view control_name, text::Ref text,
                       const WaveFigure& figure)
    : Combo(owner, control_name, text, figure.largest), figure_(figure) {
  items = figure.lines(smallest());
  figures = true;
  moves_on_when_full = !figure.smallest;  // periods and directions; a height is a value in metres
}

// The line is figures and a sign, the same in both languages.
std::string CWaveField::smallest() const {
  if (!figure_.smallest) return {};
  return std::string(text::bilingual(figure_.smallest, text::Language::kEnglish));
}

void CWaveField::open(std::string given, std::string_view shown) {
  given_ = std::move(given);
  shown_ = shown;
  set(shown);
}

void CWaveField::say(const std::optional<std::string>& text) {
  if (enabled && text) {
    own_ = content;
    own_unchecked_ = unchecked;
  }
  if (text) {
    set(*text);
    unchecked = false;  // nothing that the person typed stands here
  } else if (!enabled) {
    set(own_);
    unchecked = own_unchecked_;
  }
  enabled = !text;
}

void CWaveField::set_own(std::string_view text) {
  own_ = text;
  own_unchecked_ = false;
  if (enabled) set(text);
}

bool CWaveField::check(ui::Messages& messages, text::Id number_title) {
  CheckedWave figure = figure_.check(content);
  switch (figure.check) {
    case WaveCheck::kNoNumber:
      messages.error_titled(id::kNotANumber, number_title);
      return false;
    case WaveCheck::kOutOfRange:
      messages.error_titled(figure_.out_of_range, id::kSwellRangeCaption);
      return false;
    case WaveCheck::kDoubted:
      if (figure.text != confirmed_ && !is_as_opened() &&
          messages.question(figure_.doubt, ui::QuestionMode::kYesNo) != ui::kYes)
        return false;
      confirmed_ = figure.text;
      break;
    case WaveCheck::kTaken:
      break;
  }
  if (figure_.smallest && figure.text == codetables::kSmallestHeight) figure.text = smallest();
  set(figure.text);
  return true;
}

std::optional<double> CWaveField::number() const {
  return text::number_at_start(figure_.check(content).text);
}

std::string CWaveField::value() const {
  if (is_as_opened()) return given_;
  if (figure_.smallest && content == smallest()) return std::string(codetables::kSmallestHeight);
  return std::string(text::trim(content));
}

CWaveBox::CWaveBox(ui::Screen& owner, std::string_view control_name, text::Ref text,
                   std::string_view says_instead)
    : Simple(owner, control_name, text), instead(says_instead) {}

void CWaveBox::set_own(bool ticked) {
  own_ = ticked;
  if (enabled) checked = ticked;
}

void CWaveBox::say(std::optional<bool> ticked) {
  checked = ticked.value_or(own_);
  enabled = !ticked;
}
