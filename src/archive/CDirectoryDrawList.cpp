#include "archive/CDirectoryDrawList.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "archive/drive_rows.h"
#include "archive/names.h"
#include "platform/paths.h"
#include "text/ids.h"

using ui::TreeRow;

namespace {

// Ends with its block, also when something throws: a tree must not stay silent for good.
class Silence {
 public:
  explicit Silence(bool& silent) : silent_(silent) { silent_ = true; }
  ~Silence() { silent_ = false; }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  bool& silent_;
};

}  // namespace

CDirectoryDrawList::CDirectoryDrawList(ui::Control& tree, const platform::Files& files,
                                       const platform::Drives& drives, const text::Texts& texts)
    : tree_(tree), files_(files), drives_(drives), texts_(texts) {
  tree_.on_expand = [this](std::size_t row) { expand(row); };
  tree_.on_reveal = [this](std::string_view path) { return reveal(path); };
}

void CDirectoryDrawList::fill() {
  tree_.selected = -1;
  tree_.rows.clear();
  tree_.rows.push_back({std::string(texts_.get(text::id::kMyComputer)), "", 0, true, false, false});
  open(0);
}

void CDirectoryDrawList::expand(std::size_t row) {
  // The screen has marked it as open, and open() leaves such a row alone.
  tree_.rows[row].expanded = false;
  open(row);
}

bool CDirectoryDrawList::open(std::size_t row) {
  if (tree_.rows[row].expanded) return true;
  const std::string path = tree_.rows[row].path;
  const int depth = tree_.rows[row].depth + 1;
  std::vector<TreeRow> children;
  if (depth == 1) {
    for (archive::DriveRow& drive : archive::drive_rows(drives_))
      children.push_back({drive.root, drive.root, depth, true, false, drive.marked});
  } else {
    auto entries = files_.list(path);
    if (!entries.ok()) {
      // The row stays closed and can be tried again: a disk may be put in.
      if (on_unreadable && !silent_) on_unreadable(path, entries.error);
      return false;
    }
    for (platform::FolderEntry& entry : *entries.value) {
      if (!entry.is_folder) continue;
      std::string below = platform::join(path, entry.name);
      children.push_back({std::move(entry.name), std::move(below), depth, true, false, false});
    }
    std::sort(children.begin(), children.end(), [](const TreeRow& a, const TreeRow& b) {
      return archive::comes_before(a.text, b.text);
    });
  }
  tree_.rows[row].can_expand = !children.empty();
  tree_.rows[row].expanded = !children.empty();
  tree_.rows.insert(tree_.rows.begin() + static_cast<std::ptrdiff_t>(row) + 1,
                    std::make_move_iterator(children.begin()),
                    std::make_move_iterator(children.end()));
  return true;
}

void CDirectoryDrawList::close(std::size_t row) {
  const auto first = tree_.rows.begin() + static_cast<std::ptrdiff_t>(row) + 1;
  const auto last = std::find_if(
      first, tree_.rows.end(), [&](const TreeRow& r) { return r.depth <= tree_.rows[row].depth; });
  tree_.rows.erase(first, last);
  tree_.rows[row].expanded = false;
  // What was empty may hold a folder now.
  tree_.rows[row].can_expand = true;
}

int CDirectoryDrawList::child(std::size_t row, std::string_view name) const {
  const int depth = tree_.rows[row].depth;
  int other_case = -1;
  for (std::size_t at = row + 1; at < tree_.rows.size() && tree_.rows[at].depth > depth; ++at) {
    if (tree_.rows[at].depth != depth + 1) continue;
    const std::string& text = tree_.rows[at].text;
    // The very name first: on this computer two folders may differ in case alone.
    if (text == name) return static_cast<int>(at);
    if (other_case < 0 && archive::equal_ignoring_case(text, name))
      other_case = static_cast<int>(at);
  }
  return other_case;
}

bool CDirectoryDrawList::reveal(std::string_view folder) {
  if (tree_.rows.empty()) return false;
  std::vector<TreeRow> rows_before = tree_.rows;
  const int row = find_row(folder);
  if (row <= 0) {
    // Nothing stays open of a way that led nowhere.
    tree_.rows = std::move(rows_before);
    return false;
  }
  tree_.selected = row;
  return true;
}

int CDirectoryDrawList::find_row(std::string_view folder) {
  const Silence silence(silent_);
  int row = 0;
  for (std::string_view part = platform::first_part(folder); !part.empty();
       part = platform::first_part(folder)) {
    const bool is_drive = row == 0;
    int found = -1;
    if (open(static_cast<std::size_t>(row))) {
      // A drive's row reads "C:\", a folder's has no backslash.
      found = child(static_cast<std::size_t>(row),
                    is_drive ? std::string(part) + "\\" : std::string(part));
    }
    row = found;
    if (row < 0) break;
  }
  return row;
}

void CDirectoryDrawList::open_selected() {
  if (tree_.selected >= 0) open(static_cast<std::size_t>(tree_.selected));
}

void CDirectoryDrawList::read_again(std::string_view folder) {
  if (!reveal(folder)) return;
  const auto row = static_cast<std::size_t>(tree_.selected);
  close(row);
  open(row);
}
