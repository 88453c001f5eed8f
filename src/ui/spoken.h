#pragma once
// What a screen reader says of a control: what it is called, and what there is to know of it that
// is shown by a colour alone.

#include <map>
#include <string>
#include <vector>

#include "ui/plan.h"

namespace ui {

/// For each control of the plan the labels that are the titles of the groups around it, the
/// outermost first; those without a titled group are not in it.
using Titles = std::map<const Control*, std::vector<const Control*>>;
[[nodiscard]] Titles titles_of(const Screen& screen, const Plan& plan);

/// Group, caption and unit, in the language of the moment and without access keys; the screen's
/// title where there is none of them. A label, and a button that closes the screen, is called by
/// its caption alone.
[[nodiscard]] std::string spoken_name(const Screen& screen, const Control& control,
                                      const std::vector<const Control*>& titles);

/// What its mark says, and why it is locked; empty when there is nothing to say.
[[nodiscard]] std::string spoken_state(const Screen& screen, const Control& control);

}  // namespace ui
