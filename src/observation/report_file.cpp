#include "observation/report_file.h"

#include <algorithm>
#include <limits>

#include "observation/save_journal.h"
#include "platform/calendar.h"
#include "platform/paths.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace observation {
namespace {

using platform::FileError;
using platform::Over;
using platform::There;

constexpr std::string_view kLineEnd = "\n";

// Every fourth year has a 29 February here: reports are looked for by this calendar, and it must
// name the files as it always has.
int days_of(int year, int month) {
  switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    case 2:
      return year % 4 == 0 ? 29 : 28;
    default:
      return 31;
  }
}

std::string_view last_two(std::string_view figures) {
  return figures.size() > 2 ? figures.substr(figures.size() - 2) : figures;
}

/// Of a save; each ends in its backslash.
struct Folders {
  std::string reports, logbook;
  [[nodiscard]] std::string journal() const { return logbook + std::string(kJournalName); }
  [[nodiscard]] std::string log() const { return logbook + std::string(kLogbookName); }
};

Recovery failed(FileError error, const std::string& path) {
  Recovery recovery;
  recovery.error = error;
  recovery.failed = path;
  return recovery;
}

/// Of both folders, as platform::clear_staged() does it.
void clear_staged(platform::Files& files, const Folders& folders) {
  for (const std::string* folder : {&folders.reports, &folders.logbook}) {
    if (folder == &folders.logbook && folders.logbook == folders.reports) continue;
    platform::clear_staged(files, folder->empty() ? files.current_folder() : *folder);
  }
}

bool anything_staged(const platform::Files& files, const Folders& folders) {
  for (const std::string* folder : {&folders.reports, &folders.logbook}) {
    const auto entries = files.list(*folder);
    if (!entries.ok()) continue;
    for (const platform::FolderEntry& entry : *entries.value)
      if (platform::staged_by(entry.name)) return true;
  }
  return false;
}

/// Number of the line that begins behind so many bytes.
platform::Result<std::uint64_t> line_number(const platform::LockedLog& log, std::uint64_t bytes) {
  constexpr std::uint64_t kBlock = 1U << 16U;
  std::uint64_t lines = 1;
  for (std::uint64_t at = 0; at < bytes; at += kBlock) {
    const auto block = log.read(at, std::min(kBlock, bytes - at));
    if (!block.ok()) return block.error;
    lines += static_cast<std::uint64_t>(std::count(block.value->begin(), block.value->end(), '\n'));
  }
  return lines;
}

/// True when the file is there with that content, nothing when one cannot tell.
platform::Result<bool> has_content(const platform::Files& files, const std::string& path,
                                   const Mark& mark) {
  const platform::Look found = files.look(path);
  if (found.there == There::kCannotTell) return found.error;
  if (found.there != There::kFile || found.size != mark.length) return false;
  const auto content = files.read(path);
  if (!content.ok()) return content.error;
  return mark_of(*content.value) == mark;
}

/// What an interrupted save left, with the lock held.
struct Repaired {
  Recovery told;
  std::optional<Journal> journal;  ///< of the interrupted save
};

class Repairing {
 public:
  Repairing(platform::Files& files, platform::LockedLog& log, const Folders& folders,
            bool leave_unreachable)
      : files_(files), log_(log), folders_(folders), leave_unreachable_(leave_unreachable) {}

  Repaired run() {
    const platform::Look found = files_.look(folders_.journal());
    if (found.there == There::kNo) return {};
    if (found.there == There::kCannotTell)
      return {failed(found.error, folders_.journal()), std::nullopt};
    // A journal has some hundred bytes; what is larger is none, and is not read.
    constexpr std::uint64_t kLargest = 1U << 20U;
    if (found.there == There::kFile && found.size <= kLargest) {
      const auto text = files_.read(folders_.journal());
      if (!text.ok()) return {failed(text.error, folders_.journal()), std::nullopt};
      if (auto journal = read_journal(*text.value)) {
        // Without locks the save that noted this may still be under way.
        if (const auto saver = platform::staged_by(journal->staged);
            !log_.is_locked() && saver && files_.is_running(*saver))
          return {};
        const Recovery told = repair(*journal);
        return {told, std::move(journal)};
      }
    }
    return {put_aside(), std::nullopt};
  }

