#include "fakes/fake_files.h"

#include <algorithm>
#include <array>

namespace fakes {

using platform::FileError;

namespace {

constexpr std::array kOperationNames = {
    "read",     "stage",           "commit",   "discard", "note",          "lock",
    "read_log", "append",          "cut",      "list",    "create_folder", "copy",
    "remove",   "clear_read_only", "read_part"};

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

char drive_of(const std::string& key) {
  return key.size() >= 2 && key[1] == ':' ? key[0] : 'c';
}

}  // namespace

std::string FakeFiles::key(const std::string& path) const {
  const bool absolute = path.size() >= 2 && path[1] == ':';
  const std::string whole = absolute ? path : current_folder_ + "\\" + path;
  std::string result;
  for (const char c : whole) {
    const char slash = c == '/' ? '\\' : lower(c);
    if (slash == '\\' && !result.empty() && result.back() == '\\') continue;
    result.push_back(slash);
  }
  while (!result.empty() && result.back() == '\\') result.pop_back();
  return result;
}

std::string FakeFiles::parent(const std::string& key) {
  const auto at = key.rfind('\\');
  return at == std::string::npos ? std::string() : key.substr(0, at);
}

bool FakeFiles::missing(const std::string& path) const {
  return missing_.contains(drive_of(key(path)));
}

const FakeFiles::Node* FakeFiles::find(const std::string& path) const {
  const std::string wanted = key(path);
  const auto at = std::find_if(nodes_.begin(), nodes_.end(),
                               [&](const Node& node) { return key(node.path) == wanted; });
  return at == nodes_.end() ? nullptr : &*at;
}

FakeFiles::Node* FakeFiles::find(const std::string& path) {
  return const_cast<Node*>(static_cast<const FakeFiles*>(this)->find(path));
}

FakeFiles::Node& FakeFiles::put(const std::string& path, std::string content) {
  Node* node = find(path);
  if (node == nullptr) {
    nodes_.push_back({path, false, false, false, {}, {2014, 11, 15, 12, 0, 0}});
    node = &nodes_.back();
  }
  node->content = std::move(content);
  return *node;
}

// ---- What is there

void FakeFiles::add_file(const std::string& path, std::string content) {
  const auto at = path.find_last_of("\\/");
  if (at != std::string::npos) add_folder(path.substr(0, at));
  put(path, std::move(content));
}

void FakeFiles::add_folder(const std::string& path) {
  std::string so_far;
  for (const char c : path + "\\") {
    if ((c == '\\' || c == '/') && so_far.size() > 2 && find(so_far) == nullptr)
      nodes_.push_back({so_far, true, false, false, {}, {2014, 11, 15, 12, 0, 0}});
    so_far.push_back(c);
  }
}

void FakeFiles::add_other(const std::string& path) {
  add_file(path, "");
  find(path)->other = true;
}

void FakeFiles::set_modified(const std::string& path, platform::DateTime when) {
  if (Node* node = find(path)) node->modified = when;
}

void FakeFiles::set_read_only(const std::string& path, bool read_only) {
  if (Node* node = find(path)) node->read_only = read_only;
}

void FakeFiles::set_held(const std::string& path, bool held) {
  if (held)
    held_.insert(key(path));
  else
    held_.erase(key(path));
}

void FakeFiles::set_free_space(char drive, std::uint64_t bytes) {
  free_space_[lower(drive)] = bytes;
}

void FakeFiles::set_medium_missing(char drive, bool is_missing) {
  if (is_missing)
    missing_.insert(lower(drive));
  else
    missing_.erase(lower(drive));
}

std::optional<std::string> FakeFiles::content(const std::string& path) const {
  const Node* node = find(path);
  if (node == nullptr || node->folder) return std::nullopt;
  return node->content;
}

std::map<std::string, std::string> FakeFiles::snapshot() const {
  std::map<std::string, std::string> result;
  for (const Node& node : nodes_)
    if (!node.folder) result.emplace(node.path, node.content);
  return result;
}

// ---- Scripted errors

void FakeFiles::fail_next(Operation operation, FileError error) {
  next_errors_[operation].push_back(error);
}

void FakeFiles::fail_at(int n, FileError error) {
  errors_at_[count_ + n] = error;
}

void FakeFiles::fail_path(const std::string& path, FileError error) {
  path_errors_[key(path)] = error;
}

void FakeFiles::fail_look(const std::string& path, FileError error) {
  look_errors_[key(path)] = error;
}

void FakeFiles::kill_before(int n) {
  kills_before_.insert(count_ + n);
}

void FakeFiles::kill_after(int n) {
  kills_after_.insert(count_ + n);
}

void FakeFiles::heal() {
  next_errors_.clear();
  errors_at_.clear();
  path_errors_.clear();
  look_errors_.clear();
  kills_before_.clear();
  kills_after_.clear();
  killed_ = false;
}

FileError FakeFiles::begin(Operation operation, const std::string& path,
                           const std::string& second) const {
  ++count_;
  if (kills_before_.contains(count_)) {
    killed_ = true;
    throw Killed{};
  }
  log_.push_back(std::string(kOperationNames[static_cast<std::size_t>(operation)]) + " " + path +
                 (second.empty() ? "" : " " + second));
  FileError error = FileError::kNone;
  if (auto& queue = next_errors_[operation]; !queue.empty()) {
    error = queue.front();
    queue.erase(queue.begin());
  }
  if (const auto at = errors_at_.find(count_); at != errors_at_.end()) error = at->second;
  for (const std::string* each : {&path, &second}) {
    if (each->empty()) continue;
    if (const auto at = path_errors_.find(key(*each)); at != path_errors_.end()) error = at->second;
    if (missing(*each)) error = FileError::kMediumMissing;
  }
  return operation == Operation::kDiscard ? FileError::kNone : error;
}

FileError FakeFiles::end(FileError error) const {
  if (error != FileError::kNone) log_.back() += " !";
  if (kills_after_.contains(count_)) {
    killed_ = true;
    throw Killed{};
  }
  return error;
}

FileError FakeFiles::writable(const std::string& path, std::uint64_t more) const {
  const std::string above = parent(key(path));
  if (above.size() > 2) {
    const Node* folder = find(above);
    if (folder == nullptr || !folder->folder) return FileError::kNotFound;
    if (folder->read_only) return FileError::kAccessDenied;
  }
  const Node* node = find(path);
  if (node != nullptr && (node->folder || node->read_only)) return FileError::kAccessDenied;
  const auto space = free_space(path);
  return space && *space < more ? FileError::kNoSpace : FileError::kNone;
}

// ---- The port

platform::Result<std::string> FakeFiles::read(const std::string& path,
                                              std::uint64_t largest) const {
  FileError error = begin(Operation::kRead, path);
  if (error == FileError::kNone) error = readable(path);
  if (error == FileError::kNone && find(path)->content.size() > largest) error = FileError::kOther;
  if (end(error) != FileError::kNone) return error;
  return find(path)->content;
}

FileError FakeFiles::readable(const std::string& path) const {
  const Node* node = find(path);
  if (node == nullptr) return FileError::kNotFound;
  if (node->folder) return FileError::kAccessDenied;
  return node->other ? FileError::kNotAFile : FileError::kNone;
}

platform::Result<std::string> FakeFiles::read_part(const std::string& path, std::uint64_t from,
                                                   std::uint64_t count) const {
  FileError error = begin(Operation::kReadPart, path);
  if (error == FileError::kNone) error = readable(path);
  if (end(error) != FileError::kNone) return error;
  const std::string& content = find(path)->content;
  return from >= content.size() ? std::string() : content.substr(from, count);
}

platform::Result<platform::StagedFile> FakeFiles::stage(const std::string& path,
                                                        std::string_view content) {
  FileError error = begin(Operation::kStage, path);
  if (error == FileError::kNone) error = writable(path, content.size());
  if (error == FileError::kNone && find(path) != nullptr && find(path)->other)
    error = FileError::kNotAFile;
  const auto at = path.find_last_of("\\/:");
  platform::StagedFile staged{path, path.substr(0, at + 1) + ".kavrel-" + std::to_string(process_) +
                                        "-" + std::to_string(staged_count_++) + ".part"};
  if (error == FileError::kNone) put(staged.temporary, std::string(content));
  if (end(error) != FileError::kNone) return error;
  return staged;
}

platform::Result<platform::StagedFile> FakeFiles::stage_pieces(const std::string& path,
                                                               const platform::NextPiece& next) {
  const auto staged = stage(path, "");
  if (!staged.ok()) return staged;
  FileError error = FileError::kNone;
  while (error == FileError::kNone) {
    const auto piece = next();
    error = piece.error;
    if (!piece.ok() || piece.value->empty()) break;
    error = writable(path, find(staged.value->temporary)->content.size() + piece.value->size());
    if (error == FileError::kNone) find(staged.value->temporary)->content += *piece.value;
  }
  if (error == FileError::kNone) return staged;
  std::erase_if(nodes_,
                [&](const Node& node) { return key(node.path) == key(staged.value->temporary); });
  return error;
}

FileError FakeFiles::commit(const platform::StagedFile& staged, platform::Over over) {
  FileError error = begin(Operation::kCommit, staged.path);
  const Node* beside = find(staged.temporary);
  if (error == FileError::kNone && beside == nullptr) error = FileError::kNotFound;
  if (error == FileError::kNone && over == platform::Over::kRefuse && find(staged.path) != nullptr)
    error = FileError::kExists;
  if (error == FileError::kNone) {
    const std::string content = beside->content;
    std::erase_if(nodes_,
                  [&](const Node& node) { return key(node.path) == key(staged.temporary); });
    put(staged.path, content);
  }
  return end(error);
}

void FakeFiles::discard(const platform::StagedFile& staged) {
  begin(Operation::kDiscard, staged.path);
  std::erase_if(nodes_, [&](const Node& node) { return key(node.path) == key(staged.temporary); });
  end(FileError::kNone);
}

FileError FakeFiles::note(const std::string& path, std::string_view content) {
  FileError error = begin(Operation::kNote, path);
  if (error == FileError::kNone) error = writable(path, content.size());
  if (error == FileError::kNone && find(path) != nullptr && find(path)->other)
    error = FileError::kNotAFile;
  if (error == FileError::kNone) put(path, std::string(content));
  return end(error);
}

platform::Result<std::unique_ptr<platform::Claim>> FakeFiles::claim(const std::string& path) {
  struct Claimed : platform::Claim {
    Claimed(std::set<std::string>& all, std::string claimed, bool locked)
        : all_(all), key_(std::move(claimed)), locked_(locked) {}
    ~Claimed() override {
      if (locked_) all_.erase(key_);
    }
    Claimed(const Claimed&) = delete;
    Claimed& operator=(const Claimed&) = delete;
    [[nodiscard]] bool is_locked() const override { return locked_; }
    std::set<std::string>& all_;
    std::string key_;
    bool locked_;
  };
  if (const auto at = path_errors_.find(key(path)); at != path_errors_.end()) return at->second;
  const Node* const folder = find(parent(key(path)));
  if (folder == nullptr) return FileError::kNotFound;
  if (folder->read_only) return FileError::kAccessDenied;
  if (!lockless_ && !claimed_.insert(key(path)).second) return FileError::kLocked;
  return platform::Result<std::unique_ptr<platform::Claim>>(
      std::make_unique<Claimed>(claimed_, key(path), !lockless_));
}

/// The logbook as it lies in the fake.
class FakeFiles::Log : public platform::LockedLog {
 public:
  Log(FakeFiles& files, std::string path, bool created)
      : files_(files), path_(std::move(path)), created_(created), drop_(created) {
    size_ = files_.find(path_)->content.size();
    files_.held_.insert(files_.key(path_));
  }
  // A program that was killed tidies nothing.
  ~Log() override {
    files_.held_.erase(files_.key(path_));
    if (drop_ && size_ == 0 && !files_.killed_)
      std::erase_if(files_.nodes_, [&](const Node& node) {
        return files_.key(node.path) == files_.key(path_) && node.content.empty();
      });
  }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  [[nodiscard]] bool is_locked() const override { return !files_.lockless_; }
  [[nodiscard]] bool created() const override { return created_; }
  [[nodiscard]] std::uint64_t size() const override { return size_; }
  void drop_if_empty() override { drop_ = true; }
  [[nodiscard]] platform::Result<std::string> read(std::uint64_t from,
                                                   std::uint64_t count) const override {
    const FileError error = files_.end(files_.begin(Operation::kReadLog, path_));
    if (error != FileError::kNone) return error;
    const std::string& content = files_.find(path_)->content;
    return from >= content.size() ? std::string() : content.substr(from, count);
  }
  [[nodiscard]] FileError append(std::string_view content) override {
    FileError error = files_.begin(Operation::kAppend, path_);
    if (error == FileError::kNone) error = files_.writable(path_, content.size());
    if (error == FileError::kNone) {
      files_.find(path_)->content.append(content);
      size_ += content.size();
    }
    return files_.end(error);
  }
  [[nodiscard]] FileError cut(std::uint64_t size) override {
    const FileError error = files_.begin(Operation::kCut, path_);
    if (error == FileError::kNone) {
      files_.find(path_)->content.resize(size);
      size_ = size;
    }
    return files_.end(error);
  }

