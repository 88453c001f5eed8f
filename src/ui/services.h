#pragma once
// What a screen needs of the world, handed to its constructor.

#include "platform/ports.h"
#include "text/help.h"
#include "text/texts.h"
#include "ui/messages.h"
#include "ui/printer.h"
#include "ui/windows.h"

namespace ui {

struct Services {
  platform::Clock& clock;
  platform::Locale& locale;
  platform::Drives& drives;
  platform::Files& files;
  platform::CodePage& code_page;
  ui::Printer& printer;
  ui::Windows& windows;
  text::Texts& texts;
  ui::Messages& messages;
  text::HelpLauncher& help;
  /// A full field of fixed width moves on by itself (Control::moves_on_when_full); the officer may
  /// have switched that off.
  bool moves_on = true;
};

}  // namespace ui
