#include "text/reasons.h"

#include <gtest/gtest.h>

#include <new>
#include <set>
#include <stdexcept>
#include <string>

namespace {

using platform::FileError;
using text::Language;

TEST(Reasons, EveryFileErrorHasWordsOfItsOwnInBothLanguages) {
  EXPECT_FALSE(text::reason_of(FileError::kNone));
  std::set<std::string> seen;
  const int last = static_cast<int>(FileError::kOther);
  for (int error = 1; error <= last; ++error) {
    const text::Id id = text::reason_of(static_cast<FileError>(error));
    for (const Language language : {Language::kEnglish, Language::kJapanese}) {
      const std::string words(text::bilingual(id, language));
      EXPECT_FALSE(words.empty()) << error;
      EXPECT_TRUE(seen.insert(words).second) << words;
    }
  }
}

TEST(Reasons, OfAnExceptionAreNeverEmpty) {
  const auto of = [](const std::exception_ptr& thrown) {
    return text::reason_of(thrown, Language::kEnglish);
  };
  EXPECT_EQ(of(std::make_exception_ptr(std::bad_alloc())), "out of memory");
  EXPECT_EQ(of(std::make_exception_ptr(std::bad_array_new_length())), "out of memory");
  EXPECT_EQ(of(std::make_exception_ptr(std::out_of_range("too far"))), "too far");
  EXPECT_EQ(of(std::make_exception_ptr(std::runtime_error(""))), "unknown cause");
  EXPECT_EQ(of(std::make_exception_ptr(7)), "unknown cause");
  EXPECT_EQ(of(nullptr), "unknown cause");
  EXPECT_EQ(text::reason_of(std::make_exception_ptr(7), Language::kJapanese), "原因不明");
}

}  // namespace
