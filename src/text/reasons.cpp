#include "text/reasons.h"

#include <new>

#include "text/ids.h"

namespace text {

Id reason_of(platform::FileError error) {
  using platform::FileError;
  // A switch, so that the compiler misses a reason that has no words.
  switch (error) {
    case FileError::kNone:
      return {};
    case FileError::kNotFound:
      return id::kReasonNotFound;
    case FileError::kAccessDenied:
      return id::kReasonNotPermitted;
    case FileError::kNoSpace:
      return id::kReasonNoSpace;
    case FileError::kMediumMissing:
      return id::kReasonNoMedium;
    case FileError::kNotAFile:
      return id::kReasonNotAFile;
    case FileError::kBadLink:
      return id::kReasonBadLink;
    case FileError::kTooManyOpen:
      return id::kReasonTooManyOpen;
    case FileError::kBadName:
      return id::kReasonBadName;
    case FileError::kLocked:
      return id::kReasonLocked;
    case FileError::kExists:
      return id::kReasonExists;
    case FileError::kNoMemory:
      return id::kReasonNoMemory;
    case FileError::kOther:
      return id::kReasonInputOutput;
  }
  return id::kReasonUnknown;
}

std::string reason_of(const std::exception_ptr& thrown, Language language) {
  std::string_view reason = bilingual(id::kReasonUnknown, language);
  std::string said;
  try {
    if (thrown) std::rethrow_exception(thrown);
  } catch (const std::bad_alloc&) {
    reason = bilingual(id::kReasonNoMemory, language);
  } catch (const std::exception& what) {
    said = what.what();
    if (!said.empty()) reason = said;
  } catch (...) {
  }
  return std::string(reason);
}

}  // namespace text
