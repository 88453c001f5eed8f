#pragma once
// The front end without windows: a script is the person, a transcript is the screen.
//
// The program runs on `start` and, whenever it waits for the person, the next command of the script
// is carried out on the window on top; so a window opened by a handler reads on from the same
// script until it is closed, and only then the handler goes on. The end of the script with windows
// open ends the run as a killed program ends: nothing more is asked, shown or saved.

#include <functional>
#include <istream>
#include <ostream>

#include "platform/ports.h"
#include "ui/printer.h"
#include "ui/windows.h"

namespace headless {

/// The doors to a person; everything else of the program's world is the caller's.
struct Doors {
  ui::Windows& windows;
  platform::HelpViewer& help;
  ui::Printer& printer;
};

/// Runs the program until its last window is closed; called once for each `start`.
using Program = std::function<void(const Doors&)>;

enum class Status {
  kDone = 0,
  kExpectFailed = 1,
  kCannot = 2,  ///< a command could not be carried out
};

/// What printing comes to after the print dialog.
enum class Paper {
  kPrinted,
  kFails,      ///< the queue takes nothing
  kNoPrinter,  ///< and there is no dialog
};

struct Options {
  Paper paper = Paper::kPrinted;
};

/// Plays the script. The reason of a failure is the transcript's last line, and is also handed to
/// `error` with its line number. A transcript that cannot be written ends the run (kCannot).
[[nodiscard]] Status run_session(std::istream& script, std::ostream& transcript,
                                 std::ostream& error, const Program& program,
                                 const Options& options = {});

}  // namespace headless
