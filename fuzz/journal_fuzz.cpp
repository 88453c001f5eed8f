// The note of an interrupted save from any bytes: it is refused, or is what this program writes and
// names nothing outside its folders; whatever then lies in the logbook, a repair is decided on.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "observation/save_journal.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const auto journal = observation::read_journal(text);
  if (journal) {
    if (observation::write_journal(*journal) != text) std::abort();
    if (!observation::is_report_name(journal->report)) std::abort();
    if (journal->staged.find_first_of("\\/:") != std::string::npos) std::abort();
  }
  // A checksum is hard to guess, so the same bytes also say what was noted and what was found.
  observation::Journal made;
  made.folder = "C:\\tlx\\";
  made.report = "14111512.tlx";
  made.staged = ".kavrel-1-0.part";
  const std::string_view all(text);
  const std::size_t half = size / 2;
  if (half == 0) return 0;  // a save always appends something
  made.log_size = half;
  made.appended = all.substr(0, half);
  made.content = observation::mark_of(all.substr(half));
  const auto read = observation::read_journal(observation::write_journal(made));
  if (!read || !(*read == made)) std::abort();
  const auto line = observation::line_found(made, made.log_size + (size - half), all.substr(half));
  for (const bool report : {false, true}) {
    for (const bool staged : {false, true}) {
      const auto repair = observation::decide({line, report, staged});
      // Nothing is finished for a line that is not whole, and nothing foreign is cut off.
      if (repair == observation::Repair::kFinish && line != observation::LineFound::kLast &&
          line != observation::LineFound::kFollowed)
        std::abort();
      if (repair == observation::Repair::kTakeBack && line == observation::LineFound::kForeign)
        std::abort();
    }
  }
  return 0;
}
