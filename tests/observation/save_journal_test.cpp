#include "observation/save_journal.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using observation::Found;
using observation::Journal;
using observation::LineFound;
using observation::Repair;

Journal sample() {
  Journal journal;
  journal.folder = "C:\\my reports\\";
  journal.report = "14111512.tlx";
  journal.staged = ".kavrel-12-0.part";
  journal.replace = true;
  journal.log_existed = true;
  journal.log_size = 1234;
  journal.appended = "\nLINE 2\n";
  journal.content = observation::mark_of("BBXX .....");
  return journal;
}

TEST(SaveJournal, ComesBackAsItWasWritten) {
  Journal journal = sample();
  EXPECT_EQ(observation::read_journal(observation::write_journal(journal)), journal);
  journal.folder = std::string("C:\\\n9\nreport 3\n\0\xFF\\", 18);
  journal.replace = false;
  journal.log_existed = false;
  journal.log_size = 0;
  EXPECT_EQ(observation::read_journal(observation::write_journal(journal)), journal);
  journal.log_existed = true;
  journal.log_size = 18446744073709551615U;
  EXPECT_EQ(observation::read_journal(observation::write_journal(journal)), journal);
}

TEST(SaveJournal, WhateverIsNotWholeIsNoJournal) {
  const std::string text = observation::write_journal(sample());
  for (std::size_t length = 0; length < text.size(); ++length)
    EXPECT_FALSE(observation::read_journal(text.substr(0, length))) << length;
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (const unsigned bit : {1U, 0x40U, 0x80U}) {
      std::string changed = text;
      changed[at] = static_cast<char>(static_cast<unsigned char>(changed[at]) ^ bit);
      EXPECT_FALSE(observation::read_journal(changed)) << at;
    }
  }
  EXPECT_FALSE(observation::read_journal(text + "x"));
  std::string later = text;
  later.replace(later.find('1'), 1, "2");
  EXPECT_FALSE(observation::read_journal(later)) << "of a later version";
}

TEST(SaveJournal, AnyBytesAreSurvived) {
  std::mt19937 random(7);
  const std::string text = observation::write_journal(sample());
  for (int i = 0; i < 20000; ++i) {
    std::string bytes = i % 2 == 0 ? text : std::string(random() % 400, '\0');
    const auto changes = 1 + random() % 5;
    for (std::size_t k = 0; k < changes && !bytes.empty(); ++k)
      bytes[random() % bytes.size()] = static_cast<char>(random());
    const bool is_journal = observation::read_journal(bytes).has_value();
    EXPECT_EQ(is_journal, bytes == text);
  }
}

TEST(SaveJournal, AForgedOneNamesNoOtherFile) {
  // Rightly summed all the same: only the names are wrong.
  const auto with = [](std::string Journal::*member, const char* name) {
    Journal journal = sample();
    journal.*member = name;
    return observation::read_journal(observation::write_journal(journal));
  };
  for (const char* name : {"", ".tlx", "..\\14111512.tlx", "../14111512.tlx", "C:14111512.tlx",
                           "immt5.log", "14111512.tlx\\", "FIXDATA.DAT", "1411 512.tlx", "x.tlx"})
    EXPECT_FALSE(with(&Journal::report, name)) << name;
  for (const char* name : {"", "14111512.tlx", "..\\.kavrel-1-0.part", ".kavrel-1-0.part\\x",
                           "immt5.log", ".kavrel-1-..\\0.part"})
    EXPECT_FALSE(with(&Journal::staged, name)) << name;
  EXPECT_TRUE(with(&Journal::report, "15010100.tlx"));
  EXPECT_TRUE(with(&Journal::staged, ".kavrel-1-1.part"));
  EXPECT_FALSE(with(&Journal::appended, ""));
  Journal impossible = sample();
  impossible.log_existed = false;
  EXPECT_FALSE(observation::read_journal(observation::write_journal(impossible)))
      << "bytes in a logbook that was not there";
}

TEST(SaveJournal, TheLineIsKnownByItsBytes) {
  Journal journal = sample();
  journal.log_size = 10;
  journal.appended = "LINE2\n";
  const struct {
    std::uint64_t size;
    std::string behind;
    LineFound found;
  } rows[] = {
      {9, "", LineFound::kForeign},
      {0, "", LineFound::kForeign},
      {10, "", LineFound::kNone},
      {11, "L", LineFound::kPart},
      {15, "LINE2", LineFound::kPart},
      {16, "LINE2\n", LineFound::kLast},
      {17, "LINE2\n", LineFound::kFollowed},
      {99, "LINE2\nLINE3", LineFound::kFollowed},
      {16, "LINE3\n", LineFound::kForeign},
      {12, "XI", LineFound::kForeign},
      {99, "LINE3\nLINE4\n", LineFound::kForeign},
      {17, "LINELI", LineFound::kForeign},
      {16, std::string("LIN\0\0\0", 6), LineFound::kPart},
      {16, std::string(6, '\0'), LineFound::kPart},
      {17, std::string("LIN\0\0\0", 6), LineFound::kForeign},
      {16, std::string("L\0NE2\n", 6), LineFound::kForeign},
  };
  for (const auto& row : rows)
    EXPECT_EQ(observation::line_found(journal, row.size, row.behind), row.found)
        << row.size << " " << row.behind;
}

TEST(SaveJournal, EveryCombinationOfWhatIsFoundHasItsRepair) {
  const struct {
    LineFound line;
    // report is it: no, no, yes, yes; staged is it: no, yes, no, yes
    Repair repair[4];
  } rows[] = {
      {LineFound::kNone,
       {Repair::kTakeBack, Repair::kTakeBack, Repair::kTakeBack, Repair::kTakeBack}},
      {LineFound::kPart,
       {Repair::kTakeBack, Repair::kTakeBack, Repair::kTakeBack, Repair::kTakeBack}},
      // A report that is nowhere: it was there and was moved, or its drive is away. Nothing that
      // may have been saved is cut off.
      {LineFound::kLast, {Repair::kLeaveLine, Repair::kFinish, Repair::kDone, Repair::kDone}},
      {LineFound::kFollowed, {Repair::kLeaveLine, Repair::kFinish, Repair::kDone, Repair::kDone}},
      {LineFound::kForeign,
       {Repair::kDoNotTrust, Repair::kDoNotTrust, Repair::kDoNotTrust, Repair::kDoNotTrust}},
  };
  for (const auto& row : rows)
    for (unsigned i = 0; i < 4; ++i)
      EXPECT_EQ(observation::decide({row.line, (i & 2U) != 0, (i & 1U) != 0}), row.repair[i])
          << static_cast<int>(row.line) << i;
}

}  // namespace
