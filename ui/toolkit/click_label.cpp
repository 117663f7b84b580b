#include "ui/toolkit/click_label.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleHints>
#include <utility>

#include "ui/toolkit/colours.h"

namespace loquitor {
namespace {

/// A ClickLabel for assistive programs: something to press.
class AccessibleClickLabel : public QAccessibleWidget {
 public:
  explicit AccessibleClickLabel(ClickLabel* zLabel)
      : QAccessibleWidget(zLabel, QAccessible::Button) {}

  QString text(QAccessible::Text zKind) const override {
    const QString own = QAccessibleWidget::text(zKind);
    const bool isUnnamed = zKind == QAccessible::Name && own.isEmpty();
    return isUnnamed ? static_cast<ClickLabel*>(widget())->text() : own;
  }

  QStringList actionNames() const override { return {pressAction(), DoublePress()}; }

  void doAction(const QString& zAction) override {
    const QPointer<ClickLabel> label = static_cast<ClickLabel*>(widget());
    if (!label->isEnabled()) {
      return;
    }
    emit label->Click();
    if (zAction == DoublePress() && label) {
      emit label->DoubleClick();
    }
  }

 private:
  static QString DoublePress() { return QStringLiteral("Double press"); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* zObject) {
  auto* label = qobject_cast<ClickLabel*>(zObject);
  return label == nullptr ? nullptr : new AccessibleClickLabel(label);
}

}  // namespace

ClickLabel::ClickLabel(const QString& zCaption, QWidget* zParent) : QLabel(zCaption, zParent) {
  [[maybe_unused]] static const bool isInstalled =
      (QAccessible::installFactory(MakeAccessible), true);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignCenter);
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  setAutoFillBackground(true);
  delay_.setSingleShot(true);
  connect(&delay_, &QTimer::timeout, this, &ClickLabel::Click);
}

void ClickLabel::SetCurrent(bool zIsCurrent) {
  isCurrent_ = zIsCurrent;
  update();
}

void ClickLabel::SetBackground(const QColor& zColor) {
  SetColours(this, QPalette::Base, QPalette::Text, zColor);
}

void ClickLabel::mousePressEvent(QMouseEvent* zEvent) {
  isPressed_ = zEvent->button() == Qt::LeftButton;
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* zEvent) {
  if (zEvent->button() != Qt::LeftButton || !std::exchange(isPressed_, false) ||
      !rect().contains(zEvent->position().toPoint())) {
    return;
  }
  if (delaysClick_) {
    delay_.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
  } else {
    emit Click();
  }
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* zEvent) {
  if (zEvent->button() != Qt::LeftButton) {
    return;
  }
  const QPointer<ClickLabel> self = this;
  if (delay_.isActive()) {
    delay_.stop();
    emit Click();
  }
  if (self) {
    emit DoubleClick();
  }
}

void ClickLabel::paintEvent(QPaintEvent* zEvent) {
  QLabel::paintEvent(zEvent);
  if (isCurrent_) {
    QPainter painter(this);
    DrawFocusMark(painter, rect(), palette());
  }
}

}  // namespace loquitor
