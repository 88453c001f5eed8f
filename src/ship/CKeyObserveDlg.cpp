#include "ship/CKeyObserveDlg.h"

#include <array>
#include <utility>

#include "text/ids.h"

namespace id = text::id;

namespace {

// The English labels lie behind the block of the Japanese ones.
constexpr int kEnglishOffset = 40;

text::Ref label(text::Id japanese) {
  return {japanese, kEnglishOffset};
}

// In the order of the items.
constexpr std::array<text::Id, kObservationItems> kLabels = {
    id::kItemH,      id::kItemVV,     id::kItemN,        id::kItemNh,
    id::kItemCLCMCH, id::kItemww,     id::kItemW1W2,     id::kItemPwHw,
    id::kItemSwell1, id::kItemSwell2, id::kItemIsEsEsRs, id::kItemSeaIce};

}  // namespace

std::deque<ui::Choice> CKeyObserveDlg::choices(ui::Screen& owner) {
  std::deque<ui::Choice> result;
  for (std::size_t i = 0; i < kObservationItems; ++i) {
    result.emplace_back(
        owner, std::string(kObservationItemNames.at(i)), label(kLabels.at(i)),
        std::vector<text::Ref>{label(id::kItemsObserved), label(id::kItemsNotObserved)});
  }
  return result;
}

CKeyObserveDlg::CKeyObserveDlg(ui::Services& services, std::string path, bool auto_accept,
                               std::optional<KeyObservationItems> in_force)
    : OkCancelHelpDialog(services, "CKeyObserveDlg", label(id::kItemsTitle)),
      prompt(*this, "prompt", label(id::kItemsPrompt)),
      items(choices(*this)),
      path_(std::move(path)),
      auto_accept_(auto_accept),
      in_force_(in_force) {}

void CKeyObserveDlg::on_open() {
  const auto loaded = load_key_items(services().files, path_);
  file_read_ = loaded.outcome;
  accepted_ = in_force_.value_or(loaded.values);
  if (file_read_ == FileRead::kUnreadable) {
    services().messages.file_error(
        in_force_ ? id::kShipFileUnreadableInForce : id::kShipFileUnreadable, path_, loaded.error);
  }
  for (std::size_t i = 0; i < kObservationItems; ++i)
    items[i].selected = accepted_.not_observed[i] ? 1 : 0;
  if (auto_accept_ && (file_read_ == FileRead::kRead || file_read_ == FileRead::kMissing))
    close(ui::kOk);
}

void CKeyObserveDlg::on_ok() {
  for (std::size_t i = 0; i < kObservationItems; ++i)
    accepted_.not_observed[i] = items[i].selected == 1;
  if (const auto error = save_key_items(services().files, path_, accepted_);
      error != platform::FileError::kNone)
    // Told, and closed all the same: the items hold for this run.
    services().messages.file_error(id::kFileNotSaved, path_, error);
  close(ui::kOk);
}
