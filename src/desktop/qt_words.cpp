#include "desktop/qt_words.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>
#include <memory>

namespace desktop {

QString qt_translations() {
  return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

void speak_qt(text::Language language, const QString& translations) {
  static text::Language spoken = text::Language::kEnglish;
  static QPointer<QTranslator> words;  // the application owns it
  if (language == spoken) return;
  spoken = language;
  // Its own texts are the English ones.
  delete words;
  if (language == text::Language::kEnglish) return;
  auto loaded = std::make_unique<QTranslator>();
  if (!loaded->load(QStringLiteral("qtbase_ja"), translations)) return;
  loaded->setParent(qApp);
  words = loaded.release();
  QCoreApplication::installTranslator(words);
}

}  // namespace desktop
