// A draft from any bytes, as they are and with the checksum that they should have: what is read
// encodes to the same bytes, and a form that takes it over works, goes on, and can be kept again.

#include "elements/form/draft.h"

#include <cstdio>
#include <string>

#include "elements/form/observation_form.h"
#include "fakes/sample_ship.h"
#include "fuzz.h"

namespace {

class StoppedClock : public platform::Clock {
 public:
  [[nodiscard]] platform::DateTime local() const override { return {2014, 11, 15, 11, 50, 0}; }
  [[nodiscard]] platform::DateTime utc() const override { return local(); }
};

std::string with_checksum(std::string_view body) {
  std::uint32_t rest = 0xFFFFFFFFU;
  for (const char c : body) {
    rest ^= static_cast<unsigned char>(c);
    for (int i = 0; i < 8; ++i) rest = (rest >> 1U) ^ (0xEDB88320U & (0U - (rest & 1U)));
  }
  char figures[9];
  std::snprintf(figures, sizeof figures, "%08X", ~rest);
  return std::string(body) + "check=" + figures + "\n";
}

void take_over(const elements::Draft& draft) {
  ShipFixedData ship = fakes::psychrometer_ship();
  ship.wind_input_method = WindInputMethod::kApparentWind;
  const KeyObservationItems items;
  const StoppedClock clock;
  elements::ObservationForm form(ship, items, clock);
  form.load(draft.form);
  elements::Draft taken = draft;  // it bears the ship's names, whatever the text says
  taken.form.record.CallSign = ship.call_sign;
  taken.form.record.ShipFixed = ship.imo_number;
  fuzz::expect(
      elements::encode_draft({draft.call_sign, draft.ship_mark, form.entries(), draft.typing_in,
                              draft.group_text, draft.correction}) == elements::encode_draft(taken),
      "a form holds what it took over");
  form.ship_changed();
  form.items_changed();
  for (std::size_t i = 0; i < elements::kFields; ++i)
    (void)form.leave(static_cast<elements::Field>(i));
  fuzz::expect(form.report().text.ends_with(" ....."), "a report ends in full stops",
               form.report().text);
  (void)form.remarks();
  const std::string again =
      elements::encode_draft({ship.call_sign, elements::ship_mark(ship), form.entries(), {}, {}});
  fuzz::expect(elements::decode_draft(again).fault == elements::DraftFault::kNone,
               "a form that took a draft over can be kept again", again);
}

void check(std::string_view text) {
  const elements::DraftRead read = elements::decode_draft(text);
  if (read.fault != elements::DraftFault::kNone) return;
  fuzz::expect(elements::encode_draft(read.draft) == text, "what was read encodes to the same",
               text);
  take_over(read.draft);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  check(input.text());
  // Without it nothing but kept drafts would get past the checksum.
  const auto body = input.text().substr(0, input.text().rfind("check="));
  check(with_checksum(body));
  return 0;
}
