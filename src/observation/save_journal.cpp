#include "observation/save_journal.h"

#include <algorithm>

#include "observation/report_file.h"
#include "text/checksum.h"
#include "text/strings.h"

namespace observation {
namespace {

constexpr std::string_view kVersion = "kavrel-save 1\n";
constexpr std::string_view kYes = "yes";
constexpr std::string_view kNo = "no";

std::uint64_t checksum_of(std::string_view content) {
  text::Checksum sum;
  sum.add(content);
  return sum.value();
}

/// "NAME LENGTH", the bytes, each with a line end: any bytes survive.
void put(std::string& text, std::string_view name, std::string_view value) {
  text.append(name).append(" ").append(std::to_string(value.size())).append("\n");
  text.append(value).append("\n");
}
void put(std::string& text, std::string_view name, std::uint64_t value) {
  put(text, name, std::to_string(value));
}

/// Takes the values off the front of the text; after the first that is not as it should be none is
/// good.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  std::string text(std::string_view name) {
    good_ = good_ && take(name) && take(" ");
    const auto length = good_ ? figures() : 0;
    good_ = good_ && take("\n") && length <= rest_.size();
    if (!good_) return {};
    std::string value(rest_.substr(0, length));
    rest_.remove_prefix(length);
    good_ = take("\n");
    return value;
  }
  std::uint64_t number(std::string_view name) {
    const std::string value = text(name);
    Reader inner(value);
    const std::uint64_t result = inner.figures();
    good_ = good_ && inner.good_ && inner.rest_.empty();
    return result;
  }
  bool flag(std::string_view name) {
    const std::string value = text(name);
    good_ = good_ && (value == kYes || value == kNo);
    return value == kYes;
  }
  [[nodiscard]] bool good() const { return good_; }
  [[nodiscard]] std::string_view rest() const { return rest_; }

 private:
  bool take(std::string_view wanted) {
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(wanted.size());
    return true;
  }
  std::uint64_t figures() {
    // More than 64 bits may wrap; the checksum is then another one.
    constexpr std::size_t kMostFigures = 20;  // of 64 bits
    std::uint64_t value = 0;
    std::size_t count = 0;
    while (!rest_.empty() && rest_.front() >= '0' && rest_.front() <= '9') {
      value = value * 10 + static_cast<unsigned>(rest_.front() - '0');
      rest_.remove_prefix(1);
      ++count;
    }
    good_ = good_ && count > 0 && count <= kMostFigures;
    return value;
  }

  std::string_view rest_;
  bool good_ = true;
};

}  // namespace

Mark mark_of(std::string_view content) {
  return {content.size(), checksum_of(content)};
}

bool is_report_name(std::string_view name) {
  constexpr std::size_t kLongest = 64;
  if (name.size() > kLongest || !name.ends_with(kReportExtension)) return false;
  name.remove_suffix(kReportExtension.size());
  return !name.empty() && text::is_all_digits(name);
}

std::string write_journal(const Journal& journal) {
  std::string text(kVersion);
  put(text, "folder", journal.folder);
  put(text, "report", journal.report);
  put(text, "staged", journal.staged);
  put(text, "replace", journal.replace ? kYes : kNo);
  put(text, "existed", journal.log_existed ? kYes : kNo);
  put(text, "size", journal.log_size);
  put(text, "appended", journal.appended);
  put(text, "length", journal.content.length);
  put(text, "checksum", journal.content.checksum);
  put(text, "end", checksum_of(text));
  return text;
}

std::optional<Journal> read_journal(std::string_view text) {
  if (!text.starts_with(kVersion)) return std::nullopt;
  Reader reader(text.substr(kVersion.size()));
  Journal journal;
  journal.folder = reader.text("folder");
  journal.report = reader.text("report");
  journal.staged = reader.text("staged");
  journal.replace = reader.flag("replace");
  journal.log_existed = reader.flag("existed");
  journal.log_size = reader.number("size");
  journal.appended = reader.text("appended");
  journal.content.length = reader.number("length");
  journal.content.checksum = reader.number("checksum");
  const std::string_view summed = text.substr(0, text.size() - reader.rest().size());
  const std::uint64_t sum = reader.number("end");
  const bool whole = reader.good() && reader.rest().empty() && sum == checksum_of(summed);
  const bool fits = is_report_name(journal.report) && platform::staged_by(journal.staged) &&
                    !journal.appended.empty() && (journal.log_existed || journal.log_size == 0);
  if (!whole || !fits) return std::nullopt;
  return journal;
}

LineFound line_found(const Journal& journal, std::uint64_t size, std::string_view behind) {
  if (size < journal.log_size) return LineFound::kForeign;
  const std::uint64_t more = size - journal.log_size;
  if (more == 0) return LineFound::kNone;
  const std::string_view line = journal.appended;
  behind = behind.substr(0, std::min<std::size_t>(behind.size(), line.size()));
  if (more >= line.size() && behind == line)
    return more == line.size() ? LineFound::kLast : LineFound::kFollowed;
  const std::size_t last = behind.find_last_not_of('\0');
  const std::string_view written = behind.substr(0, last + 1);
  return more <= line.size() && line.starts_with(written) ? LineFound::kPart : LineFound::kForeign;
}

Repair decide(const Found& found) {
  switch (found.line) {
    case LineFound::kForeign:
      return Repair::kDoNotTrust;
    case LineFound::kNone:
    // The line goes in before the report is renamed: without it, a report there is of another save.
    case LineFound::kPart:
      return Repair::kTakeBack;
    case LineFound::kLast:
    case LineFound::kFollowed:
      break;
  }
  if (found.report_is_it) return Repair::kDone;
  if (found.staged_is_it) return Repair::kFinish;
  // A report that is nowhere was in its place and is not any more, or lies on a drive that is away:
  // a staged one stays where it was until it is renamed.
  return Repair::kLeaveLine;
}

}  // namespace observation
