#pragma once
// Where the program's own files lie: help, pictures, the sea map, the seed of the settings.

#include <string>

namespace platform::posix {

/// The path under which a program knows itself and finds its files beside it. Where it is built they
/// are. Installed, in a folder "bin", its files are in share/kavrel beside that, as the file-system
/// standard has it: then it is the path that it would have there.
[[nodiscard]] std::string program_path(const std::string& executable);

}  // namespace platform::posix