 private:
  struct Reports {
    std::string folder;
    FileError error = FileError::kNone;  ///< why it cannot be reached
  };
  /// Where that save's report belongs. Also the reports of a save into another folder than this
  /// one's belong to a line of this logbook. What may be renamed or removed there are a report's
  /// name and a staged one's, with the content that was noted.
  [[nodiscard]] Reports reports_of(const Journal& journal) const {
    // A folder that another program calls by another name is known by what was staged in it.
    const bool here = files_.same(journal.folder, folders_.reports) ||
                      holds(folders_.reports + journal.staged, journal);
    const std::string folder = here ? folders_.reports : platform::join(journal.folder, "");
    const platform::Look found = files_.look(folder);
    if (found.there == There::kFolder) return {folder};
    if (!here && holds(folders_.reports + journal.report, journal)) return {folders_.reports};
    if (found.there == There::kCannotTell) return {folder, found.error};
    return {folder, found.there == There::kNo ? FileError::kNotFound : FileError::kNotAFile};
  }

  [[nodiscard]] bool holds(const std::string& path, const Journal& journal) const {
    return has_content(files_, path, journal.content).value.value_or(false);
  }

  /// Which of the two files are there, in a folder that can be reached.
  [[nodiscard]] Recovery find_report(const std::string& report, const std::string& staged,
                                     const Journal& journal, Found& found) const {
    const auto report_is_it = has_content(files_, report, journal.content);
    if (!report_is_it.ok()) return failed(report_is_it.error, report);
    const auto staged_is_it = has_content(files_, staged, journal.content);
    if (!staged_is_it.ok()) return failed(staged_is_it.error, staged);
    found.report_is_it = *report_is_it.value;
    found.staged_is_it = *staged_is_it.value;
    return {};
  }

  Recovery repair(const Journal& journal) {
    const Reports reports = reports_of(journal);
    const bool unreachable = reports.error != FileError::kNone;
    const std::string report = reports.folder + journal.report;
    const std::string staged = reports.folder + journal.staged;
    const bool line_begins = journal.appended.front() == '\n';
    Found found;
    if (log_.size() > journal.log_size) {
      const auto behind = log_.read(journal.log_size, journal.appended.size());
      if (!behind.ok()) return failed(behind.error, folders_.log());
      found.line = line_found(journal, log_.size(), *behind.value);
    } else {
      found.line = line_found(journal, log_.size(), {});
    }
    if (!unreachable) {
      Recovery trouble = find_report(report, staged, journal, found);
      if (trouble.error != FileError::kNone) return trouble;
    }

    Repair what = decide(found);
    if (what == Repair::kDoNotTrust) return put_aside();
    Recovery told;
    told.report = journal.report;
    const auto line = line_number(log_, journal.log_size);
    if (!line.ok()) return failed(line.error, folders_.log());
    told.line = *line.value + (line_begins ? 1 : 0);
    if (unreachable && what == Repair::kLeaveLine && !leave_unreachable_) {
      told.error = reports.error;
      told.failed = reports.folder;
      told.unreachable = true;
      return told;
    }
    if (what == Repair::kFinish) {
      const FileError error =
          files_.commit({report, staged}, journal.replace ? Over::kReplace : Over::kRefuse);
      if (error != FileError::kNone && error != FileError::kExists) return failed(error, report);
      if (error == FileError::kExists) {
        // Somebody else's report has come into the place, which this save was not to replace.
        found.staged_is_it = false;
        what = found.line == LineFound::kLast ? Repair::kTakeBack : Repair::kLeaveLine;
        files_.discard({report, staged});
      }
    } else if (found.staged_is_it && what != Repair::kTakeBack) {
      files_.discard({report, staged});
    }
    switch (what) {
      case Repair::kTakeBack:
        if (const FileError error = take_back(journal); error != FileError::kNone)
          return failed(error, folders_.log());
        if (found.staged_is_it) files_.discard({report, staged});
        told.outcome = Recovered::kTakenBack;
        break;
      case Repair::kLeaveLine:
        told.outcome = Recovered::kLineLeft;
        break;
      default:
        told.outcome = Recovered::kFinished;
    }
    // The save did not live to tell which line it had closed.
    if (line_begins && what != Repair::kTakeBack) told.closed_line = told.line - 1;
    // Should it stay, it is found again, and nothing is left to do for it.
    (void)files_.remove(folders_.journal());
    return told;
  }

  FileError take_back(const Journal& journal) {
    if (!journal.log_existed) log_.drop_if_empty();
    return log_.size() == journal.log_size ? FileError::kNone : log_.cut(journal.log_size);
  }

