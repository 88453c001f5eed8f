#pragma once
// A label that can be clicked; used for captions, group titles and pictures that open something.

#include <QLabel>

namespace desktop {

class ClickableLabel : public QLabel {
  Q_OBJECT
 public:
  explicit ClickableLabel(QWidget* parent = nullptr) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
  }
  void set_clickable(bool on);
  /// After the application has another palette.
  void dress_anew();

 Q_SIGNALS:
  void clicked(QPointF position);

 protected:
  void changeEvent(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool clickable_ = false;
};

}  // namespace desktop
