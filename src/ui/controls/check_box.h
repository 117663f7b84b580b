#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>

namespace loquitor {

/// A check box whose caption may wrap ("&&" shows as one "&"). Space changes it, Enter does not.
class CheckBox : public QCheckBox {
  Q_OBJECT
 public:
  CheckBox(const QString& zCaption, QWidget* zParent);

  /// 1 when ticked, 0 when not. Setting it raises Click when that changes it.
  int Value() const { return isChecked() ? 1 : 0; }
  void SetValue(int zValue) { setChecked(zValue != 0); }

 signals:
  /// Its state has changed, by the user or by code.
  void Click();

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool hitButton(const QPoint& zPosition) const override { return rect().contains(zPosition); }
};

/// An option button whose caption may wrap. Enter does not choose it.
class OptionButton : public QRadioButton {
  Q_OBJECT
 public:
  OptionButton(const QString& zCaption, QWidget* zParent);

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool hitButton(const QPoint& zPosition) const override { return rect().contains(zPosition); }
};

/// Option buttons of which at most one is chosen. It starts with none chosen; from the first choice
/// on exactly one is. The Tab key visits the chosen one, or the first while none is chosen.
class OptionGroup : public QButtonGroup {
  Q_OBJECT
 public:
  explicit OptionGroup(QObject* zParent);

  /// Adds a button under its index in its control group, from 0 on.
  void Add(OptionButton* zButton, int zIndex);

  void Choose(int zIndex) { button(zIndex)->setChecked(true); }
  bool IsChosen(int zIndex) const { return button(zIndex)->isChecked(); }

  /// The chosen member, or -1.
  int Chosen() const { return checkedId(); }

 signals:
  /// The member has become chosen, by the user or by code.
  void Click(int zIndex);

 private:
  void OnToggled(int zIndex, bool zIsChosen);
};

}  // namespace loquitor
