#include "papers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>
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

std::vector<PrintedPage> pages_of_pdf(const std::string& pdf) {
  const fakes::TempFolder folder;
  folder.write("pages.pdf", pdf);
  const std::string text = output_of("pdftotext -bbox '" + folder.path() + "/pages.pdf' -");
  static const std::regex kPage(R"re(<page width="([0-9.]+)" height="([0-9.]+)">)re");
  static const std::regex kWord(
      R"re(<word xMin="([0-9.-]+)" yMin="([0-9.-]+)" xMax="([0-9.-]+)" yMax="([0-9.-]+)">(.*)</word>)re");
  std::vector<PrintedPage> pages;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    const std::string line = text.substr(from, end - from);
    from = end + 1;
    std::smatch found;
    if (std::regex_search(line, found, kPage))
      pages.push_back({std::stod(found[1]), std::stod(found[2]), {}});
    if (pages.empty() || !std::regex_search(line, found, kWord)) continue;
    std::string word = found[5];
    for (const auto& [entity, letter] :
         {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}})
      word = std::regex_replace(word, std::regex(entity), letter);
    pages.back().words.push_back(
        {std::stod(found[1]), std::stod(found[2]), std::stod(found[3]), std::stod(found[4]), word});
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
