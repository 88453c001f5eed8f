#pragma once
// Fills a list or drop-down with the computer's drives.

#include <string>
#include <string_view>

#include "platform/ports.h"
#include "ui/control.h"

class CDrvListBox {
 public:
  /// Both must outlive this object.
  CDrvListBox(ui::Control& list, const platform::Drives& drives) : list_(list), drives_(drives) {}

  /// Lines "A:\", "C:\" …, remote and CD-ROM drives marked; the choice is kept when its drive is
  /// still there.
  void fill();
  /// Chooses the drive that the path lies on, or none.
  void select(std::string_view path);
  /// Root of the chosen drive ("C:\"), empty when none is.
  [[nodiscard]] std::string root() const { return list_.selected_text(); }

 private:
  ui::Control& list_;
  const platform::Drives& drives_;
};
