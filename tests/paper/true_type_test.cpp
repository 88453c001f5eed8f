#include "paper/true_type.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "papers.h"

namespace {

using paper::TrueType;

TEST(TrueType, TellsHowWideLettersOfAFixedPitchAre) {
  const TrueType& face = *tests::faces()[0];
  for (const char32_t narrow : {U'0', U'i', U'W', U'/', U'ｱ'})
    EXPECT_DOUBLE_EQ(face.advance(face.glyph_of(narrow)), 0.5) << static_cast<unsigned>(narrow);
  for (const char32_t wide : {U'漢', U'あ', U'Ａ', U'　'})
    EXPECT_DOUBLE_EQ(face.advance(face.glyph_of(wide)), 1) << static_cast<unsigned>(wide);
  EXPECT_EQ(face.glyph_of(0x1F6A2), TrueType::kNoGlyph);  // a ship, in colours on telephones
  EXPECT_EQ(face.glyph_of(0xFFFFFFFF), TrueType::kNoGlyph);
  EXPECT_GT(face.ascent(), 0.7);
  EXPECT_GT(face.descent(), 0.05);
  EXPECT_LT(face.line(), 1.5);
}

TEST(TrueType, TellsOfEachLetterWhatAnotherReaderDoes) {
  // Figures of a proportional font are alike, its letters are not.
  const TrueType& face = *tests::faces()[1];
  EXPECT_DOUBLE_EQ(face.advance(face.glyph_of(U'0')), face.advance(face.glyph_of(U'9')));
  EXPECT_GT(face.advance(face.glyph_of(U'W')), 2 * face.advance(face.glyph_of(U'i')));
  EXPECT_DOUBLE_EQ(face.advance(face.glyph_of(U'é')), face.advance(face.glyph_of(U'e')));
}

TEST(TrueType, TellsWhetherItsLettersStandInColumns) {
  const auto keeps = [](const char* family) {
    const auto face = TrueType::read(TrueType::tables_of_file(tests::font_file(family)));
    return face != nullptr && paper::keeps_columns(*face);
  };
  EXPECT_TRUE(keeps("IPAGothic"));
  // A proportional one and one without Japanese.
  EXPECT_FALSE(keeps("IPAPGothic"));
  EXPECT_FALSE(keeps("DejaVu Sans"));
  EXPECT_FALSE(keeps("DejaVu Sans Mono"));
}

TEST(TrueType, KeepsAFewGlyphsWithTheirWidthsAndParts) {
  const TrueType& face = *tests::faces()[1];
  // "é" is composed of two glyphs that nobody asked for.
  const std::vector<TrueType::Glyph> wanted = {0, face.glyph_of(U'W'), face.glyph_of(U'é')};
  const std::string file = face.subset(wanted);
  EXPECT_LT(file.size(), 40'000U);
  const TrueType::Tables tables = TrueType::tables_of_file(file);
  const auto word = [](const std::string& bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes.at(at)) * 256U +
           static_cast<unsigned char>(bytes.at(at + 1));
  };
  EXPECT_EQ(word(tables("maxp"), 4), 5U);
  EXPECT_EQ(word(tables("hhea"), 34), 5U);
  EXPECT_EQ(tables("loca").size(), 6U * 4);
  EXPECT_EQ(tables("hmtx").size(), 5U * 4);
  // The first part of "é", which was asked for third, came fourth.
  const std::string outline = tables("glyf").substr((std::size_t{word(tables("loca"), 8)} << 16U) +
                                                    word(tables("loca"), 10));
  EXPECT_EQ(word(outline, 0), 0xFFFFU);
  EXPECT_EQ(word(outline, 12), 3U);
  const double em = word(tables("head"), 18);
  EXPECT_DOUBLE_EQ(word(tables("hmtx"), 4) / em, face.advance(face.glyph_of(U'W')));
}

TEST(TrueType, IsNoneWithoutItsTables) {
  EXPECT_EQ(TrueType::read([](std::string_view) { return std::string(); }), nullptr);
  EXPECT_EQ(TrueType::read(TrueType::tables_of_file("no font")), nullptr);
  const TrueType::Tables whole = TrueType::tables_of_file(tests::font_file("DejaVu Sans"));
  for (const char* const missing : {"head", "hhea", "maxp", "hmtx", "loca", "glyf", "cmap"}) {
    EXPECT_EQ(TrueType::read([&](std::string_view tag) {
                return tag == missing ? std::string() : whole(tag);
              }),
              nullptr)
        << missing;
  }
}

TEST(TrueType, IsNotTakenAlongWhereItsMakerForbidsIt) {
  const TrueType::Tables whole = TrueType::tables_of_file(tests::font_file("DejaVu Sans"));
  const auto with_rights = [&](char rights) {
    return TrueType::read([&whole, rights](std::string_view tag) {
      std::string table = whole(tag);
      if (tag == "OS/2") table.at(9) = rights;
      return table;
    });
  };
  EXPECT_NE(with_rights(0), nullptr);
  EXPECT_NE(with_rights(4), nullptr);  // for looking and printing
  EXPECT_NE(with_rights(8), nullptr);  // for changing as well
  EXPECT_EQ(with_rights(2), nullptr);
}

TEST(TrueType, SurvivesADamagedFile) {
  const TrueType::Tables whole = TrueType::tables_of_file(tests::font_file("DejaVu Sans"));
  unsigned seed = 7;
  for (int i = 0; i < 200; ++i) {
    const TrueType::Tables damaged = [&](std::string_view tag) {
      std::string table = whole(tag);
      const auto next = [&seed] { return (seed = seed * 1103515245U + 12345U) >> 8U; };
      if (!table.empty() && next() % 4 == 0) table.resize(next() % table.size());
      for (int hits = 0; hits < 5 && !table.empty(); ++hits)
        table[next() % std::min<std::size_t>(table.size(), 400)] = static_cast<char>(next());
      return table;
    };
    const auto face = TrueType::read(damaged);
    if (face == nullptr) continue;
    std::vector<TrueType::Glyph> glyphs{0};
    for (char32_t character = 0x20; character < 0x180; ++character) {
      glyphs.push_back(face->glyph_of(character));
      EXPECT_GE(face->advance(glyphs.back()), 0);
    }
    EXPECT_FALSE(face->subset(glyphs).empty());
  }
}

}  // namespace
