#pragma once
// A list whose lines are those of a report in plain words.

#include <vector>

#include "explain/plain/plain_words.h"
#include "ui/control.h"

namespace explain {

/// Puts the lines into the list, those that are better looked at again set apart; none is selected.
void put_lines(ui::Control& list, const std::vector<PlainLine>& lines);

}  // namespace explain
