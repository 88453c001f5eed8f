// Any bytes are read as an observation file; each observation, written and read again, is the same,
// and both encoders survive it.

#include <algorithm>

#include "fuzz.h"
#include "observation/logbook_encoder.h"
#include "observation/observation_file.h"
#include "observation/report_encoder.h"
#include "observation/report_reader.h"

namespace {

using observation::ObservationReader;
using Step = ObservationReader::Step;

/// A call sign that an observation may hold, in an otherwise plain report: the report is read
/// whole.
void check_call_sign(const std::string& call_sign) {
  if (call_sign.empty()) return;
  Struct_Weather record({}, {});
  record.CallSign = call_sign;
  record.YY = "15";
  record.GG = "12";
  record.LaDeg = "35";
  record.LaMin = "42";
  std::string message;
  std::string missing;
  observation::encode_report(record, message, missing, true, text::Language::kEnglish);
  std::string expected = record.call_sign_for_report();
  std::replace(expected.begin(), expected.end(), '*', '/');
  const auto report = observation::read_report(message, Struct_Weather({}, {}));
  fuzz::expect(report.has_value() && report->unplaced.empty(), "a report is read whole", message);
  fuzz::expect(report->record.CallSign == expected && report->record.LaDeg == "35",
               "every word is what it was", message, report->record.CallSign);
}

void check(const ObservationReader& reader) {
  const Struct_Weather& record = reader.record();
  std::string lines;
  observation::write_observation(lines, record, Struct_Weather(reader.ship(), reader.items()));
  ObservationReader again(reader.ship(), reader.items());
  for (std::size_t at = 0; at < lines.size();) {
    const auto end = lines.find('\n', at);
    fuzz::expect(again.take(std::string_view(lines).substr(at, end - at)) == Step::kMore,
                 "a written line is accepted", lines);
    at = end + 1;
  }
  if (!lines.empty()) {
    fuzz::expect(again.finish() == Step::kObservation, "written lines are an observation", lines);
    fuzz::expect(again.record() == record, "what was written reads back", lines);
  }

  check_call_sign(record.CallSign);

  std::string message;
  std::string missing;
  fuzz::expect(
      observation::encode_report(record, message, missing, true, text::Language::kJapanese) == 0,
      "the report encoder succeeds");
  fuzz::expect(message.ends_with(" .....") && message.find('*') == std::string::npos,
               "a report ends in full stops and holds no mask", message);
  const std::string line = observation::encode_logbook(record, reader.ship(), reader.items());
  fuzz::expect(line.size() <= observation::kLogbookColumns &&
                   line.size() >= observation::kLogbookColumns - 1,
               "a logbook line has its columns", line);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  ObservationReader reader;
  std::string_view rest = input.text();
  for (bool more = true; more;) {
    const auto end = rest.find('\n');
    more = end != std::string_view::npos;
    const Step step = reader.take(rest.substr(0, end));
    if (step == Step::kError) {
      fuzz::expect(reader.error().line > 0, "an error has its line");
      return 0;
    }
    if (step == Step::kObservation) check(reader);
    if (more) rest.remove_prefix(end + 1);
  }
  if (reader.finish() == Step::kObservation) check(reader);
  return 0;
}
