#pragma once
// The two files of a save: the report in a file of its own, and one line more in the logbook.
//
// A save either happens or leaves both files as they were. What save() does, in this order, all of
// it under the logbook's lock, and what a program that is killed behind each step leaves:
//
//   step                                        left behind             the next start or save
//   1. the logbook is locked                    both old (perhaps a     -
//                                               new empty logbook)
//   2. what an earlier save left is repaired    see recover()           goes on with it
//   3. the report is staged beside its place    both old, a ".part"     clears the ".part"
//   4. the journal is written beside the        both old, ".part" and   takes back: discards the
//      logbook (save_journal.h)                 journal                 ".part"
//   5. the line is appended, in one write       the line or a part of   finishes: renames the
//                                               it, ".part", journal    report; cuts a part off
//   6. the report is renamed into its place     both new, the journal   removes the journal
//   7. the journal is removed                   both new                -
//
//   When 6 fails, the line is cut off again, the staged report and then the journal are removed;
//   killed between these: as behind 4. When the cutting fails (kLineLeft), staged report and
//   journal stay, as behind 5, and the next start or save goes on from there. A line whose report
//   is neither in its place nor staged is never cut off: it was moved.
//
// Where the folder of that report cannot be reached now (its drive is away):
//
//   the logbook holds the whole line            the journal stays, with the line and whatever is
//                                               staged there; each start tells it and tries again.
//                                               A save writes nothing and says so, or goes on when
//                                               it is asked to (leave_unreachable): the line then
//                                               stays without its report, and the journal goes
//   it holds a part of the line, or nothing     takes back: the report was never renamed, and what
//                                               is staged there is cleared when it is back
//
// A journal that cannot be read stays as it is: a start tells it, and a save writes nothing.
//
// What a person sees as a save that failed and whose disk then came back is never saved twice: when
// the repair finishes the very save that is asked for, save() has nothing more to do.
//
// A start calls recover() once the folders are known; save() repairs by itself. Both tell what they
// did, and the caller tells the officer. Between a power failure and the disk the journal stands as
// firm as its file system keeps a rename in order with later flushes; its folder is not flushed.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "observation/Struct_Weather.h"
#include "platform/ports.h"

