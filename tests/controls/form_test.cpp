#include "ui/controls/form.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QTest>
#include <array>

#include "tests/support/rows.h"
#include "ui/controls/check_box.h"
#include "ui/controls/click_label.h"
#include "ui/controls/fitting.h"
#include "ui/controls/frame.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"

namespace loquitor::testing {
namespace {

using Kind = ControlKind;
constexpr ControlRow Controls[] = {
    {Kind::TextBox, "txtVolume", "", "96", {60, 60, 435, 285}, "", "Volume value"},
    {Kind::Frame, "Frame3", "", "Resonate && Nasal", {60, 600, 2175, 1125}},
    {Kind::Button, "btnGo", "Frame3", "Go && Stop", {120, 240, 1275, 255}, "Goes."},
    BarRow("scFreq", "Frame3", {120, 540, 1500, 255}, {3999, 22, 1}, "#3", 3),
    {Kind::RightLabel, "lbl1", "", "Master Volume:", {60, 1800, 1515, 255}},
    PlainRow(Kind::ClickLabel, "Command1", "", "P0", {60, 2100, 525, 255}, 17),
    {Kind::TextArea, "txtSayData", "", "\xC3\xA4", {60, 2400, 3000, 600}},
    {Kind::CheckBox, "chkPlay", "", "Play", {60, 3100, 1500, 255}},
    {Kind::OptionButton, "optOn", "", "On", {60, 3400, 1500, 255}},
    {Kind::HorizontalLine, "Line1", "", "", {0, 3700, 1740, 0}},
};

class FormTest : public ::testing::Test {
 protected:
  FormTest() {
    window.setFont(FormFont());
    form.Add(Controls);
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
  for (const auto& [name, parent, place, spokenName, tooltip] :
       Rows<const char*, QWidget*, QRect, const char*, const char*>{
           {"txtVolume", &window, {4, 4, 29, 19}, "Volume value", ""},
           {"btnGo", form.Get<Frame>("Frame3"), {8, 16, 85, 17}, "Go & Stop", "Goes."},
           {"Frame3", &window, {4, 40, 145, 75}, "Resonate & Nasal", ""},
           {"scFreq(3)", form.Get<Frame>("Frame3"), {8, 36, 100, 17}, "#3", ""},
           {"Line1", &window, {0, 247, 116, 1}, "", ""}}) {
    const auto* control = form.Get<QWidget>(name);
    EXPECT_EQ(control->parentWidget(), parent) << name;
    EXPECT_EQ(control->geometry(), place) << name;
    EXPECT_EQ(control->accessibleName(), spokenName) << name;
    EXPECT_EQ(control->toolTip(), tooltip) << name;
  }
  const auto* bar = form.Get<ScrollBar>("scFreq(3)");
  EXPECT_EQ((QVector<int>{bar->minimum(), bar->maximum(), bar->pageStep(), bar->value()}),
            (QVector<int>{0, 3999, 22, 1}));
  EXPECT_EQ(form.Get<TextBox>("txtVolume")->Text(), "96");
  EXPECT_EQ(form.Get<TextArea>("txtSayData")->Text(), "\xE4");
  EXPECT_EQ(form.Get<ClickLabel>(Indexed("Command1", 17))->text(), "P0");
  EXPECT_TRUE(form.Get<QLabel>("lbl1")->alignment() & Qt::AlignRight);
}

TEST_F(FormTest, RowOrderIsTabOrderAndCanBeChanged) {
  Show();
  EXPECT_EQ(Tabs(6), "txtVolume btnGo scFreq(3) txtSayData chkPlay optOn");
  form.SetTabOrder(std::array<QString, 3>{"chkPlay", "txtSayData", "txtVolume"});
  form.Get<CheckBox>("chkPlay")->setFocus();
  EXPECT_EQ(Tabs(7), "chkPlay txtSayData txtVolume btnGo scFreq(3) optOn chkPlay");
}

TEST(Fitting, NarrowsThenShrinksUntilEveryLineFits) {
  const QFont font = FormFont();
  const auto widthIn = [](const QFont& zFont) {
    return QFontMetrics(zFont).horizontalAdvance("Test Serial Connection");
  };
  const auto fitted = [&](int zTenths) {
    const int room = widthIn(font) * zTenths / 10;
    const QFont fitting = FittingFont(font, "Test Serial Connection\nof this window", room);
    EXPECT_LE(widthIn(fitting), room);
    return fitting;
  };
  EXPECT_EQ(fitted(10), font);
  EXPECT_EQ(fitted(9).pixelSize(), font.pixelSize());
  EXPECT_LT(fitted(6).pixelSize(), font.pixelSize());
  EXPECT_GE(FittingFont(font, "Test", 1).pixelSize(), 8);  // still readable
  for (const auto& [room, isTight] :
       Rows<QSize, bool>{{{300, 15}, false}, {{90, 40}, false}, {{50, 28}, true}}) {
    EXPECT_EQ(WrappingFont(font, "View Codes for Selection", room) != font, isTight);
  }
}

}  // namespace
}  // namespace loquitor::testing
