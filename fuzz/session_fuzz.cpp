// Any bytes are played as a session of the whole program, in a world of fakes. Whatever the script
// does, the run ends by the rules of sessions, and what lies on C: afterwards is whole: every
// report, every line of the logbook, the ship's files.

#include <algorithm>
#include <sstream>
#include <string>

#include "app/CVelmaranApp.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"
#include "fuzz.h"
#include "headless/session.h"
#include "observation/logbook_encoder.h"
#include "observation/report_file.h"
#include "ship/data/ship_files.h"
#include "text/strings.h"

namespace {

/// A start builds the whole program, so a script of nothing but starts would take its time.
constexpr int kMostLines = 64;
/// A script that begins so finds a computer on which the program never ran.
constexpr std::string_view kFirstStart = "# first start";

std::string_view bounded(std::string_view script) {
  std::size_t end = 0;
  for (int lines = 0; lines < kMostLines && end != std::string_view::npos; ++lines)
    end = script.find('\n', end == 0 ? 0 : end + 1);
  return script.substr(0, end);
}

struct World {
  fakes::FakeFiles files;
  fakes::FakeClock clock;
  fakes::FakeLocale locale;
  fakes::FakeDrives drives;
  fakes::FakeCodePage code_page;

  explicit World(bool first_start) {
    files.add_file("C:\\program\\kavrel.ini", "[KAVREL]\nLANG=JPN\nTLX=\nLOG=\n");
    if (first_start) return;
    files.add_folder("C:\\tlx");
    files.add_folder("C:\\log");
    files.add_file("C:\\kavrel\\kavrel.ini", "[KAVREL]\nLANG=JPN\nTLX=C:\\tlx\\\nLOG=C:\\log\\\n");
    ShipFixedData ship = fakes::sample_ship();
    ship.card = fakes::total_card();
    files.add_file("C:\\kavrel\\file\\FIXDATA.DAT",
                   encode_fixed_data(ship, clock.local(), code_page));
    files.add_file("C:\\kavrel\\file\\MOKSDATA.DAT", encode_key_items({}));
  }

  headless::Status play(std::string_view script, std::ostream& transcript, std::ostream& error) {
    std::istringstream in{std::string(script)};
    const auto program = [this](const headless::Doors& doors) {
      app::CVelmaranApp app(
          {clock, locale, drives, files, code_page, doors.printer, doors.windows, doors.help});
      (void)app.run();
    };
    return headless::run_session(in, transcript, error, program);
  }
};

void check_logbook(std::string_view content) {
  while (!content.empty()) {
    const auto end = content.find('\n');
    fuzz::expect(end != std::string_view::npos, "the logbook ends in a whole line", content);
    const std::string_view line = content.substr(0, end);
    fuzz::expect(line.size() == observation::kLogbookColumns && !text::has_control(line),
                 "a line of the logbook has its columns", line);
    content.remove_prefix(end + 1);
  }
}

void check_files(const World& world) {
  for (const auto& [path, content] : world.files.snapshot()) {
    if (path.ends_with(observation::kReportExtension))
      fuzz::expect(content.starts_with("BBXX ") && content.ends_with(" .....") &&
                       !text::has_control(content),
                   "a report is whole", path, content);
    if (path.ends_with(observation::kLogbookName)) check_logbook(content);
    if (path.ends_with("FIXDATA.DAT"))
      fuzz::expect(decode_fixed_data(content, world.clock.utc(), world.code_page).has_value(),
                   "the ship's file can be read", content);
    if (path.ends_with("MOKSDATA.DAT"))
      fuzz::expect(decode_key_items(content).has_value(), "the items' file can be read", content);
  }
}

void check_transcript(headless::Status status, const std::string& transcript,
                      const std::string& error) {
  fuzz::expect(std::none_of(transcript.begin(), transcript.end(),
                            [](char c) { return c != '\n' && text::is_control(c); }),
               "a transcript upsets no terminal", transcript);
  const bool told = !error.empty();
  fuzz::expect(told == (status != headless::Status::kDone), "a failure is told, and nothing else",
               transcript, error);
  fuzz::expect(!told || transcript.ends_with("! " + error),
               "the reason is the transcript's last line", transcript, error);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  World world(input.text().starts_with(kFirstStart));
  std::ostringstream transcript;
  std::ostringstream error;
  const auto status = world.play(bounded(input.text()), transcript, error);
  check_transcript(status, transcript.str(), error.str());
  check_files(world);
  return 0;
}