  Recovery put_aside() {
    const std::string aside = damaged_journal_path(folders_.logbook);
    // No staging: the journal itself is what is renamed.
    if (const FileError error = files_.commit({aside, folders_.journal()});
        error != FileError::kNone) {
      const bool is_file = files_.look(folders_.journal()).there == There::kFile;
      return failed(is_file ? error : FileError::kNotAFile, folders_.journal());
    }
    Recovery told;
    told.outcome = Recovered::kPutAside;
    return told;
  }

  platform::Files& files_;
  platform::LockedLog& log_;
  const Folders& folders_;
  bool leave_unreachable_;
};

Repaired repair(platform::Files& files, platform::LockedLog& log, const Folders& folders,
                bool leave_unreachable) {
  auto repaired = Repairing(files, log, folders, leave_unreachable).run();
  // With an error the staged report may still be what finishes the save later.
  if (repaired.told.error == FileError::kNone) clear_staged(files, folders);
  return repaired;
}

/// One save, with the lock held.
class Save {
 public:
  Save(platform::Files& files, platform::LockedLog& log, const SaveRequest& request)
      : files_(files),
        log_(log),
        request_(request),
        folders_{std::string(platform::folder_part(request.report_path)),
                 std::string(platform::folder_part(request.logbook_path))},
        content_(report_file_content(request.message)) {
    journal_.folder = folders_.reports;
    journal_.report = platform::name_part(request.report_path);
    journal_.content = mark_of(content_);
    result_.without_lock = !log.is_locked();
  }

  SaveResult run() {
    // What a repair would not trust later is not begun.
    if (!is_report_name(journal_.report))
      return end(SaveOutcome::kReportFailed, FileError::kBadName);
    if (repaired_the_same()) return result_;
    if (result_.recovered.error != FileError::kNone)
      return end(SaveOutcome::kLogbookFailed, result_.recovered.error, result_.recovered.failed);

    if (const auto refused = report_in_the_way()) return *refused;
    if (const FileError error = plan_line(); error != FileError::kNone)
      return end(SaveOutcome::kLogbookFailed, error);
    const auto staged = files_.stage(request_.report_path, content_);
    if (!staged.ok()) return end(SaveOutcome::kReportFailed, staged.error);
    journal_.staged = platform::name_part(staged.value->temporary);
    if (const FileError error = files_.note(folders_.journal(), write_journal(journal_));
        error != FileError::kNone) {
      files_.discard(*staged.value);
      return end(SaveOutcome::kLogbookFailed, error, folders_.journal());
    }
    // The line first: it can be cut off again, but a report that was renamed over has gone.
    if (const FileError error = log_.append(journal_.appended); error != FileError::kNone)
      return take_back(*staged.value, SaveOutcome::kLogbookFailed, error);
    const FileError error =
        files_.commit(*staged.value, journal_.replace ? Over::kReplace : Over::kRefuse);
    if (error == FileError::kExists)
      return take_back(*staged.value, SaveOutcome::kAlreadyExists, FileError::kNone);
    if (error != FileError::kNone)
      return take_back(*staged.value, SaveOutcome::kReportFailed, error);
    (void)files_.remove(folders_.journal());
    return result_;
  }

 private:
  /// True when the interrupted save was this very one and is finished now.
  bool repaired_the_same() {
    const Repaired repaired = repair(files_, log_, folders_, request_.leave_unreachable);
    result_.recovered = repaired.told;
    if (repaired.told.outcome != Recovered::kFinished || !repaired.journal) return false;
    const Journal& before = *repaired.journal;
    std::string_view line = before.appended;
    if (line.starts_with(kLineEnd)) line.remove_prefix(kLineEnd.size());
    if (before.report != journal_.report || before.content != journal_.content ||
        line != request_.logbook_line + std::string(kLineEnd))
      return false;
    result_.closed_line = result_.recovered.closed_line;
    // To the officer this is one save that went well.
    result_.recovered = {};
    return true;
  }

