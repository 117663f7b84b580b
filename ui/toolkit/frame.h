#pragma once

#include <QWidget>

namespace loquitor {

/// A group box: its bold caption stands in the top border ("&&" shows as one "&"). Children are
/// placed relative to its outer top left corner and keep the plain font.
class Frame : public QWidget {
  Q_OBJECT
 public:
  Frame(const QString& zCaption, QWidget* zParent);
  QString Caption() const { return caption_; }
  QSize minimumSizeHint() const override { return {0, 0}; }

 protected:
  void paintEvent(QPaintEvent* zEvent) override;

 private:
  QString caption_;
};

}  // namespace loquitor
