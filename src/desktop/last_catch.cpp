#include "desktop/last_catch.h"

#include <cstdio>

#include "text/ids.h"
#include "text/reasons.h"

namespace desktop {

int told_when_it_fails(const std::function<int()>& run, ui::Messages& messages,
                       const text::Texts& texts) {
  try {
    return run();
  } catch (...) {
    const std::exception_ptr thrown = std::current_exception();
    try {
      messages.error_filled(text::id::kProgramFailed, {text::reason_of(thrown, texts.language)});
    } catch (...) {
      // What ended the program may be that there is no memory for a message.
      std::fputs("kavrel: out of memory\n", stderr);
    }
    return kHadToEnd;
  }
}

int run_program(app::CVelmaranApp& program) {
  return told_when_it_fails([&] { return program.run(); }, program.services().messages,
                            program.services().texts);
}

}  // namespace desktop
