// The texts of FIXDATA.DAT in code page 932, on the real conversion.

#include "ship/data/ship_text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "fakes/rounds.h"
#include "platform/system/system.h"
#include "ship/data/ship_files.h"
#include "text/strings.h"

namespace {

constexpr platform::DateTime kNow{2014, 11, 15, 11, 50, 0};
constexpr std::size_t kPortAt = 21;
constexpr std::size_t kPortWidth = 24;
const std::unique_ptr<platform::CodePage> kMadeCodePage = platform::make_code_page();
const platform::CodePage& kCodePage = *kMadeCodePage;

struct Port {
  std::string name;
  std::string bytes;  // in code page 932, worked out by another program
};

std::vector<Port> ports() {
  std::ifstream in(KAVREL_TEST_DATA "/japanese_ports.txt");
  std::vector<Port> result;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("#")) continue;
    const auto tab = line.find('\t');
    Port port{line.substr(0, tab), {}};
    for (std::size_t i = tab + 1; i + 1 < line.size(); i += 2)
      port.bytes += static_cast<char>(std::stoi(line.substr(i, 2), nullptr, 16));
    result.push_back(port);
  }
  return result;
}

// A good line with these bytes in the field of the port.
std::string line_with_port(std::string bytes) {
  ShipFixedData data;
  data.call_sign = "JCCX";
  data.aws_fitted = true;
  data.aws_manufacturer = "AWS CO.";
  std::string line = encode_fixed_data(data, kNow, kCodePage);
  bytes.resize(kPortWidth, ' ');
  return line.replace(kPortAt, kPortWidth, bytes);
}

ShipFixedData decoded(const std::string& line) {
  const auto data = decode_fixed_data(line, kNow, kCodePage);
  EXPECT_TRUE(data.has_value());
  return data.value_or(ShipFixedData{});
}

std::string port_of(const std::string& line) {
  return decoded(line).card.check_port;
}

// As earlier versions wrote a port: UTF-8, as many whole characters as fit.
std::string cut_utf8(const std::string& name) {
  std::size_t count = text::length(name);
  while (text::first(name, count).size() > kPortWidth) --count;
  return std::string(text::first(name, count));
}

TEST(PortName, IsWrittenInCodePage932AndReadsBackAsItself) {
  const auto all = ports();
  ASSERT_GE(all.size(), 200U);
  for (const Port& port : all) {
    ASSERT_LE(text::length(port.name), 12U) << port.name;
    ShipFixedData data;
    data.card.check_port = port.name;
    std::string wanted = port.bytes;
    wanted.resize(kPortWidth, ' ');
    const std::string line = encode_fixed_data(data, kNow, kCodePage);
    ASSERT_EQ(line.size(), kFixedDataSize) << port.name;
    EXPECT_EQ(line.substr(kPortAt, kPortWidth), wanted) << port.name;
    EXPECT_EQ(port_of(line), port.name);
    EXPECT_EQ(port_of(line_with_port(port.bytes)), port.name);
  }
}

TEST(PortName, OfAnEarlierVersionIsReadAndThenWrittenInCodePage932) {
  for (const Port& port : ports()) {
    // Half-width katakana have three bytes in UTF-8 as well.
    const std::string kept = cut_utf8(port.name);
    const ShipFixedData data = decoded(line_with_port(kept));
    EXPECT_EQ(data.card.check_port, kept) << port.name;
    const std::string again = encode_fixed_data(data, kNow, kCodePage);
    EXPECT_TRUE(port.bytes.starts_with(std::string(text::trim(again.substr(kPortAt, kPortWidth)))))
        << port.name;
    EXPECT_EQ(port_of(again), kept);
  }
}

TEST(PortName, OfTwelveFullWidthCharactersFillsItsField) {
  const std::string name = "北海道苫小牧港第三埠頭西";
  ASSERT_EQ(text::length(name), 12U);
  ShipFixedData data;
  data.card.check_port = name;
  const std::string line = encode_fixed_data(data, kNow, kCodePage);
  ASSERT_EQ(line.size(), kFixedDataSize);
  EXPECT_EQ(line[kPortAt + kPortWidth - 1], kCodePage.encode("西")->back());
  EXPECT_EQ(line.substr(kPortAt + kPortWidth, 6), "0+0.0 ");
  EXPECT_EQ(port_of(line), name);
}

