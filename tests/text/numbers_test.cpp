#include "text/numbers.h"

#include <gtest/gtest.h>

#include "text/strings.h"

namespace {

TEST(Numbers, FixedFormatsAsPrintfDoes) {
  EXPECT_EQ(text::format_fixed(5.2, 1, 4), " 5.2");
  EXPECT_EQ(text::format_fixed(998.7, 1, 6, '0'), "0998.7");
  EXPECT_EQ(text::format_fixed(-1.2, 1, 5, '0'), "-01.2");
  EXPECT_EQ(text::format_fixed(1013.25, 1),
            "1013.2");  // the double is exactly half-way: to even, as printf
  EXPECT_EQ(text::format_fixed(-0.04, 1), "-0.0");
}

TEST(Numbers, DigitsPadBehindTheSign) {
  EXPECT_EQ(text::format_digits(7, 2), "07");
  EXPECT_EQ(text::format_digits(-7, 2), "-07");
  EXPECT_EQ(text::format_int(7, 2), " 7");
  EXPECT_EQ(text::format_int(-7, 4, '0'), "-007");
}

TEST(Numbers, LeadingNumberIgnoresTheRest) {
  EXPECT_EQ(text::leading_number("  +12.5hPa"), 12.5);
  EXPECT_EQ(text::leading_number("-.5"), -0.5);
  EXPECT_EQ(text::leading_number("12,5"), 12.0);
  EXPECT_EQ(text::leading_number("1e2x"), 100.0);
  for (const char* none : {"", "-", "+-1", "inf", "nan", "x1", "."})
    EXPECT_EQ(text::leading_number(none), 0.0) << none;
  EXPECT_EQ(text::leading_number("1e999"), 0.0);
}

TEST(Numbers, LeadingIntClamps) {
  EXPECT_EQ(text::leading_int(" 042x"), 42);
  EXPECT_EQ(text::leading_int("-7.9"), -7);
  EXPECT_EQ(text::leading_int("99999999999999999999"), 2147483647);
  EXPECT_EQ(text::leading_int("/"), 0);
}

TEST(Narrow, FullWidthFormsBecomeSingleWidth) {
  EXPECT_EQ(text::narrow("ＡＢ１２＊．，＋－"), "AB12*.,+-");
  EXPECT_EQ(text::narrow("Ａ　Ｂ"), "A B");
  EXPECT_EQ(text::narrow("Ａ　Ｂ", text::WideSpace::kRemoved), "AB");
  EXPECT_EQ(text::narrow("東京 12\xff\xe3"), "東京 12\xff\xe3");
}

TEST(Strings, CountAndCutCharactersNotBytes) {
  EXPECT_EQ(text::length("東京a"), 3U);
  EXPECT_EQ(text::first("東京a", 2), "東京");
  EXPECT_EQ(text::first("abc", 9), "abc");
}

TEST(Strings, ControlCharactersAreThoseBelowABlankAndTheDeleteCharacter) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const bool control = byte < 32 || byte == 127;
    EXPECT_EQ(text::is_control(c), control) << byte;
    EXPECT_EQ(text::has_control(std::string("a") + c + "b"), control) << byte;
  }
  EXPECT_FALSE(text::has_control(""));
}

TEST(Strings, AByteOrderMarkIsTakenOffInFrontOnly) {
  EXPECT_EQ(text::without_byte_order_mark("\xEF\xBB\xBFx"), "x");
  EXPECT_EQ(text::without_byte_order_mark("\xEF\xBB\xBF\xEF\xBB\xBFx"), "x");
  EXPECT_EQ(text::without_byte_order_mark("x\xEF\xBB\xBF"), "x\xEF\xBB\xBF");
  EXPECT_EQ(text::without_byte_order_mark("\xEF\xBB"), "\xEF\xBB");
  EXPECT_EQ(text::without_byte_order_mark(""), "");
}

// What each form of a number takes, in one table: a text that only some take stands in one row.
TEST(Numbers, FormsDifferInSignAndPoint) {
  constexpr text::NumberForm kWhole{};
  constexpr text::NumberForm kReading{false, text::Point::kInside};
  const text::NumberForm forms[] = {kWhole,
                                    text::kSignedWhole,
                                    kReading,
                                    text::kSignedDecimal,
                                    text::kCorrection,
                                    text::kTypedSpeed,
                                    text::kTypedDecimal};
  struct Row {
    const char* text;
    const char* taken;  // a digit 1 for each form that takes it
  };
  const Row rows[] = {{"0", "1111111"},      {"007", "1111111"},
                      {"+5", "0101101"},     {"-05", "0101101"},
                      {"1013.2", "0011111"}, {"-1.25", "0001101"},
                      {"5.", "0000111"},     {"-5.", "0000101"},
                      {".5", "0000011"},     {"-.5", "0000001"},
                      {"", "0000000"},       {".", "0000000"},
                      {"-", "0000000"},      {"+.", "0000000"},
                      {"1.2.3", "0000000"},  {"..5", "0000000"},
                      {"--1", "0000000"},    {"+-1", "0000000"},
                      {"1-", "0000000"},     {" 1", "0000000"},
                      {"1 ", "0000000"},     {"1 2", "0000000"},
                      {"1,5", "0000000"},    {"1e1", "0000000"},
                      {"0x1", "0000000"},    {"nan", "0000000"},
                      {"/", "0000000"},      {"\xEF\xBC\x91", "0000000"},
                      {"\xff", "0000000"}};
  for (const Row& row : rows) {
    std::string taken;
    for (const text::NumberForm& form : forms) taken += text::is_number(row.text, form) ? '1' : '0';
    EXPECT_EQ(taken, row.taken) << row.text;
    EXPECT_EQ(text::strict_number(row.text).has_value(), taken.back() == '1') << row.text;
  }
}

TEST(Numbers, StrictOnesEndAtTwelveCharacters) {
  EXPECT_EQ(text::strict_number("-123456789012"), -123456789012.0);
  EXPECT_FALSE(text::strict_number("1234567890123"));
}

TEST(Numbers, WholeOnesLieInTheirRange) {
  EXPECT_EQ(text::whole_number(" 007 ", 0, 7), 7);
  for (const char* bad : {"8", "-1", "", " ", "1.0", "x", "99999999999999999999"})
    EXPECT_FALSE(text::whole_number(bad, 0, 7)) << bad;
  EXPECT_EQ(text::numbered_lines(8, 11, 2), (std::vector<std::string>{"08", "09", "10", "11"}));
}

}  // namespace
