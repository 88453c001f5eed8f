#include "cli/observations.h"

#include <iostream>

#include "observation/control_characters.h"
#include "text/numbers.h"

namespace cli {
namespace {

using observation::ObservationError;
using observation::ObservationFault;
using observation::ObservationReader;
using Step = ObservationReader::Step;

std::string reason_of(const ObservationError& error) {
  const std::string name = "\"" + error.name + "\"";
  switch (error.fault) {
    case ObservationFault::kNoEquals:
      return name + " is no line NAME=VALUE";
    case ObservationFault::kUnknownName:
      return "unknown name " + name;
    case ObservationFault::kBadNumber:
      return "the value of " + name + " is not a number";
    case ObservationFault::kNotStorable:
      return "the value of " + name + " cannot be stored";
    case ObservationFault::kLineTooLong:
      return "the line is longer than " + std::to_string(observation::kLongestLine) + " bytes";
    case ObservationFault::kRecordTooLong:
      return "the observation is longer than " + std::to_string(observation::kLongestBlock) +
             " bytes";
  }
  return "wrong";
}

// The reader lets no control character into a field; asked again all the same, for a torn record
// would be found by nobody.
std::optional<std::string> control_character(const ObservationReader& observed) {
  const auto field = observation::control_character_field(observed.record(), observed.ship());
  if (!field) return std::nullopt;
  return "the value of \"" + std::string(*field) + "\" holds a control character";
}

bool go_through(Input& input, const Use& use) {
  ObservationReader reader;
  std::string line;
  for (std::size_t number = 1;; ++number) {
    const Input::Line what = input.next(line, observation::kLongestLine);
    if (what == Input::Line::kUnreadable) {
      complain(input, number, "cannot be read");
      return false;
    }
    const bool last = what == Input::Line::kEnd;
    const Step step = last ? reader.finish() : reader.take(line);
    if (step == Step::kError) {
      complain(input, reader.error().line, shown(reason_of(reader.error())));
      return false;
    }
    if (step == Step::kObservation) {
      auto refused = control_character(reader);
      if (!refused) refused = use(reader);
      if (refused) {
        complain(input, reader.first_line(), *refused);
        return false;
      }
    }
    if (last) return true;
  }
}

}  // namespace

std::string shown(std::string_view text) {
  constexpr char kHex[] = "0123456789ABCDEF";
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7f) {
      result.push_back(c);
    } else {
      result.append("\\x");
      result.push_back(kHex[byte >> 4U]);
      result.push_back(kHex[byte & 15U]);
    }
  }
  return result;
}

std::string date_reason(const observation::DateFault& fault) {
  const auto shown = [&](int number) {
    return text::format_digits(number, static_cast<int>(fault.figures));
  };
  return "Year, Month, YY and GG are no date and hour: " + std::string(fault.field) + " is " +
         std::to_string(fault.figures) + " figures, " + shown(fault.low) + " to " +
         shown(fault.high);
}

void complain(const Input& input, std::size_t line, const std::string& reason) {
  std::cerr << "kavrel-cli: " << input.name();
  if (line > 0) std::cerr << ":" << line;
  std::cerr << ": " << reason << "\n";
}

bool for_each_observation(Input& input, const Use& check, const Use& use) {
  if (!input.problem().empty()) {
    complain(input, 0, input.problem());
    return false;
  }
  if (input.can_rewind()) {
    if (!go_through(input, check)) return false;
    input.rewind();
  }
  return go_through(input, [&](const ObservationReader& reader) {
    // What cannot be read twice is checked as it comes, and what can may have changed since.
    const auto refused = check(reader);
    return refused ? refused : use(reader);
  });
}

}  // namespace cli
