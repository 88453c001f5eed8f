// The cloud type dialogs with their pictures, as the officer meets them: keys, clicks, small
// screens, and picture files that are missing.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "codetables/CCodeTableDlg.h"
#include "desktop/picture_label.h"
#include "desktop_world.h"
#include "fakes/sample_ship.h"

namespace {

constexpr const char* kFigures = "123456789";
constexpr const codetables::CodePicker* kDialogs[] = {
    &codetables::kLowCloud, &codetables::kMiddleCloud, &codetables::kHighCloud};

class CloudPictures : public testing::TestWithParam<std::tuple<std::size_t, text::Language>> {
 protected:
  void SetUp() override {
    world.fake.texts.language = std::get<1>(GetParam());
    desktop::set_picture_folder(QStringLiteral(KAVREL_PICTURES));
  }
  void TearDown() override {
    window.reset();
    QApplication::setFont(usual);
    desktop::set_picture_folder({});
  }
  static const codetables::CodePicker& picker() { return *kDialogs[std::get<0>(GetParam())]; }
  static std::string symbol() { return std::string(picker().codes[0].symbol); }

  void open() {
    window.reset();
    dialog = std::make_unique<CCodeTableDlg>(world.services, picker(), record);
    dialog->open();
    window = std::make_unique<desktop::ScreenWindow>(*dialog, nullptr);
    tests::show(*window);
  }
  // What OK stores.
  std::string stored() {
    tests::press(Qt::Key_Return);
    Struct_Weather after = record;
    dialog->put_into(after);
    return after.*find_weather_field(symbol())->member;
  }
  [[nodiscard]] desktop::PictureLabel& picture(char figure) const {
    return *qobject_cast<desktop::PictureLabel*>(
        window->binding(std::string("choice_") + figure)->widget());
  }
  [[nodiscard]] QRadioButton& button(char figure) const {
    const auto buttons = window->binding("choice")->widget()->findChildren<QRadioButton*>();
    return *buttons[dialog->find(std::string("choice_") + figure)->beside_line];
  }
  // The label with the line's description.
  [[nodiscard]] QLabel& description(char figure) const {
    const auto labels = window->binding("choice")->widget()->findChildren<QLabel*>();
    const auto at = std::find_if(labels.begin(), labels.end(), [&](const QLabel* label) {
      return label->text().toStdString() ==
             dialog->find("choice")->items[static_cast<std::size_t>(
                 dialog->find(std::string("choice_") + figure)->beside_line)];
    });
    return **at;
  }
  [[nodiscard]] QRect place_of(const QWidget& widget) const {
    return {widget.mapTo(window.get(), QPoint(0, 0)), widget.size()};
  }

  // Everything is in the window and read whole: nothing scrolls, no description is cut.
  void expect_all_visible(const std::string& where) const {
    const auto* const area = window->findChild<QScrollArea*>();
    EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << where;
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << where;
    const QRect inside(QPoint(0, 0), window->size());
    EXPECT_TRUE(inside.contains(place_of(*window->binding("ok")->widget()))) << where;
    for (const char figure : std::string(kFigures)) {
      const QLabel& text = description(figure);
      EXPECT_TRUE(inside.contains(place_of(text))) << where << figure;
      EXPECT_LE(text.heightForWidth(text.width()), text.height()) << where << figure;
      EXPECT_TRUE(inside.contains(place_of(picture(figure)))) << where << figure;
      EXPECT_GE(picture(figure).width(), 100) << where << figure;
    }
  }

