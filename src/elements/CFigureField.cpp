#include "elements/CFigureField.h"

#include "text/numbers.h"
#include "text/strings.h"

CFigureField::CFigureField(ui::Services& services, ui::Control& field, int lowest, int highest,
                           int digits, text::Id message)
    : services_(services),
      field_(field),
      lowest_(lowest),
      highest_(highest),
      digits_(digits),
      message_(message) {
  field_.on_leave = [this] { return check(); };
}

void CFigureField::open(const std::string& value) {
  field_.set(value);
  if (const std::string padded = figures(); !padded.empty()) field_.set(padded);
  opened_with_ = field_.content;
}

std::optional<int> CFigureField::number() const {
  return text::whole_number(field_.content, lowest_, highest_);
}

std::string CFigureField::figures() const {
  const std::optional<int> value = number();
  return value ? text::format_digits(*value, digits_) : std::string();
}

bool CFigureField::check() {
  // What was there before nobody typed here: it keeps nobody in the field, and OK judges it.
  if (text::trim(field_.content).empty() || field_.content == opened_with_) return true;
  const std::string padded = figures();
  if (padded.empty()) {
    services_.messages.error(message_);
    return false;
  }
  field_.set(padded);
  return true;
}
