#include "headless/session.h"

#include "headless/script_windows.h"
#include "text/reasons.h"

namespace headless {
namespace {

// Between two runs there is no window: only `start` makes sense.
void play(ScriptWindows& windows, const Program& program) {
  for (;;) {
    const Line line = windows.next_command();
    if (line.verb() != "start")
      windows.stop(line, Status::kCannot, "the program is not running: start it first");
    try {
      program({windows, windows, windows});
    } catch (const EndOfRun&) {
      throw;
    } catch (...) {
      windows.stop(line, Status::kCannot,
                   "the program failed: " +
                       text::reason_of(std::current_exception(), text::Language::kEnglish));
    }
    windows.say("the program has ended");
  }
}

}  // namespace

Status run_session(std::istream& script, std::ostream& transcript, std::ostream& error,
                   const Program& program, const Options& options) {
  ScriptWindows windows(script, transcript, error, options);
  try {
    play(windows, program);
  } catch (const EndOfRun& end) {
    transcript.flush();
    return end.status;
  }
  return Status::kDone;
}

}  // namespace headless