  /// How the save ends for the report that is there already; nothing when none is in the way.
  std::optional<SaveResult> report_in_the_way() {
    const platform::Look found = files_.look(request_.report_path);
    if (found.there == There::kCannotTell) return end(SaveOutcome::kReportFailed, found.error);
    journal_.replace = request_.replace;
    if (found.there == There::kFile && request_.replace && request_.replaces) {
      const auto content = files_.read(request_.report_path);
      if (!content.ok()) return end(SaveOutcome::kReportFailed, content.error);
      journal_.replace = *content.value == *request_.replaces;
    } else if (request_.replaces) {
      // It has gone; one that comes meanwhile is another one.
      journal_.replace = false;
    }
    if (found.there == There::kFile && !journal_.replace)
      return end(SaveOutcome::kAlreadyExists, FileError::kNone);
    return std::nullopt;
  }

  /// A last line without its end is closed in the same write: the new one must not stick to it.
  FileError plan_line() {
    journal_.log_existed = !log_.created();
    journal_.log_size = log_.size();
    if (log_.size() > 0) {
      const auto last = log_.read(log_.size() - 1, 1);
      if (!last.ok()) return last.error;
      if (*last.value != kLineEnd) {
        const auto line = line_number(log_, log_.size());
        if (!line.ok()) return line.error;
        result_.closed_line = *line.value;
        journal_.appended.push_back('\n');
      }
    }
    journal_.appended += request_.logbook_line + std::string(kLineEnd);
    return FileError::kNone;
  }

  /// What cannot be taken back stays noted with its staged report, for the next save or start.
  SaveResult take_back(const platform::StagedFile& staged, SaveOutcome outcome, FileError error) {
    if (!line_is_gone()) return end(SaveOutcome::kLineLeft, error);
    files_.discard(staged);
    (void)files_.remove(folders_.journal());
    return end(outcome, error);
  }

  /// Cuts the line off, and nothing but it: where there are no locks another program may have
  /// written behind it meanwhile.
  bool line_is_gone() {
    if (log_.size() == journal_.log_size) return true;
    // One byte more than ours: what follows it is somebody else's.
    const auto behind = log_.read(journal_.log_size, journal_.appended.size() + 1);
    if (!behind.ok() || !std::string_view(journal_.appended).starts_with(*behind.value))
      return false;
    return log_.cut(journal_.log_size) == FileError::kNone;
  }

  SaveResult end(SaveOutcome outcome, FileError error, std::string file = {}) {
    result_.outcome = outcome;
    result_.error = error;
    result_.failed = std::move(file);
    if (error != FileError::kNone && result_.failed.empty())
      result_.failed =
          outcome == SaveOutcome::kLogbookFailed ? request_.logbook_path : request_.report_path;
    // Only a save that stays has closed a line; a repair tells of its own.
    result_.closed_line = 0;
    return result_;
  }

  platform::Files& files_;
  platform::LockedLog& log_;
  const SaveRequest& request_;
  Folders folders_;
  std::string content_;
  Journal journal_;
  SaveResult result_;
};

}  // namespace

std::string report_file_name(const Struct_Weather& record) {
  // Joined as they stand: that each has its full width is date_fault()'s to say.
  std::string name(last_two(record.Year));
  name.append(record.Month).append(record.YY).append(record.GG).append(kReportExtension);
  return name;
}

std::string earlier_report_file_name(int year, int month, int day, int hour) {
  hour -= 3;
  if (hour < 0) {
    hour += 24;
    --day;
  }
  if (day < 1) {
    --month;
    if (month < 1) {
      month = 12;
      --year;
    }
    day = days_of(year, month);
  }
  std::string name(last_two(text::format_digits(year, 2)));
  for (const int part : {month, day, hour}) name.append(text::format_int(part, 2));
  std::replace(name.begin(), name.end(), ' ', '0');
  return name.append(kReportExtension);
}

std::string earlier_report_path(const std::string& folder, const Struct_Weather& record) {
  return platform::join(folder, earlier_report_file_name(
                                    text::leading_int(record.Year), text::leading_int(record.Month),
                                    text::leading_int(record.YY), text::leading_int(record.GG)));
}

std::optional<ReportDate> report_date(std::string_view name) {
  constexpr std::size_t kFigures = 8;
  if (!name.ends_with(kReportExtension)) return std::nullopt;
  name.remove_suffix(kReportExtension.size());
  name = platform::name_part(name);
  if (name.size() != kFigures || !text::is_all_digits(name)) return std::nullopt;
  return ReportDate{"20" + std::string(name.substr(0, 2)), std::string(name.substr(2, 2)),
                    std::string(name.substr(4, 2)), std::string(name.substr(6, 2))};
}