namespace observation {

inline constexpr std::string_view kReportExtension = ".tlx";
inline constexpr std::string_view kLogbookName = "immt5.log";

/// No report of this program is longer; what is has no place in a list and is not read.
inline constexpr std::uint64_t kLargestReport = 64U << 10U;

/// "YYMMDDHH.tlx" from the last two figures of Year and Month, YY and GG as stored; only ".tlx"
/// when none is entered.
[[nodiscard]] std::string report_file_name(const Struct_Weather& record);

/// Name of the report three hours before the given hour (UTC). Every year divisible by 4 has a 29
/// February, centuries too.
[[nodiscard]] std::string earlier_report_file_name(int year, int month, int day, int hour);
/// The same for the record's date and hour, in the folder, as report_path() puts it there.
[[nodiscard]] std::string earlier_report_path(const std::string& folder,
                                              const Struct_Weather& record);

/// What a report's file name tells of its date, which the report itself does not hold.
struct ReportDate {
  std::string year, month, day, hour;  ///< four and two figures
};
/// From a name or path ending in "YYMMDDHH.tlx" (the years 2000 to 2099), else nothing.
[[nodiscard]] std::optional<ReportDate> report_date(std::string_view name);
/// Hours from the beginning of 2000 to a date of the calendar from then on.
[[nodiscard]] int hours_since_2000(const ReportDate& date);
/// The same of a report's name or path; nothing when it tells no date.
[[nodiscard]] std::optional<int> report_hour(std::string_view name);

/// What is wrong with a record's date and hour: the first field at fault and what it may hold.
struct DateFault {
  std::string_view field;  ///< "Year", "Month", "YY" or "GG"
  std::size_t figures;     ///< how many it has, no more and no less
  int low, high;           ///< the numbers that it may be
};
/// Nothing when year, month, day and hour are set with exactly 4, 2, 2 and 2 figures, form a date
/// of the calendar and the hour is 0-23. The figures are counted because they name the report: "6"
/// and "06" would be two files of one hour, and "1" and "11" behind one another could name another.
[[nodiscard]] std::optional<DateFault> date_fault(const Struct_Weather& record);
/// True when there is no such fault.
[[nodiscard]] bool has_valid_date(const Struct_Weather& record);

/// Folder and name, with a backslash put between when there is none; without a folder the name.
[[nodiscard]] std::string report_path(const std::string& folder, const Struct_Weather& record);
/// The logbook of the folder, with a backslash put between when there is none.
[[nodiscard]] std::string logbook_path(const std::string& folder);

/// The message as it is written: every "&" a space.
[[nodiscard]] std::string report_file_content(std::string_view message);

struct SaveRequest {
  std::string report_path;
  std::string logbook_path;
  std::string message;       ///< of encode_report()
  std::string logbook_line;  ///< of encode_logbook(), without line end
  bool replace = false;      ///< an existing report may be replaced
  /// What that report held when somebody allowed it; when set, no other one is replaced (but for
  /// one that a program without our lock puts there in the very moment of the rename).
  std::optional<std::string> replaces = {};
  /// An interrupted save whose report cannot be reached now is left with its line alone.
  bool leave_unreachable = false;
};

enum class SaveOutcome {
  kSaved,
  kAlreadyExists,  ///< the report exists and may not be replaced; nothing was written
  kReportFailed,   ///< the report could not be written; both files are as they were
  kLogbookFailed,  ///< the line could not be appended; both files are as they were
  kLineLeft,       ///< the save failed and the line, or a part of it, could not be taken back: the
                   ///< next start or save finishes this one or takes it back
};

/// What became of a save that had been interrupted.
enum class Recovered {
  kNothing,    ///< there was none
  kFinished,   ///< both files are there now
  kTakenBack,  ///< both files are as they were before it
  kLineLeft,   ///< its line stands in the logbook; the report as it was saved is not there
  kPutAside,   ///< what it had noted makes no sense; it lies in kDamagedJournalName now
};
struct Recovery {
  Recovered outcome = Recovered::kNothing;
  std::string report;      ///< name of its report, without a folder; none for kPutAside
  std::uint64_t line = 0;  ///< number of its line in the logbook, from 1
  /// Why it could be neither finished nor taken back now: everything is as it was found.
  platform::FileError error = platform::FileError::kNone;
  std::string failed = {};  ///< the file or folder that it was; empty when none failed
  /// With an error: all that is missing is the folder of its report; `report` and `line` are set.
  bool unreachable = false;
  std::uint64_t closed_line = 0;  ///< as in SaveResult, of the line that stands there now
};

/// Where recover() and save() put a journal that they do not trust.
[[nodiscard]] std::string damaged_journal_path(const std::string& logbook_folder);

/// Finishes or takes back what an interrupted save left in the two folders, and clears what dead
/// processes staged there. Nothing happens where a folder is empty, where the logbook's medium is
/// missing, or while another program holds the logbook: the save of that program sees to it.
/// Touches nothing but the logbook, the journal, staged files, and the report that the journal
/// names, in `reports_folder` or in the folder of the journal.
[[nodiscard]] Recovery recover(platform::Files& files, const std::string& reports_folder,
                               const std::string& logbook_folder);

struct SaveResult {
  SaveOutcome outcome = SaveOutcome::kSaved;
  platform::FileError error = platform::FileError::kNone;  ///< why, when it failed
  std::string failed;             ///< the file that it was; empty when none failed
  Recovery recovered = {};        ///< what this save found and repaired first
  std::uint64_t closed_line = 0;  ///< number of the logbook's last line, which had no end and was
                                  ///< closed before the new one; 0 when it was whole
  bool without_lock = false;      ///< the file system has no locks: no other program is kept out
};

/// Bytes that a save may need on one disk: both files' and what it notes beside the logbook.
[[nodiscard]] std::uint64_t room_for(const SaveRequest& request);

/// True when both files hold already what such a save would write: the report in its place, and the
/// line as a whole one anywhere in the logbook. False also when one cannot tell.
[[nodiscard]] bool is_saved(const platform::Files& files, const SaveRequest& request);

/// Writes both files, or neither. kLogbookFailed with kLocked: another program holds the logbook;
/// with an error of `recovered`: what an interrupted save left is in the way.
[[nodiscard]] SaveResult save(platform::Files& files, const SaveRequest& request);

}  // namespace observation
