#include "ship/CKeyObserveDlg.h"

#include <utility>

#include "text/ids.h"

namespace id = text::id;

namespace {

// The English labels lie behind the block of the Japanese ones.
constexpr int kEnglishOffset = 40;

text::Ref label(text::Id japanese) {
  return {japanese, kEnglishOffset};
}

struct Item {
  const char* name;
  text::Id label;
};

// In the order of the file.
constexpr Item kItems[] = {
    {"h", id::kItemH},
    {"VV", id::kItemVV},
    {"N", id::kItemN},
    {"Nh", id::kItemNh},
    {"CLCMCH", id::kItemCLCMCH},
    {"ww", id::kItemww},
    {"W1W2", id::kItemW1W2},
    {"PwHw", id::kItemPwHw},
    {"dw1Pw1Hw1", id::kItemSwell1},
    {"dw2Pw2Hw2", id::kItemSwell2},
    {"IsEsEsRs", id::kItemIsEsEsRs},
    {"ciSibiDizi", id::kItemSeaIce},
};
static_assert(std::size(kItems) == kObservationItems);

}  // namespace

std::deque<ui::Choice> CKeyObserveDlg::choices(ui::Screen& owner) {
  std::deque<ui::Choice> result;
  for (const Item& item : kItems) {
    result.emplace_back(
        owner, item.name, label(item.label),
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
    services().messages.file_error(id::kFileNotSaved, path_, error);
  close(ui::kOk);
}
