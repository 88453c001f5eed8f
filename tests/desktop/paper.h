#pragma once
// Reads what was printed: the words of a PDF and where each stands.

#include <gtest/gtest.h>

#include <QFile>
#include <QPageLayout>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "ui/printer.h"

namespace tests {

struct Word {
  double left, top, right, bottom;  ///< points from the top left corner of the paper
  QString text;
};

struct PrintedPage {
  double width, height;  ///< of the paper, in points
  std::vector<Word> words;
};

/// The pages of a PDF as another program reads them.
inline std::vector<PrintedPage> pages_of_pdf(const std::string& pdf) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("pages.pdf"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(pdf.data(), static_cast<qint64>(pdf.size()));
  file.close();
  QProcess reader;
  reader.start("pdftotext", {"-bbox", file.fileName(), "-"});
  reader.waitForFinished(-1);
  EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
  const QString text = QString::fromUtf8(reader.readAllStandardOutput());
  static const QRegularExpression kPage(R"re(<page width="([\d.]+)" height="([\d.]+)">)re");
  static const QRegularExpression kWord(
      R"re(<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*)</word>)re");
  std::vector<PrintedPage> pages;
  for (const QString& line : text.split('\n')) {
    if (const auto page = kPage.match(line); page.hasMatch())
      pages.push_back({page.captured(1).toDouble(), page.captured(2).toDouble(), {}});
    const auto word = kWord.match(line);
    if (!word.hasMatch() || pages.empty()) continue;
    QString content = word.captured(5);
    content.replace("&lt;", "<")
        .replace("&gt;", ">")
        .replace("&quot;", "\"")
        .replace("&apos;", "'");
    content.replace("&amp;", "&");
    pages.back().words.push_back({word.captured(1).toDouble(), word.captured(2).toDouble(),
                                  word.captured(3).toDouble(), word.captured(4).toDouble(),
                                  content});
  }
  return pages;
}

/// A line as it stands on the page: its words at the columns where they begin, blanks between them.
struct PrintedLine {
  double top, bottom;
  std::string text;
};

/// The lines of a page from top to bottom, in columns of so many points from `left` on.
inline std::vector<PrintedLine> lines_of(PrintedPage page, double left, double column) {
  std::sort(page.words.begin(), page.words.end(), [](const Word& a, const Word& b) {
    return std::abs(a.bottom - b.bottom) > 1 ? a.bottom < b.bottom : a.left < b.left;
  });
  std::vector<PrintedLine> lines;
  for (const Word& word : page.words) {
    if (lines.empty() || word.bottom - lines.back().bottom > 1)
      lines.push_back({word.top, word.bottom, {}});
    std::string& text = lines.back().text;
    const double at = (word.left - left) / column;
    if (std::abs(at - std::round(at)) > 0.1) {
      ADD_FAILURE() << word.text.toStdString() << " between two columns: at " << at;
      return {};
    }
    const auto wanted = static_cast<std::size_t>(std::max(0.0, std::round(at)));
    const std::size_t used = ui::columns_of(text);
    EXPECT_LE(used, wanted) << word.text.toStdString() << " over what stands before it";
    text.append(wanted > used ? wanted - used : 0, ' ');
    text.append(word.text.toStdString());
  }
  return lines;
}

}  // namespace tests