 private:
  FakeFiles& files_;
  std::string path_;
  bool created_;
  bool drop_;
  std::uint64_t size_;
};

platform::Result<std::unique_ptr<platform::LockedLog>> FakeFiles::lock_log(
    const std::string& path) {
  FileError error = begin(Operation::kLock, path);
  if (error == FileError::kNone) error = writable(path, 0);
  if (error == FileError::kNone && held_.contains(key(path))) error = FileError::kLocked;
  if (error == FileError::kNone && find(path) != nullptr && find(path)->other)
    error = FileError::kNotAFile;
  const bool created = find(path) == nullptr;
  if (error == FileError::kNone && created) put(path, "");
  if (end(error) != FileError::kNone) return error;
  return platform::Result<std::unique_ptr<platform::LockedLog>>(
      std::make_unique<Log>(*this, path, created));
}

platform::Look FakeFiles::look(const std::string& path) const {
  using platform::There;
  const std::string wanted = key(path);
  if (const auto at = look_errors_.find(wanted); at != look_errors_.end())
    return {There::kCannotTell, at->second};
  if (missing(path)) return {There::kCannotTell, FileError::kMediumMissing};
  if (wanted.size() == 2) return {There::kFolder};
  const Node* node = find(path);
  if (node == nullptr) return {};
  if (node->folder) return {There::kFolder};
  if (node->other) return {There::kOther};
  return {There::kFile, FileError::kNone, node->content.size()};
}

std::optional<platform::DateTime> FakeFiles::modified(const std::string& path) const {
  const Node* node = find(path);
  if (node == nullptr || missing(path)) return std::nullopt;
  return node->modified;
}

platform::Result<std::vector<platform::FolderEntry>> FakeFiles::list(
    const std::string& folder) const {
  FileError error = begin(Operation::kList, folder);
  if (error == FileError::kNone && !is_folder(folder)) error = FileError::kNotFound;
  if (end(error) != FileError::kNone) return error;
  std::vector<platform::FolderEntry> result;
  for (const Node& node : nodes_) {
    if (node.other || parent(key(node.path)) != key(folder)) continue;
    const auto at = node.path.find_last_of("\\/");
    result.push_back({node.path.substr(at + 1), node.folder});
  }
  return result;
}

FileError FakeFiles::create_folder(const std::string& path) {
  FileError error = begin(Operation::kCreateFolder, path);
  if (error == FileError::kNone && !is_folder(path)) {
    error = find(path) != nullptr ? FileError::kAccessDenied : writable(path, 0);
    if (error == FileError::kNone) add_folder(path);
  }
  return end(error);
}

FileError FakeFiles::copy(const std::string& from, const std::string& to) {
  FileError error = begin(Operation::kCopy, from, to);
  const Node* node = find(from);
  if (error == FileError::kNone && node == nullptr) error = FileError::kNotFound;
  if (error == FileError::kNone && node->folder) error = FileError::kAccessDenied;
  if (error == FileError::kNone && node->other) error = FileError::kNotAFile;
  if (error == FileError::kNone) error = writable(to, node->content.size());
  if (error == FileError::kNone && find(to) != nullptr && find(to)->other)
    error = FileError::kNotAFile;
  if (error == FileError::kNone) {
    const std::string content = node->content;
    put(to, content);
  }
  return end(error);
}

FileError FakeFiles::remove(const std::string& path) {
  FileError error = begin(Operation::kRemove, path);
  const Node* node = find(path);
  if (error == FileError::kNone && node == nullptr) error = FileError::kNotFound;
  if (error == FileError::kNone && node->read_only) error = FileError::kAccessDenied;
  if (error == FileError::kNone && node->folder) {
    const bool empty = std::none_of(nodes_.begin(), nodes_.end(), [&](const Node& each) {
      return parent(key(each.path)) == key(path);
    });
    if (!empty) error = FileError::kOther;
  }
  if (error == FileError::kNone)
    std::erase_if(nodes_, [&](const Node& each) { return key(each.path) == key(path); });
  return end(error);
}

FileError FakeFiles::clear_read_only(const std::string& path) {
  FileError error = begin(Operation::kClearReadOnly, path);
  Node* node = find(path);
  if (error == FileError::kNone && node == nullptr) error = FileError::kNotFound;
  if (error == FileError::kNone) node->read_only = false;
  return end(error);
}

std::optional<std::uint64_t> FakeFiles::free_space(const std::string& path) const {
  if (missing(path)) return std::nullopt;
  const auto at = free_space_.find(drive_of(key(path)));
  return at == free_space_.end() ? std::uint64_t{1} << 40U : at->second;
}

bool FakeFiles::same(const std::string& a, const std::string& b) const {
  return key(a) == key(b);
}

}  // namespace fakes
