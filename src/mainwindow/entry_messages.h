#pragma once
// Tells the officer what the form answers to an entry, and asks him what it asks.

#include <functional>
#include <string>

#include "elements/form/answer.h"
#include "text/texts.h"
#include "ui/messages.h"

namespace mainwindow {

/// The notice in the language of the moment, without its second line.
[[nodiscard]] std::string worded(const elements::Notice& notice, const text::Texts& texts);

/// Hands an entry in, as `take` does, shows why it is refused, and hands it in again after each
/// question that is answered Yes. True when it was accepted.
bool settle(ui::Messages& messages, const text::Texts& texts,
            const std::function<elements::Answer(elements::Confirmed)>& take);

}  // namespace mainwindow
