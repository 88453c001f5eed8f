#pragma once
// The commands that work on observations without any dialog. Each takes the words behind its name,
// which are as its row in usage/programs.h has them, and gives the exit status: 0, 1 where a check
// found something, or 2 for wrong arguments and wrong input, told on standard error as
// "FILE:LINE: reason". The same for output that cannot be written, but for a reader that went away:
// a command that only prints then ends by SIGPIPE.

#include <string>
#include <vector>

#include "usage/command.h"

namespace cli {

inline constexpr int kOk = 0;
inline constexpr int kFound = 1;
inline constexpr int kWrong = 2;
/// Told, and the status kWrong, when what a command tells is received by nobody. main() sees to it
/// at the end; a command that goes on for long asks before.
inline constexpr const char* kOutputLost = "standard output cannot be written";

/// Each observation becomes a line of JSON with its report, the missing groups and the logbook line.
int encode_command(const usage::Words& words);

/// Each report becomes the lines of an observation file, with a comment for every word that could
/// not be placed.
int read_command(const usage::Words& words);

/// Each line of the logbook becomes an observation. A line or a column that cannot be read is named
/// on standard error and stops nothing.
///
/// With --check: tells what is wrong in the lines and between them: a summary for a person, and in
/// the file of --list or instead of the summary a line of JSON for each finding.
int logbook_command(const usage::Words& words);

/// Each report in plain words, a line for each group. Year and month are those of a file named
/// YYMMDDHH.tlx, else those that are given.
int explain_command(const usage::Words& words);

/// Writes both files of each observation and tells where.
int save_command(const usage::Words& words);

/// Starts kavrel-bufr, which writes each observation as a BUFR message and lies beside this program
/// where ecCodes is there. Takes the words as they were given.
int bufr_command(const std::vector<std::string>& arguments);

}  // namespace cli
