#pragma once
// The last place that an exception can reach in the desktop program: what is thrown outside any
// event of a window, while the program starts or ends.

#include <functional>

#include "app/CVelmaranApp.h"

namespace desktop {

/// Exit status of a program that had to end, like that of wrong options.
inline constexpr int kHadToEnd = 2;

/// The status of the run, or kHadToEnd once the person has been told why.
int told_when_it_fails(const std::function<int()>& run, ui::Messages& messages,
                       const text::Texts& texts);

int run_program(app::CVelmaranApp& program);

}  // namespace desktop
