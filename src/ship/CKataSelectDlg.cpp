#include "ship/CKataSelectDlg.h"

#include "text/ids.h"

namespace id = text::id;

CKataSelectDlg::CKataSelectDlg(ui::Services& services, CardType current)
    : OkCancelDialog(services, "CKataSelectDlg", {id::kCardSelectTitle}),
      prompt(*this, "prompt", {id::kCardSelectPrompt}),
      card_type(*this, "card_type", {id::kCardType}, {{id::kCardTypeOne}, {id::kCardTypeTwo}}) {
  card_type.selected = static_cast<int>(current);
}

CardType CKataSelectDlg::type() const {
  return card_type.selected == 0   ? CardType::kHeightAndTemperature
         : card_type.selected == 1 ? CardType::kTotalCorrection
                                   : CardType::kNotChosen;
}

void CKataSelectDlg::on_ok() {
  if (type() == CardType::kNotChosen) {
    refuse(card_type, id::kCardTypeMissing);
    return;
  }
  close(ui::kOk);
}

// The card is explained in the topic of the ship fixed data.
void CKataSelectDlg::on_help() {
  services().help.show(text::dialog_topic("CFixDataDlg"));
}
