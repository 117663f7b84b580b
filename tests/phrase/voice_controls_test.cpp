#include <gtest/gtest.h>

#include <QSlider>

#include "tests/phrase/phrase_window.h"

namespace loquitor::testing {
namespace {

class VoiceControlsTest : public PhraseWindowTest {
 protected:
  void SetUp() override { Open(); }

  /// The bytes of the prefix as it would go out now.
  std::string Prefix() {
    Press("bntSayIt");
    return Sent();
  }
};

TEST_F(VoiceControlsTest, TakeTypedValuesWhenTheFocusLeaves) {
  struct Case {
    const char* textBox;
    const char* bar;
    int before;
    const char* typed;
    const char* after;
    int value;
  };
  for (const Case& expected : {
           Case{"txtVolume", "scVolume", 96, "300", "127", 127},
           Case{"txtBend", "scBend", 8, "7.5", "7.5", 8},
           Case{"txtSpeed", "scSpeed", 40, "12abc", "12", 12},
           Case{"txtVolume", "scVolume", 0, "abc", "abc", 0},
       }) {
    Bar(expected.bar)->setValue(expected.before);
    Type(expected.textBox, expected.typed);
    EXPECT_EQ(Bar(expected.bar)->value(), expected.before) << "not before the focus leaves";
    QTest::keyClick(Box(expected.textBox), Qt::Key_Tab);
    EXPECT_EQ(Bar(expected.bar)->value(), expected.value) << expected.typed;
    EXPECT_EQ(Box(expected.textBox)->Text(), expected.after);
  }
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(VoiceControlsTest, ShowEveryStepOfADrag) {
  auto* bar = Bar("scBend");
  bar->setSliderDown(true);
  for (const int value : {6, 7, 12}) {
    bar->setSliderPosition(value);
    EXPECT_EQ(Box("txtBend")->Text(), std::to_string(value));
  }
  EXPECT_EQ(Prefix().back(), 12) << "the value in a drag is the thumb's";
  bar->setSliderDown(false);
  EXPECT_EQ(Box("txtBend")->Text(), "12");
}

TEST_F(VoiceControlsTest, MoveByArrowAndPage) {
  struct Case {
    const char* bar;
    int page;
    int maximum;
  };
  for (const Case& expected : {Case{"scVolume", 8, 127}, Case{"scSpeed", 8, 127},
                               Case{"scPitch", 8, 255}, Case{"scBend", 1, 15}}) {
    auto* bar = Bar(expected.bar);
    bar->setValue(3);
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(bar->value(), 4);
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(bar->value(), 4 + expected.page) << expected.bar;
    bar->triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_EQ(bar->value(), expected.maximum) << expected.bar;
  }
  EXPECT_EQ(Prefix(), "\x14\x7F\x15\x7F\x16\xFF\x17\x0F");
}

TEST_F(VoiceControlsTest, InsertTheSettingAtADoubleClickOnTheLabel) {
  Type("txtPitch", "200");
  DoubleClick("Pitch");
  EXPECT_EQ(SayData(), "\\PITCH \\200 |");
  EXPECT_EQ(Bar("scPitch")->value(), 200);
  DoubleClick("Bend");
  EXPECT_EQ(SayData(), "\\PITCH \\200 \\BEND \\5 |");
  EXPECT_EQ(Sent(), "") << "nothing is said";
}

}  // namespace
}  // namespace loquitor::testing
