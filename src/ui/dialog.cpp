#include "ui/dialog.h"

#include "text/ids.h"

namespace id = text::id;

namespace ui {

OkDialog::OkDialog(Services& services, std::string_view class_name, text::Ref title)
    : Screen(services, class_name, title), ok(*this, "ok", {id::kOkLabel}, Role::kAccept) {}

OkCancelDialog::OkCancelDialog(Services& services, std::string_view class_name, text::Ref title)
    : OkDialog(services, class_name, title),
      cancel(*this, "cancel", {id::kCancelLabel}, Role::kDismiss) {}

OkCancelHelpDialog::OkCancelHelpDialog(Services& services, std::string_view class_name,
                                       text::Ref title)
    : OkCancelDialog(services, class_name, title),
      help(*this, "help", {id::kHelpLabel}, Role::kHelp) {}

}  // namespace ui
