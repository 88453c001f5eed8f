#include "explain/log/identity_check.h"

#include <utility>

#include "text/strings.h"

namespace explain {
namespace {

using enum IdentityFault;

bool is_call_sign(std::string_view text) {
  return text.find_first_not_of('*') != std::string_view::npos;
}

}  // namespace

// What is found of the IMO numbers of a call sign, and of the call signs of an IMO number.
struct IdentityCheck::Kinds {
  IdentityFault other, changed, changed_again;
};
constexpr IdentityCheck::Kinds IdentityCheck::kImoNumbers{kOtherImoNumber, kImoNumberChanged,
                                                          kImoNumberChanged};
constexpr IdentityCheck::Kinds IdentityCheck::kCallSigns{kOtherCallSign, kCallSignChanged,
                                                         kCallSignChangedAgain};

bool is_sound_imo_number(std::string_view number) {
  constexpr std::size_t kFigures = 7;
  constexpr int kTen = 10;
  if (number.size() != kFigures || !text::is_all_digits(number)) return false;
  int sum = 0;
  int weight = kFigures;
  for (const char figure : number.substr(0, kFigures - 1)) sum += weight-- * (figure - '0');
  return sum % kTen == number.back() - '0';
}

IdentityCheck::IdentityCheck(std::size_t most_ships)
    : of_call_sign_(most_ships), of_imo_number_(most_ships) {}

void IdentityCheck::take(const Struct_Weather& record, const std::function<PassedLine()>& passed,
                         const Found& found) {
  const std::string& call_sign = record.CallSign;
  const std::string& imo_number = record.ShipFixed;
  if (!is_call_sign(call_sign)) return;
  Settled& of_call_sign = of_call_sign_.of(call_sign);
  ++of_call_sign.lines;
  ++lines_;
  if (!imo_number.empty()) {
    settle(of_call_sign, call_sign, imo_number, kImoNumbers, passed, found);
    settle(of_imo_number_.of(imo_number), imo_number, call_sign, kCallSigns, passed, found);
  }
  take_run(call_sign, imo_number, passed, found);
}

// The first value holds until more than a few lines have another one, one after the other.
void IdentityCheck::settle(Settled& settled, const std::string& key, const std::string& value,
                           const Kinds& kinds, const std::function<PassedLine()>& passed,
                           const Found& found) {
  if (settled.value.empty()) settled.value = value;
  if (value != settled.value && (settled.few.empty() || value == settled.other)) {
    settled.other = value;
    settled.few.push_back(passed());
    if (settled.few.size() > kFewLines) tell_change(settled, key, kinds, found);
    return;
  }
  if (settled.few.empty()) return;
  for (const PassedLine& line : settled.few)
    found({kinds.other, line, settled.other, settled.value, key});
  settled.few.clear();
  settle(settled, key, value, kinds, passed, found);
}

void IdentityCheck::tell_change(Settled& settled, const std::string& key, const Kinds& kinds,
                                const Found& found) {
  found({settled.has_changed ? kinds.changed_again : kinds.changed, settled.few.front(),
         settled.other, settled.value, key});
  settled.has_changed = true;
  settled.value = settled.other;
  settled.few.clear();
}

// A few lines of a ship that no other line is of, among many of another one.
void IdentityCheck::take_run(const std::string& call_sign, const std::string& imo_number,
                             const std::function<PassedLine()>& passed, const Found& found) {
  if (call_sign == run_.call_sign) {
    if (run_.first.size() < kFewLines) run_.first.push_back(passed());
    // The log may begin with them.
    if (++run_.lines == kManyLines && is_strange(run_before_, run_) && are_all(run_before_, run_))
      tell_strange(run_before_, run_, found);
    return;
  }
  if (call_sign == run_before_.call_sign && is_strange(run_, run_before_)) {
    tell_strange(run_, run_before_, found);
    std::swap(run_, run_before_);
    run_before_ = {};
    ++run_.lines;
    return;
  }
  run_before_ = std::exchange(run_, {call_sign, imo_number, 1, {passed()}});
}

bool IdentityCheck::is_strange(const Run& few, const Run& many) {
  return few.lines > 0 && few.lines <= kFewLines && many.lines >= kManyLines &&
         (few.imo_number.empty() || few.imo_number != many.imo_number) &&
         of_call_sign_.of(few.call_sign).lines == few.lines;
}

// Where the logs of a fleet stand behind each other, a ship may have few lines.
bool IdentityCheck::are_all(const Run& few, const Run& many) {
  return of_call_sign_.of(many.call_sign).lines + few.lines == lines_;
}

void IdentityCheck::tell_strange(const Run& few, const Run& many, const Found& found) {
  for (const PassedLine& line : few.first)
    found({kOtherShip, line, few.call_sign, many.call_sign, {}});
}

void IdentityCheck::finish(const Found& found) {
  for (auto& [call_sign, settled] : of_call_sign_.all())
    if (!settled.few.empty()) tell_change(settled, call_sign, kImoNumbers, found);
  for (auto& [imo_number, settled] : of_imo_number_.all())
    if (!settled.few.empty()) tell_change(settled, imo_number, kCallSigns, found);
  if (is_strange(run_, run_before_) && are_all(run_, run_before_))
    tell_strange(run_, run_before_, found);
  run_ = run_before_ = {};
}

}  // namespace explain
