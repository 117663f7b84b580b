#include "ui/controls/form.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPainter>

#include "ui/controls/check_box.h"
#include "ui/controls/click_label.h"
#include "ui/controls/code_page.h"
#include "ui/controls/colours.h"
#include "ui/controls/fitting.h"
#include "ui/controls/frame.h"
#include "ui/controls/push_button.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"

namespace loquitor {
namespace {

constexpr int FormFontPixels = 11;

/// A thin line that fills its place.
class Line : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), LineColour(palette())); }
};

QWidget* MakeLabel(const QString& zCaption, QWidget* zParent, Qt::Alignment zAlignment,
                   QSize zSize) {
  auto* label = new QLabel(ShownCaption(zCaption), zParent);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(zAlignment | Qt::AlignTop);
  label->setWordWrap(zSize.height() >= 2 * label->fontMetrics().height());
  label->setFont(label->wordWrap() ? WrappingFont(label->font(), label->text(), zSize)
                                   : FittingFont(label->font(), label->text(), zSize.width()));
  return label;
}

QWidget* MakeClickLabel(const QString& zCaption, QWidget* zParent, QSize zSize) {
  auto* label = new ClickLabel(zCaption, zParent);
  label->setFont(FittingFont(label->font(), zCaption, zSize.width() - 2));
  return label;
}

template <class Box>
QWidget* MakeBox(const char* zText, QWidget* zParent) {
  auto* box = new Box(zParent);
  box->SetText(ToBytes(QString::fromUtf8(zText)));
  return box;
}

QWidget* Make(const ControlRow& zRow, QWidget* zParent) {
  const QString caption = QString::fromUtf8(zRow.caption);
  const QSize size = zRow.place.ToPixels().size();
  switch (zRow.kind) {
    case ControlKind::Frame:
      return new Frame(caption, zParent);
    case ControlKind::Button:
      return new PushButton(caption, zParent);
    case ControlKind::Label:
      return MakeLabel(caption, zParent, Qt::AlignLeft, size);
    case ControlKind::RightLabel:
      return MakeLabel(caption, zParent, Qt::AlignRight, size);
    case ControlKind::CentredLabel:
      return MakeLabel(caption, zParent, Qt::AlignHCenter, size);
    case ControlKind::ClickLabel:
      return MakeClickLabel(caption, zParent, size);
    case ControlKind::TextBox:
      return MakeBox<TextBox>(zRow.caption, zParent);
    case ControlKind::TextArea:
      return MakeBox<TextArea>(zRow.caption, zParent);
    case ControlKind::CheckBox:
      return new CheckBox(caption, zParent);
    case ControlKind::OptionButton:
      return new OptionButton(caption, zParent);
    case ControlKind::ScrollBar:
      return new ScrollBar(zRow.bar.maximum, zRow.bar.page, zRow.bar.value, zParent);
    case ControlKind::HorizontalLine:
    case ControlKind::VerticalLine:
      return new Line(zParent);
  }
  return nullptr;
}

/// Whether the caption of such a control is its name, and not its content.
bool IsNamedByCaption(ControlKind zKind) {
  return zKind != ControlKind::TextBox && zKind != ControlKind::TextArea;
}

}  // namespace

QString Indexed(const char* zStem, int zIndex) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(zStem)).arg(zIndex);
}

Form::Form(QWidget* zWindow) : window_(zWindow) {
  zWindow->setLayoutDirection(Qt::LeftToRight);
}

void Form::Add(const ControlRow& zRow) {
  QWidget* parent =
      *zRow.parent == '\0' ? window_ : Find(QLatin1String(zRow.parent), QWidget::staticMetaObject);
  QWidget* control = Make(zRow, parent);
  control->setObjectName(zRow.index < 0 ? QString(QLatin1String(zRow.name))
                                        : Indexed(zRow.name, zRow.index));
  QRect place = zRow.place.ToPixels();
  place.setSize(place.size().expandedTo({1, 1}));
  control->setGeometry(place);
  control->setToolTip(QString::fromUtf8(zRow.tooltip));
  if (*zRow.accessibleName != '\0') {
    control->setAccessibleName(QString::fromUtf8(zRow.accessibleName));
  } else if (IsNamedByCaption(zRow.kind)) {
    control->setAccessibleName(ShownCaption(QString::fromUtf8(zRow.caption)));
  }
  controls_.insert(control->objectName(), control);
  inOrder_.push_back(control);
}

void Form::Add(std::span<const ControlRow> zRows) {
  for (const ControlRow& row : zRows) {
    Add(row);
  }
}

void Form::SetTabOrder(std::span<const QString> zNames) const {
  QVector<QWidget*> order;
  for (const QString& name : zNames) {
    order.push_back(Find(name, QWidget::staticMetaObject));
  }
  for (QWidget* control : inOrder_) {
    if (control->focusPolicy() != Qt::NoFocus && !order.contains(control)) {
      order.push_back(control);
    }
  }
  for (qsizetype at = 1; at < order.size(); ++at) {
    QWidget::setTabOrder(order[at - 1], order[at]);
  }
}

QWidget* Form::Find(const QString& zName, const QMetaObject& zClass) const {
  QWidget* control = controls_.value(zName);
  if (control == nullptr) {
    control = window_->findChild<QWidget*>(zName);  // one that the window made without a row
  }
  if (control == nullptr || zClass.cast(control) == nullptr) {
    qFatal("The form has no %s called %s.", zClass.className(), qPrintable(zName));
  }
  return control;
}

QFont FormFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(FormFontPixels);
  return font;
}

}  // namespace loquitor
