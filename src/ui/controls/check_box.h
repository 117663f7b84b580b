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

  /// 1 when ticked, 0 when not.
  int Value() const { return isChecked() ? 1 : 0; }

  /// Ticks the box unless `zValue` is 0. Raises Click if that changes it.
  void SetValue(int zValue) { setChecked(zValue != 0); }

 signals:
  /// Its state has changed, by the user or by code.
  void Click();

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool hitButton(const QPoint& zPosition) const override { return rect().contains(zPosition); }
};

/// An option button whose caption may wrap ("&&" shows as one "&"). Enter does not choose it.
class OptionButton : public QRadioButton {
  Q_OBJECT
 public:
  OptionButton(const QString& zCaption, QWidget* zParent);

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool hitButton(const QPoint& zPosition) const override { return rect().contains(zPosition); }
};

/// Option buttons of which at most one is chosen: none at the start, always one after the first
/// choice. The Tab key visits the chosen one, or the first while none is chosen.
class OptionGroup : public QButtonGroup {
  Q_OBJECT
 public:
  explicit OptionGroup(QObject* zParent);

  /// Adds a button. `zIndex` is its index in its control group, 0 or more.
  void Add(OptionButton* zButton, int zIndex);

  /// For the index of a member only.
  void Choose(int zIndex) { button(zIndex)->setChecked(true); }
  bool IsChosen(int zIndex) const { return button(zIndex)->isChecked(); }

  /// The index of the chosen member, or -1.
  int Chosen() const { return checkedId(); }

 signals:
  /// The member with this index has become the chosen one, by the user or by code.
  void Click(int zIndex);

 private:
  void OnToggled(int zIndex, bool zIsChosen);
};

}  // namespace loquitor
