#pragma once

#include <QGroupBox>

namespace loquitor {

/// A group box: its bold caption stands in the top border ("&&" shows as one "&"). Children are
/// placed relative to its outer top left corner and keep the plain font.
class Frame : public QGroupBox {
  Q_OBJECT
 public:
  Frame(const QString& zCaption, QWidget* zParent) : QGroupBox(zCaption, zParent) {}
  QString Caption() const { return title(); }
  QSize minimumSizeHint() const override { return {0, 0}; }

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
};

}  // namespace loquitor