TEST(PortName, IsCutAtAWholeCharacter) {
  const struct {
    std::string name;
    std::string kept;
  } rows[] = {
      {"北海道苫小牧港第三埠頭西東", "北海道苫小牧港第三埠頭西"},
      {"X北海道苫小牧港第三埠頭西", "X北海道苫小牧港第三埠頭"},
      {"XY北海道苫小牧港第三埠頭西", "XY北海道苫小牧港第三埠頭"},
      {"ﾎ北海道苫小牧港第三埠頭西", "ﾎ北海道苫小牧港第三埠頭"},
  };
  for (const auto& row : rows) {
    ShipFixedData data;
    data.card.check_port = row.name;
    EXPECT_EQ(port_of(encode_fixed_data(data, kNow, kCodePage)), row.kept);
  }
}

// Names whose second bytes are those of a backslash, a bar, an underscore or a letter.
TEST(PortName, IsNotBrokenByASecondByteThatLooksLikeASign) {
  for (const char* name : {"能代", "ソーソ", "ポート", "ダーウィン", "ミナト", "表"}) {
    ShipFixedData data;
    data.card.check_port = name;
    data.aws_fitted = true;
    data.aws_manufacturer = name;  // its field drops every "_"
    const ShipFixedData back = decoded(encode_fixed_data(data, kNow, kCodePage));
    EXPECT_EQ(back.card.check_port, name);
    EXPECT_EQ(back.aws_manufacturer, name);
  }
}

// No two kanji of code page 932 are taken for UTF-8, whatever they are.
TEST(PortName, OfUpToTwoKanjiIsNeverTakenForUtf8) {
  std::vector<std::string> all;
  for (int lead = 0x81; lead <= 0xFC; ++lead) {
    if (lead > 0x9F && lead < 0xE0) continue;
    for (int second = 0x40; second <= 0xFC; ++second) {
      std::string bytes{static_cast<char>(lead), static_cast<char>(second)};
      if (kCodePage.decode(bytes).find(platform::kNoCharacter) == std::string::npos)
        all.push_back(bytes);
    }
  }
  ASSERT_GT(all.size(), 7000U);
  int possible = 0;
  for (const std::string& first : all) {
    ASSERT_EQ(from_ship_bytes(first + "  ", kCodePage), kCodePage.decode(first + "  "));
    // UTF-8 needs a first byte of its own and a second one that continues.
    const auto lead = static_cast<unsigned char>(first[0]);
    const auto next = static_cast<unsigned char>(first[1]);
    if (lead < 0xE0 || next < 0x80 || next > 0xBF) continue;
    for (std::size_t i = static_cast<std::size_t>(possible) % 101; i < all.size(); i += 101) {
      const std::string bytes = first + all[i] + "  ";
      ASSERT_EQ(from_ship_bytes(bytes, kCodePage), kCodePage.decode(bytes));
    }
    ++possible;
  }
  EXPECT_GT(possible, 100);
}

TEST(PortName, InHalfWidthKatakanaIsNeverTakenForUtf8) {
  for (int first = 0xA1; first <= 0xDF; ++first) {
    for (int second = 0xA1; second <= 0xDF; ++second) {
      for (int third = 0xA1; third <= 0xDF; ++third) {
        const std::string bytes{static_cast<char>(first), static_cast<char>(second),
                                static_cast<char>(third)};
        ASSERT_EQ(text::length(from_ship_bytes(bytes, kCodePage)), 3U);
      }
    }
  }
}

// Where the rule goes wrong, so that nobody is surprised; each has both readings.
TEST(PortName, IsReadAsCodePage932WhenBothReadingsAreAsLikely) {
  EXPECT_EQ(from_ship_bytes("Málaga", kCodePage), "Mﾃ｡laga") << "half-width katakana look alike";
  EXPECT_EQ(from_ship_bytes("神戸A", kCodePage), kCodePage.decode("神戸A"))
      << "a letter behind a kanji is a second byte";
}

// ---- Any bytes

