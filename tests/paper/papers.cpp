#include "papers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>

#include "fakes/temp_folder.h"

namespace tests {

std::string output_of(const std::string& command) {
  std::string output;
  std::FILE* const pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return output;
  std::array<char, 4096> piece{};
  for (std::size_t size = 0; (size = std::fread(piece.data(), 1, piece.size(), pipe)) > 0;)
    output.append(piece.data(), size);
  EXPECT_EQ(::pclose(pipe), 0) << command;
  return output;
}

std::string font_file(const std::string& family) {
  const std::string path = output_of("fc-match --format='%{file}' '" + family + "'");
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

const paper::Faces& faces() {
  static const paper::Faces kFaces = [] {
    paper::Faces found;
    for (const char* const family : {"IPAGothic", "DejaVu Sans"}) {
      found.push_back(paper::TrueType::read(paper::TrueType::tables_of_file(font_file(family))));
      EXPECT_NE(found.back(), nullptr) << family;
    }
    return found;
  }();
  return kFaces;
}

namespace {

/// The number of an attribute, `name="12.5"`; a line without it fails the test.
double number_in(std::string_view line, std::string_view name) {
  const std::string start = " " + std::string(name) + "=\"";
  const std::size_t at = line.find(start);
  double number = 0;
  const char* const last = line.data() + line.size();
  if (at == std::string_view::npos ||
      std::from_chars(line.data() + at + start.size(), last, number).ec != std::errc())
    ADD_FAILURE() << "no " << name << " in " << line;
  return number;
}

/// What stands between the tags of `<word …>…</word>`, its entities written as letters.
std::string word_in(std::string_view line) {
  const std::size_t from = line.find('>') + 1;
  std::string word(line.substr(from, line.rfind("</word>") - from));
  for (const auto& [entity, letter] : {std::pair<std::string_view, std::string_view>{"&lt;", "<"},
                                       {"&gt;", ">"},
                                       {"&quot;", "\""},
                                       {"&apos;", "'"},
                                       {"&amp;", "&"}})
    for (std::size_t at = 0; (at = word.find(entity, at)) != std::string::npos; at += letter.size())
      word.replace(at, entity.size(), letter);
  return word;
}

}  // namespace

std::vector<PrintedPage> pages_of_pdf(const std::string& pdf) {
  const fakes::TempFolder folder;
  folder.write("pages.pdf", pdf);
  const std::string text = output_of("pdftotext -bbox '" + folder.path() + "/pages.pdf' -");
  std::vector<PrintedPage> pages;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    const std::string_view line = std::string_view(text).substr(from, end - from);
    from = end + 1;
    if (line.find("<page ") != std::string_view::npos)
      pages.push_back({number_in(line, "width"), number_in(line, "height"), {}});
    if (pages.empty() || line.find("<word ") == std::string_view::npos) continue;
    pages.back().words.push_back({number_in(line, "xMin"), number_in(line, "yMin"),
                                  number_in(line, "xMax"), number_in(line, "yMax"), word_in(line)});
  }
  return pages;
}

std::vector<PrintedLine> lines_of(PrintedPage page, double left, double column) {
  // Points: less than the smallest letters are apart, more than letters of two faces on one line.
  constexpr double kSameLine = 3;
  std::sort(page.words.begin(), page.words.end(), [](const Word& a, const Word& b) {
    return std::abs(a.bottom - b.bottom) > kSameLine ? a.bottom < b.bottom : a.left < b.left;
  });
  std::vector<PrintedLine> lines;
  for (const Word& word : page.words) {
    if (lines.empty() || word.bottom - lines.back().bottom > kSameLine)
      lines.push_back({word.top, word.bottom, {}});
    std::string& text = lines.back().text;
    const double at = (word.left - left) / column;
    if (std::abs(at - std::round(at)) > 0.1) {
      ADD_FAILURE() << word.text << " between two columns: at " << at;
      return {};
    }
    const auto wanted = static_cast<std::size_t>(std::max(0.0, std::round(at)));
    const std::size_t used = ui::columns_of(text);
    EXPECT_LE(used, wanted) << word.text << " over what stands before it";
    text.append(wanted > used ? wanted - used : 0, ' ');
    text.append(word.text);
  }
  return lines;
}

ui::Sheets sheets_of(std::vector<std::string> lines) {
  return {"Print", ui::document_of(std::move(lines)), {}, {}, {}};
}

}  // namespace tests
