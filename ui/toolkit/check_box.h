#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <QVector>

namespace loquitor {

/// A check box whose caption may wrap to several lines ("&&" shows as one "&"). Space changes it,
/// Enter does not.
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

/// An option button. Which ones exclude each other says the OptionGroup that holds them. The user
/// can choose it but not clear it; the arrow keys go on to the other members of its group.
class OptionButton : public QRadioButton {
  Q_OBJECT
 public:
  OptionButton(const QString& zCaption, QWidget* zParent);

 signals:
  /// An arrow key was pressed on it: 1 towards the next member, -1 towards the one before.
  void ArrowPressed(int zStep);

 protected:
  void nextCheckState() override { setChecked(true); }
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  bool hitButton(const QPoint& zPosition) const override { return rect().contains(zPosition); }
};

/// Option buttons of which at most one is chosen; it may start with none chosen. The Tab key stops
/// at the chosen member alone, or at the first while none is chosen.
class OptionGroup : public QObject {
  Q_OBJECT
 public:
  explicit OptionGroup(QObject* zParent);

  /// Adds a button under its index in its control group.
  void Add(OptionButton* zButton, int zIndex);

  /// Chooses the member (raises Click when it was not chosen), or clears it.
  void SetChosen(int zIndex, bool zIsChosen);
  bool IsChosen(int zIndex) const;

  /// The chosen member, or -1.
  int Chosen() const;

 signals:
  /// The member has become chosen, by the user or by code.
  void Click(int zIndex);

 private:
  struct Member {
    OptionButton* button;
    int index;
  };
  void OnToggled(OptionButton* zButton, int zIndex, bool zIsChosen);
  void OnArrow(OptionButton* zButton, int zStep);
  void UpdateTabStops();

  QButtonGroup group_;  // takes the buttons out of the exclusion among siblings
  QVector<Member> members_;
};

}  // namespace loquitor
