#pragma once

#include <QGroupBox>

namespace loquitor {

/// A group box with a bold caption in its top border ("&&" shows as one "&"). The places of its
/// children are relative to its outer top left corner. The children do not inherit the bold font.
class Frame : public QGroupBox {
  Q_OBJECT
 public:
  Frame(const QString& zCaption, QWidget* zParent) : QGroupBox(zCaption, zParent) {}

  QSize minimumSizeHint() const override { return {0, 0}; }

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
};

}  // namespace loquitor