int hours_since_2000(const ReportDate& date) {
  constexpr int kHoursOfDay = 24;
  const int day = platform::day_number(text::leading_int(date.year), text::leading_int(date.month),
                                       text::leading_int(date.day));
  return day * kHoursOfDay + text::leading_int(date.hour);
}

std::optional<int> report_hour(std::string_view name) {
  const auto date = report_date(name);
  if (!date) return std::nullopt;
  return hours_since_2000(*date);
}

std::optional<DateFault> date_fault(const Struct_Weather& record) {
  // Year and month are sound by the time that the days of the month are asked for.
  const auto days = [&] {
    return platform::days_in_month(text::leading_int(record.Year), text::leading_int(record.Month));
  };
  const auto is_wrong = [](const std::string& part, const DateFault& rule) {
    if (part.size() != rule.figures || !text::is_all_digits(part)) return true;
    const int number = text::leading_int(part);
    return number < rule.low || number > rule.high;
  };
  if (const DateFault year{"Year", 4, 0, 9999}; is_wrong(record.Year, year)) return year;
  if (const DateFault month{"Month", 2, 1, 12}; is_wrong(record.Month, month)) return month;
  if (const DateFault day{"YY", 2, 1, days()}; is_wrong(record.YY, day)) return day;
  if (const DateFault hour{"GG", 2, 0, 23}; is_wrong(record.GG, hour)) return hour;
  return std::nullopt;
}

bool has_valid_date(const Struct_Weather& record) {
  return !date_fault(record);
}

std::string report_path(const std::string& folder, const Struct_Weather& record) {
  return platform::join(folder, report_file_name(record));
}

std::string logbook_path(const std::string& folder) {
  // Without a folder the name still has its backslash, as it always had: the root of the drive.
  return platform::join(folder.empty() ? "\\" : folder, kLogbookName);
}

std::string report_file_content(std::string_view message) {
  std::string content(message);
  std::replace(content.begin(), content.end(), '&', ' ');
  return content;
}

std::string damaged_journal_path(const std::string& logbook_folder) {
  return platform::join(logbook_folder, kDamagedJournalName);
}

Recovery recover(platform::Files& files, const std::string& reports_folder,
                 const std::string& logbook_folder) {
  if (reports_folder.empty() || logbook_folder.empty()) return {};
  const Folders folders{platform::join(reports_folder, ""), platform::join(logbook_folder, "")};
  // What a living save has staged is cleared by nobody else who holds the lock.
  const platform::Look note = files.look(folders.journal());
  // Whoever saves is asked for the disk; without it nobody can tell whether anything was noted.
  if (note.error == FileError::kMediumMissing) return {};
  if (note.there == There::kCannotTell) return failed(note.error, folders.journal());
  const bool noted = note.there != There::kNo;
  const bool logbook = files.look(logbook_path(logbook_folder)).there == There::kFile;
  if (!noted && (!logbook || !anything_staged(files, folders))) return {};
  const auto log = files.lock_log(logbook_path(logbook_folder));
  if (!log.ok()) {
    // Staged files alone can wait, and whoever holds the logbook sees to what was noted.
    if (!noted || log.error == FileError::kLocked) return {};
    return failed(log.error, folders.log());
  }
  return repair(files, **log.value, folders, false).told;
}

std::uint64_t room_for(const SaveRequest& request) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  Journal journal;
  journal.folder = platform::folder_part(request.report_path);
  journal.report = platform::name_part(request.report_path);
  // The longest name that staging gives.
  journal.staged = ".kavrel-999999999-999999999.part";
  journal.log_size = kMost;
  journal.appended = std::string(kLineEnd) + request.logbook_line + std::string(kLineEnd);
  journal.content = {kMost, kMost};
  return request.message.size() + journal.appended.size() + write_journal(journal).size();
}

bool is_saved(const platform::Files& files, const SaveRequest& request) {
  const auto report = files.read(request.report_path);
  if (!report.ok() || *report.value != report_file_content(request.message)) return false;
  const auto log = files.read(request.logbook_path);
  // The line end in front lets the first line be found like any other.
  const std::string line = "\n" + request.logbook_line + std::string(kLineEnd);
  return log.ok() && ("\n" + *log.value).find(line) != std::string::npos;
}

SaveResult save(platform::Files& files, const SaveRequest& request) {
  const auto log = files.lock_log(request.logbook_path);
  if (!log.ok()) return {SaveOutcome::kLogbookFailed, log.error, request.logbook_path};
  return Save(files, **log.value, request).run();
}

}  // namespace observation