TEST(ShipFileBytes, SurviveEveryValueAtEveryOffset) {
  for (const std::string& base : {line_with_port("YOKOHAMA"), line_with_port("\x89\xA1\x95\x6C"),
                                  line_with_port("横浜"), std::string(kFixedDataSize, ' ')}) {
    // The fields beside the port are the same in all of these lines.
    const bool port_only = base != line_with_port("\x89\xA1\x95\x6C");
    const std::size_t begin = port_only ? kPortAt : 0;
    const std::size_t end = port_only ? kPortAt + kPortWidth : kFixedDataSize;
    for (std::size_t at = begin; at < end; ++at) {
      for (int value = 0; value < 256; value += fakes::stride()) {
        std::string line = base;
        line[at] = static_cast<char>(value);
        // A control character makes the file as unusable as a wrong size does.
        if (value < 0x20 || value == 0x7F) {
          ASSERT_FALSE(decode_fixed_data(line, kNow, kCodePage)) << at << " " << value;
          continue;
        }
        const std::string once = encode_fixed_data(decoded(line), kNow, kCodePage);
        ASSERT_EQ(once.size(), kFixedDataSize) << at << " " << value;
        // Once is not enough: the strokes of a date are lost, and a damaged line of an earlier
        // version may be seen for one only when the damage has become a question mark.
        const std::string twice = encode_fixed_data(decoded(once), kNow, kCodePage);
        ASSERT_EQ(twice.size(), kFixedDataSize) << at << " " << value;
        if (twice == once) continue;
        ASSERT_EQ(encode_fixed_data(decoded(twice), kNow, kCodePage), twice) << at << " " << value;
      }
    }
  }
}

// Whatever stands in one field, the others read as before.
TEST(ShipFileBytes, DamagedInOneFieldNeverTouchTheNext) {
  const ShipFixedData good = decoded(line_with_port("YOKOHAMA"));
  for (const std::string damage : {"\x89", "\x80", "\xA0", "\xFF", "\xE3\x83", "\xD6"}) {
    for (std::size_t end : {kPortAt, kPortAt + kPortWidth}) {
      std::string line = line_with_port("YOKOHAMA");
      line.replace(end - damage.size(), damage.size(), damage);
      ShipFixedData read = decoded(line);
      // The date ends where the port begins.
      read.card.check_date = good.card.check_date;
      if (end != kPortAt) {
        EXPECT_TRUE(read.card.check_port.starts_with("YOKOHAMA"));
        read.card.check_port = good.card.check_port;
      }
      EXPECT_EQ(read, good) << end;
    }
  }
}

TEST(ShipFileBytes, ThatAreNoCharacterAreMarkedAndWrittenAsAQuestionMark) {
  const std::string line = line_with_port("\x89\xA1\xFF\x95");
  EXPECT_EQ(port_of(line), "横\uFFFD\uFFFD");
  EXPECT_EQ(encode_fixed_data(decoded(line), kNow, kCodePage).substr(kPortAt, 5), "\x89\xA1?? ");
}

TEST(ShipFileBytes, OfOtherTextFieldsAreOneCharacterEach) {
  std::string line = line_with_port("");
  line.replace(6, 7,
               "AB\xFF"
               "CD\xB1 ");
  line.replace(82, 3,
               "\xB1"
               "12");
  line.replace(13, 8,
               "20\xFF\xFF"
               "08\xB1"
               "9");
  const ShipFixedData data = decoded(line);
  EXPECT_EQ(data.call_sign, "AB\uFFFDCDｱ");
  EXPECT_EQ(data.vosclim_load_line_departure, "-12");
  EXPECT_EQ(data.card.check_date, "20\uFFFD\uFFFD/08/ｱ9");
}

// ---- What a person may enter

TEST(ShipText, NamesTheFirstCharacterThatCanNotBeKept) {
  const struct {
    const char* text;
    const char* unknown;
  } rows[] = {
      {"Málaga", "á"},       {"横浜😀", "😀"},          {"宁波", "宁"},     {"¥", "¥"},
      {"X\uFFFD", "\uFFFD"}, {"X\xE6\xA8", "\uFFFD"}, {"\xFF", "\uFFFD"}, {"\x80Y", "\uFFFD"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(first_unknown(row.text, kCodePage), row.unknown) << row.text;
  for (const char* text : {"", "YOKOHAMA", "横浜", "ﾖｺﾊﾏ", "〜", "ＫＯＢＥ", "①", "髙"})
    EXPECT_EQ(first_unknown(text, kCodePage), std::nullopt) << text;
}

TEST(ShipText, CountsBytesOfCodePage932) {
  EXPECT_EQ(ship_bytes("YOKOHAMA", kCodePage), 8U);
  EXPECT_EQ(ship_bytes("横浜", kCodePage), 4U);
  EXPECT_EQ(ship_bytes("ﾖｺﾊﾏ", kCodePage), 4U);
  EXPECT_EQ(ship_bytes("Aé", kCodePage), 2U);
}

TEST(ShipText, IsKeptWithTwinsInPlace) {
  EXPECT_EQ(as_kept("横浜〜神戸", kCodePage), "横浜～神戸");
  EXPECT_EQ(as_kept("é横", kCodePage), "é横");
  EXPECT_EQ(as_kept("", kCodePage), "");
}

}  // namespace
