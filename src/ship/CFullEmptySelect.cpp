#include "ship/CFullEmptySelect.h"

#include "text/ids.h"

namespace id = text::id;

CFullEmptySelect::CFullEmptySelect(ui::Services& services)
    : OkCancelDialog(services, "CFullEmptySelect", {id::kLoadingTitle}),
      prompt(*this, "prompt", {id::kLoadingPrompt}),
      loading_state(*this, "loading_state", {id::kCardLoading},
                    {{id::kCardFullLoad}, {id::kCardBallast}}) {}

LoadingState CFullEmptySelect::state() const {
  return loading_state.selected == 0   ? LoadingState::kFullLoad
         : loading_state.selected == 1 ? LoadingState::kInBallast
                                       : LoadingState::kNotChosen;
}

void CFullEmptySelect::on_ok() {
  if (state() == LoadingState::kNotChosen) {
    refuse(loading_state, id::kLoadingStateMissing);
    return;
  }
  close(ui::kOk);
}

// The loading state is explained in the topic of the ship fixed data.
void CFullEmptySelect::on_help() {
  services().help.show(text::dialog_topic("CFixDataDlg"));
}
