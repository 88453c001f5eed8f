#pragma once
// What a program does with its own process, whichever system it runs on.

#include <string>
#include <vector>

namespace platform {

/// For a program's start: what the system would do on its own account when a file fails (end the
/// program in the middle of a save, or ask the person in a window of its own) becomes an error of
/// the call.
void prepare_process();

/// For a program that reads and writes standard files: bytes go through as they are, nothing that is
/// opened takes the place of one that is missing, and a reader that has gone away is told like any
/// other output that cannot be written.
void prepare_standard_files();

/// The words behind the program's name, in UTF-8 where the system has its names in Unicode, else as
/// they are. Takes those of main().
[[nodiscard]] std::vector<std::string> program_arguments(int count, char** words);

/// False where standard input cannot be read a second time, although the system says it could.
[[nodiscard]] bool standard_input_may_rewind();

/// The program of that name beside this one goes on in place of this process, with these arguments,
/// and its exit status is this one's. Comes back only when there is no such program (ENOENT) or it
/// cannot be started, with the error number.
[[nodiscard]] int go_on_as_program_beside(const std::string& name,
                                          const std::vector<std::string>& arguments);

}  // namespace platform
