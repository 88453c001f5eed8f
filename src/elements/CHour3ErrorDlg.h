#pragma once
// Warnings about the ship's position and its movement over the last three hours.

#include <functional>
#include <string>

#include "ui/dialog.h"

class CHour3ErrorDlg : public ui::OkDialog {
 public:
  CHour3ErrorDlg(ui::Services& services, const std::string& warnings);

  /// Runs the screen when there is something to tell. `hide_busy_notice` takes away a busy notice
  /// that is still showing, after a pause of one second in which it can be read; leave it empty
  /// when there is none.
  static void show(ui::Services& services, const std::string& warnings,
                   const std::function<void()>& hide_busy_notice = {});

  ui::Memo warnings;
};
