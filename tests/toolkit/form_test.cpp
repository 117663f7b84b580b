#include "ui/toolkit/form.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <array>

#include "ui/toolkit/check_box.h"
#include "ui/toolkit/click_label.h"
#include "ui/toolkit/fitting.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/scroll_bar.h"
#include "ui/toolkit/text_area.h"
#include "ui/toolkit/text_box.h"

namespace loquitor {
namespace {

constexpr ControlRow Rows[] = {
    {ControlKind::TextBox, "txtVolume", "", "96", {60, 60, 435, 285}, "", "Volume value"},
    {ControlKind::Frame, "Frame3", "", "Resonate && Nasal", {60, 600, 2175, 1125}},
    {ControlKind::Button, "btnGo", "Frame3", "Go && Stop", {120, 240, 1275, 255}, "Goes."},
    {ControlKind::ScrollBar,
     "scFreq",
     "Frame3",
     "",
     {120, 540, 1500, 255},
     "",
     "Frequency of #3",
     3999,
     22,
     1,
     3},
    {ControlKind::RightLabel, "lbl1", "", "Master Volume:", {60, 1800, 1515, 255}},
    {ControlKind::ClickLabel, "Command1", "", "P0", {60, 2100, 525, 255}, "", "", 0, 1, 0, 17},
    {ControlKind::TextArea, "txtSayData", "", "\xC3\xA4", {60, 2400, 3000, 600}},
    {ControlKind::CheckBox, "chkPlay", "", "Play", {60, 3100, 1500, 255}},
    {ControlKind::OptionButton, "optOn", "", "On", {60, 3400, 1500, 255}},
    {ControlKind::HorizontalLine, "Line1", "", "", {0, 3700, 1740, 0}},
};

class FormTest : public ::testing::Test {
 protected:
  FormTest() {
    window.setFont(FormFont());
    form.Add(Rows);
  }
  void Show() {
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  /// The controls that Tab visits from where the focus is.
  QString Tabs(int zCount) {
    QStringList names;
    for (int at = 0; at < zCount; ++at) {
      names += window.focusWidget()->objectName();
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    return names.join(' ');
  }

  QDialog window;
  Form form{&window};
};

TEST_F(FormTest, RowsBecomeNamedControlsInTheirPlaces) {
  EXPECT_EQ(form.Get<TextBox>("txtVolume")->Text(), "96");
  EXPECT_EQ(form.Get<TextBox>("txtVolume")->accessibleName(), "Volume value");
  EXPECT_EQ(form.Get<TextBox>("txtVolume")->geometry(), QRect(4, 4, 29, 19));
  auto* button = form.Get<QPushButton>("btnGo");
  EXPECT_EQ(button->parentWidget(), form.Get<Frame>("Frame3"));
  EXPECT_EQ(button->geometry(), QRect(8, 16, 85, 17));
  EXPECT_EQ(button->toolTip(), "Goes.");
  EXPECT_EQ(button->accessibleName(), "Go & Stop");
  EXPECT_EQ(form.Get<Frame>("Frame3")->accessibleName(), "Resonate & Nasal");
  auto* bar = form.Get<ScrollBar>("scFreq(3)");
  EXPECT_EQ(bar->accessibleName(), "Frequency of #3");
  EXPECT_EQ((QVector<int>{bar->minimum(), bar->maximum(), bar->pageStep(), bar->value()}),
            (QVector<int>{0, 3999, 22, 1}));
  EXPECT_EQ(form.Get<ClickLabel>(Indexed("Command1", 17))->text(), "P0");
  EXPECT_EQ(form.Get<TextArea>("txtSayData")->Text(), "\xE4");
  EXPECT_EQ(form.Get<QWidget>("Line1")->size(), QSize(116, 1));
  EXPECT_TRUE(form.Get<QLabel>("lbl1")->alignment() & Qt::AlignRight);
}

TEST_F(FormTest, AControlThatDoesNotExistEndsTheProgramWithAMessage) {
  EXPECT_DEATH(form.Get<TextBox>("txtNone"), "no .*TextBox called txtNone");
  EXPECT_DEATH(form.Get<TextBox>("chkPlay"), "no .*TextBox called chkPlay");
}

TEST_F(FormTest, RowOrderIsTabOrderAndCanBeChanged) {
  Show();
  EXPECT_EQ(Tabs(6), "txtVolume btnGo scFreq(3) txtSayData chkPlay optOn");
  const std::array<QString, 3> order = {"chkPlay", "txtSayData", "txtVolume"};
  form.SetTabOrder(order);
  form.Get<CheckBox>("chkPlay")->setFocus();
  EXPECT_EQ(Tabs(7), "chkPlay txtSayData txtVolume btnGo scFreq(3) optOn chkPlay");
}

TEST_F(FormTest, TheFirstOfAChangedOrderHasTheFocusWhenTheWindowOpens) {
  const std::array<QString, 2> order = {"txtSayData", "txtVolume"};
  form.SetTabOrder(order);
  Show();
  EXPECT_EQ(Tabs(1), "txtSayData");
}

TEST_F(FormTest, EnterPressesNoButtonAndAmpersandsMakeNoShortcut) {
  Show();
  auto* button = form.Get<QPushButton>("btnGo");
  QSignalSpy pressed(button, &QPushButton::clicked);
  for (QWidget* focus : {static_cast<QWidget*>(button), form.Get<QWidget>("txtVolume"),
                         form.Get<QWidget>("chkPlay"), form.Get<QWidget>("optOn")}) {
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Return);
    QTest::keyClick(focus, Qt::Key_Enter);
  }
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(pressed.count(), 0);
  EXPECT_FALSE(form.Get<CheckBox>("chkPlay")->isChecked());
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(pressed.count(), 1);
}

TEST_F(FormTest, AFramesCaptionIsBoldAndItsChildrenAreNot) {
  const QWidget* child = form.Get<QWidget>("btnGo");
  EXPECT_FALSE(child->font().bold());
  Show();
  // The caption's first letter stands where the border has a gap for it.
  const QImage picture = form.Get<Frame>("Frame3")->grab().toImage();
  const QColor back = picture.pixelColor(1, 0);
  const int lineTop = QFontMetrics(FormFont()).height() / 2;
  EXPECT_NE(picture.pixelColor(1, lineTop), back);
  EXPECT_EQ(picture.pixelColor(6, lineTop), back);
}

TEST(Fitting, NarrowsThenShrinksUntilEveryLineFits) {
  const QFont font = FormFont();
  const QString caption = "Test Serial Connection\nof this window";
  const int full = QFontMetrics(font).horizontalAdvance("Test Serial Connection");
  EXPECT_EQ(FittingFont(font, caption, full), font);
  const QFont narrowed = FittingFont(font, caption, full * 9 / 10);
  EXPECT_LT(narrowed.stretch(), 100);
  EXPECT_EQ(narrowed.pixelSize(), font.pixelSize());
  EXPECT_LE(QFontMetrics(narrowed).horizontalAdvance("Test Serial Connection"), full * 9 / 10);
  const QFont shrunk = FittingFont(font, caption, full * 6 / 10);
  EXPECT_LT(shrunk.pixelSize(), font.pixelSize());
  EXPECT_LE(QFontMetrics(shrunk).horizontalAdvance("Test Serial Connection"), full * 6 / 10);
  EXPECT_GE(FittingFont(font, caption, 1).pixelSize(), 8);  // ends, still readable
  for (const QSize& room : {QSize(300, 15), QSize(90, 40)}) {
    EXPECT_EQ(WrappingFont(font, "View Codes for Selection", room), font);
  }
  EXPECT_LT(WrappingFont(font, "View Codes for Selection", {70, 28}).stretch(), 100);
}

}  // namespace
}  // namespace loquitor