  QFont usual = QApplication::font();
  tests::DesktopWorld world;
  Struct_Weather record{fakes::sample_ship(), KeyObservationItems()};
  std::unique_ptr<CCodeTableDlg> dialog;
  std::unique_ptr<desktop::ScreenWindow> window;
};

TEST_P(CloudPictures, StandBesideAButtonWithTheirCodeAndADescription) {
  open();
  for (const char figure : std::string(kFigures)) {
    EXPECT_EQ(button(figure).text().toStdString(), symbol() + " " + figure);
    EXPECT_EQ(picture(figure).text(), "") << "the picture is not found";
    EXPECT_LT(place_of(picture(figure)).right(), place_of(button(figure)).left());
    EXPECT_LT(place_of(button(figure)).top(), place_of(description(figure)).top());
    EXPECT_LT(place_of(picture(figure)).right(), place_of(description(figure)).left());
  }
}

TEST_P(CloudPictures, ChooseTheirCodeWhereverALineIsClicked) {
  for (const char figure : std::string(kFigures)) {
    for (int part = 0; part < 3; ++part) {
      open();
      QWidget* const clicked = part == 0   ? static_cast<QWidget*>(&picture(figure))
                               : part == 1 ? static_cast<QWidget*>(&description(figure))
                                           : &button(figure);
      QTest::mouseClick(clicked, Qt::RightButton);
      EXPECT_FALSE(button(figure).isChecked());
      QTest::mouseClick(clicked, Qt::LeftButton, {},
                        part == 0 ? clicked->rect().center() : QPoint(8, 8));
      QApplication::processEvents();
      EXPECT_TRUE(button(figure).isChecked()) << figure << part;
      EXPECT_EQ(QApplication::focusWidget(), &button(figure)) << figure << part;
      EXPECT_EQ(stored(), std::string(1, figure)) << part;
    }
  }
}

TEST_P(CloudPictures, AreChosenByTheFigureTyped) {
  for (const char figure : std::string("0123456789/")) {
    open();
    QTest::keyClick(QApplication::focusWidget(), figure);
    QApplication::processEvents();
    EXPECT_EQ(dialog->find("choice")
                  ->item_codes[static_cast<std::size_t>(dialog->find("choice")->selected)],
              std::string(1, figure));
    const auto* const focus = qobject_cast<QRadioButton*>(QApplication::focusWidget());
    ASSERT_NE(focus, nullptr) << figure;
    EXPECT_TRUE(focus->isChecked()) << figure;
    EXPECT_EQ(stored(), std::string(1, figure));
  }
}

TEST_P(CloudPictures, AreGoneThroughByTheArrows) {
  open();
  tests::press(Qt::Key_Home);
  std::string codes = "0/123456789";
  for (std::size_t i = 0; i < codes.size(); ++i) {
    EXPECT_EQ(dialog->find("choice")->selected, static_cast<int>(i));
    if (i >= 2) {
      EXPECT_EQ(QApplication::focusWidget(), &button(codes[i]));
    }
    tests::press(Qt::Key_Right);
  }
}

TEST_P(CloudPictures, ThatAreMissingOrDamagedLeaveTheLinesWithTheirCaptions) {
  const QTemporaryDir folder;
  QFile damaged(folder.filePath(QString::fromStdString(symbol()) + "4.jpg"));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write(QByteArray("\xFF\xD8\xFF\xE0 no picture"));
  damaged.close();
  // One that ends early: whatever the decoder makes of it, the line can be chosen.
  QFile whole(
      QDir(QStringLiteral(KAVREL_PICTURES)).filePath(QString::fromStdString(symbol()) + "5.jpg"));
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  QFile cut(folder.filePath(QString::fromStdString(symbol()) + "5.jpg"));
  ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
  cut.write(whole.read(2000));
  cut.close();
  desktop::set_picture_folder(folder.path());
  for (const char figure : std::string(kFigures)) {
    open();
    if (figure != '5') {
      EXPECT_EQ(picture(figure).text().toStdString(), symbol() + " " + figure);
    }
    EXPECT_TRUE(description(figure).isVisible());
    QTest::mouseClick(&picture(figure), Qt::LeftButton, {},
                      QPoint(3, picture(figure).height() / 2));
    EXPECT_EQ(stored(), std::string(1, figure));
  }
}

TEST_P(CloudPictures, FitASmallScreenAndLargeLetters) {
  open();
  expect_all_visible("as opened ");
  // 1366 by 768 points at 150 %, less the title bar.
  window->resize(910, 480);
  QApplication::processEvents();
  expect_all_visible("small ");
  // Narrow pictures are low, so that a display which is narrow and low is large enough.
  const QWidget* const narrow = window->findChild<QScrollArea*>()->widget();
  EXPECT_LT(narrow->heightForWidth(910), narrow->sizeHint().height());
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 1.5);
  QApplication::setFont(large);
  open();
  const QWidget* const content = window->findChild<QScrollArea*>()->widget();
  EXPECT_LE(content->sizeHint().width(), 1366);
  EXPECT_LE(content->sizeHint().height(), 768 - 32);
  window->resize(content->sizeHint() + QSize(2, 2));
  QApplication::processEvents();
  expect_all_visible("large letters ");
}

TEST_P(CloudPictures, KeepTheirShapeInWhateverRoom) {
  open();
  for (const QSize room : {QSize(200, 130), QSize(120, 130), QSize(200, 80), QSize(400, 300)}) {
    desktop::PictureLabel label;
    ASSERT_TRUE(label.show_file(QString::fromStdString(symbol()) + "1.jpg", true));
    label.resize(room);
    // The corner farthest from the start that still is in the picture.
    int right = 0;
    int bottom = 0;
    for (int x = 0; x < room.width(); ++x) right = label.point_at(QPointF(x, 0)) ? x + 1 : right;
    for (int y = 0; y < room.height(); ++y) bottom = label.point_at(QPointF(0, y)) ? y + 1 : bottom;
    EXPECT_LE(right, 201);
    EXPECT_NEAR(right * 260.0 / 400, bottom, 1.5) << room.width() << "x" << room.height();
    EXPECT_TRUE(right >= room.width() || bottom >= room.height() || right >= 200);
  }
}

INSTANTIATE_TEST_SUITE_P(Desktop, CloudPictures,
                         testing::Combine(testing::Range(std::size_t{0}, std::size(kDialogs)),
                                          testing::Values(text::Language::kEnglish,
                                                          text::Language::kJapanese)),
                         [](const auto& row) {
                           const bool english = std::get<1>(row.param) == text::Language::kEnglish;
                           return std::string(kDialogs[std::get<0>(row.param)]->class_name) +
                                  (english ? "_en" : "_ja");
                         });

TEST(CloudPictureFiles, AreThereForEveryLineThatNamesOneAndEachIsAnother) {
  std::vector<QImage> seen;
  qint64 bytes = 0;
  const QDir folder(QStringLiteral(KAVREL_PICTURES));
  for (const codetables::CodePicker* const row : codetables::code_pickers()) {
    for (const codetables::PickedCode& picked : row->codes) {
      for (const codetables::LinePicture& line : picked.pictures) {
        const std::string file(line.file);
        const QString path = folder.filePath(QString::fromStdString(file));
        const QImage image(path);
        ASSERT_FALSE(image.isNull()) << file;
        EXPECT_EQ(image.size(), QSize(400, 260)) << file;
        for (const QImage& other : seen) EXPECT_NE(image, other) << file;
        seen.push_back(image);
        bytes += QFileInfo(path).size();
      }
    }
  }
  EXPECT_EQ(seen.size(), 27U);
  EXPECT_LT(bytes, 2'000'000);
}

}  // namespace
