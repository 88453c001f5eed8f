#pragma once
// What a screen needs of the world, handed to its constructor.

#include "platform/ports.h"
#include "text/help.h"
#include "text/messages.h"
#include "text/texts.h"

namespace ui {

struct Services {
  platform::Clock& clock;
  platform::Locale& locale;
  platform::Drives& drives;
  platform::Files& files;
  platform::CodePage& code_page;
  platform::Printer& printer;
  platform::Windows& windows;
  text::Texts& texts;
  text::Messages& messages;
  text::HelpLauncher& help;
};

}  // namespace ui
