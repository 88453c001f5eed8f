#pragma once
// Why something could not be done, in words. The same words stand in the messages of both languages
// and on the command line, which speaks English.

#include <exception>
#include <string>

#include "platform/ports.h"
#include "text/texts.h"

namespace text {

/// Id of the words for an error of the files port ("no space left"); 0 for kNone.
[[nodiscard]] Id reason_of(platform::FileError error);

/// The words for an exception that nobody expected: memory that ran out, else what the exception
/// says of itself (English), else that the cause is unknown. Never empty.
[[nodiscard]] std::string reason_of(const std::exception_ptr& thrown, Language language);

}  // namespace text
