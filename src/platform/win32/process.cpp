#include "platform/system/process.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cerrno>
#include <cstdlib>

#include "platform/paths.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_program.h"

namespace platform {

namespace {

/// Puts what is printed to a console in UTF-8, and the console back at the end.
void speak_utf8() {
  static UINT before = 0;
  const auto is_console = [](DWORD which) {
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(which), &mode) != 0;
  };
  // What goes wrong is told on the console also where the rest goes into a file.
  if (before != 0 || (!is_console(STD_OUTPUT_HANDLE) && !is_console(STD_ERROR_HANDLE))) return;
  before = ::GetConsoleOutputCP();
  (void)::SetConsoleOutputCP(CP_UTF8);
  (void)std::atexit([] { (void)::SetConsoleOutputCP(before); });
}

}  // namespace

void prepare_process() {
  (void)::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

// A file that is opened takes the lowest number that is free. Without standard output or error that
// would be a file of the commands' own; so each that is missing is taken by something that fails
// when it is used.
void prepare_standard_files() {
  for (const int number : {0, 1, 2}) {
    if (::_get_osfhandle(number) < 0) {
      const int nothing = ::_open("NUL", number == 0 ? _O_WRONLY : _O_RDONLY);
      if (nothing >= 0 && nothing != number) {
        (void)::_dup2(nothing, number);
        (void)::_close(nothing);
      }
    }
    (void)::_setmode(number, _O_BINARY);
  }
  speak_utf8();
}

// There is no such signal here.
void end_with_the_reader() {}

std::vector<std::string> program_arguments(int /*count*/, char** /*words*/) {
  // Those of main() are in the user's code page.
  int count = 0;
  LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> result;
  for (int i = 1; words != nullptr && i < count; ++i)
    result.push_back(win32::to_utf8(words[i]).value_or("?"));
  ::LocalFree(words);
  return result;
}

bool standard_input_may_rewind() {
  // A pipe takes a new place in it without a word, and stays where it is.
  return ::GetFileType(::GetStdHandle(STD_INPUT_HANDLE)) == FILE_TYPE_DISK;
}

int go_on_as_program_beside(const std::string& name, const std::vector<std::string>& arguments) {
  const auto self = win32::executable();
  if (!self) return ENOENT;
  const auto program = win32::to_wide(join(folder_part(*self), name + ".exe"));
  if (!program || ::GetFileAttributesW(program->c_str()) == INVALID_FILE_ATTRIBUTES) return ENOENT;
  std::wstring line = win32::quoted(*program);
  for (const std::string& argument : arguments)
    line += L" " + win32::quoted(win32::to_wide(argument).value_or(L"?"));
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (::CreateProcessW(program->c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                       &start, &process) == 0)
    return ENOEXEC;
  // No process takes another's place here: this one waits, and ends as that one did.
  (void)::WaitForSingleObject(process.hProcess, INFINITE);
  DWORD status = 1;
  (void)::GetExitCodeProcess(process.hProcess, &status);
  std::exit(static_cast<int>(status));
}

}  // namespace platform
