#include "ship/CKataSelectDlg.h"

#include "text/ids.h"

namespace id = text::id;

CKataSelectDlg::CKataSelectDlg(ui::Services& services, CardType current)
    : Screen(services, "CKataSelectDlg", {id::kCardSelectTitle}),
      prompt(*this, "prompt", {id::kCardSelectPrompt}),
      card_type(*this, "card_type", {id::kCardType}, {{id::kCardTypeOne}, {id::kCardTypeTwo}}),
      ok(*this, "ok", {id::kOkLabel}, ui::Role::kOk),
      cancel(*this, "cancel", {id::kCancelLabel}, ui::Role::kCancel) {
  card_type.selected = static_cast<int>(current);
}

CardType CKataSelectDlg::type() const {
  return card_type.selected == 0   ? CardType::kHeightAndTemperature
         : card_type.selected == 1 ? CardType::kTotalCorrection
                                   : CardType::kNotChosen;
}

void CKataSelectDlg::on_ok() {
  if (type() != CardType::kNotChosen) {
    close(text::kOk);
    return;
  }
  services().messages.error(id::kCardTypeMissing);
  focus(card_type);
}

// The card is explained in the topic of the ship fixed data.
void CKataSelectDlg::on_help() {
  services().help.show(text::dialog_topic("CFixDataDlg"));
}
