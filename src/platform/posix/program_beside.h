#pragma once
// Another program of ours in the folder of this one.

#include <string>
#include <vector>

namespace platform::posix {

/// The program of that name beside this one goes on in place of this process, with these arguments,
/// and its exit status is this one's. Comes back only when there is no such program (ENOENT) or it
/// cannot be started, with the error number.
[[nodiscard]] int go_on_as_program_beside(const std::string& name,
                                          const std::vector<std::string>& arguments);

}  // namespace platform::posix
