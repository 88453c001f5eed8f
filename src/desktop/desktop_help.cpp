#include "desktop/desktop_help.h"

#include <QApplication>
#include <QDialog>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "text/ids.h"
#include "text/texts.h"

namespace desktop {
namespace {

QString text_of(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Only the path tells which language the person reads.
text::Language language_of(const std::string& path) {
  const bool japanese = path.find("_J.CHM") != std::string::npos;
  return japanese ? text::Language::kJapanese : text::Language::kEnglish;
}

}  // namespace

bool DesktopHelp::show(const std::string& path) {
  constexpr int kWidth = 640;
  constexpr int kHeight = 480;
  delete window_;
  // A window of the modal one on the screen is the only kind that can be used beside it.
  QWidget* const owner = QApplication::activeModalWidget();
  window_ = new QDialog(owner == nullptr ? QApplication::activeWindow() : owner);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  window_->resize(kWidth, kHeight);
  auto* const browser = new QTextBrowser(window_);
  auto* const layout = new QVBoxLayout(window_);
  layout->addWidget(browser);

  const auto page = page_(path);
  if (page) {
    browser->setSource(QUrl::fromLocalFile(text_of(*page)));
    window_->setWindowTitle(browser->documentTitle());
  } else {
    const text::Language language = language_of(path);
    window_->setWindowTitle(text_of(text::bilingual(text::id::kHelpLabel, language)).remove('&'));
    browser->setPlainText(
        text_of(text::fill(text::bilingual(text::id::kHelpPageMissing, language), {path})));
  }
  window_->show();
  return page.has_value();
}

}  // namespace desktop
