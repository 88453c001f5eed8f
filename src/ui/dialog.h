#pragma once
// The buttons that close a dialog, once for all of them. A dialog takes one of the three for its
// base and has them as `ok`, `cancel` and `help`, behind all controls of its own; what they do is
// told by their role (Screen::on_ok, on_cancel and on_help).

#include "ui/screen.h"

namespace ui {

/// A notice that is only read.
class OkDialog : public Screen {
 public:
  OkDialog(Services& services, std::string_view class_name, text::Ref title);
  Button ok;
};

/// An entry that can be taken back.
class OkCancelDialog : public OkDialog {
 public:
  OkCancelDialog(Services& services, std::string_view class_name, text::Ref title);
  Button cancel;
};

/// The same with a help topic of its own.
class OkCancelHelpDialog : public OkCancelDialog {
 public:
  OkCancelHelpDialog(Services& services, std::string_view class_name, text::Ref title);
  Button help;
};

}  // namespace ui
