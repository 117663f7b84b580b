#include "tests/phrase/phrase_window.h"
#include "ui/phrase/voice_values.h"

namespace loquitor::testing {
namespace {

class VoiceControlsTest : public PhraseWindowTest {
 protected:
  /// The bytes of the prefix as it would go out now.
  std::string Prefix() {
    Press("bntSayIt");
    return Sent();
  }
};

TEST(VoiceValues, CommitTypedTexts) {
  const Rows<const char*, int, const char*, int> rows = {
      {"300", 127, "127", 127}, {"127.4", 127, "127", 127}, {"127", 127, "127", 127},
      {"-4", 255, "0", 0},      {"-0.4", 255, "0", 0},      {"-0", 255, "-0", 0},
      {"7.5", 15, "7.5", 8},    {"6.5", 15, "6.5", 6},      {"14.6", 15, "14.6", 15},
      {"15.4", 15, "15", 15},   {"abc", 127, "abc", 0},     {" 1 2 ", 127, " 1 2 ", 12},
      {"1E999", 9, "9", 9},     {"-1E999", 9, "0", 0},      {"12abc", 127, "12abc", 12}};
  for (const auto& [typed, maximum, text, value] : rows) {
    const CommittedVoiceText committed = CommitVoiceText(typed, maximum);
    EXPECT_EQ(committed.text, text) << typed;
    EXPECT_EQ(committed.value, value) << typed;
  }
}

TEST_F(VoiceControlsTest, TakeTypedValuesWhenTheFocusLeavesAndInsertThemAtADoubleClick) {
  const Rows<const char*, const char*, int> rows = {
      {"7.5", "8", 8}, {"7.5", "7.5", 8}, {"12abc", "12", 12}, {"300", "15", 15}};
  for (const auto& [typed, text, value] : rows) {
    const int before = Bar("scBend")->value();
    Type("txtBend", typed);
    EXPECT_EQ(Bar("scBend")->value(), before) << "not before the focus leaves";
    QTest::keyClick(Box("txtBend"), Qt::Key_Tab);
    EXPECT_EQ(Bar("scBend")->value(), value) << typed;
    EXPECT_EQ(Box("txtBend")->Text(), text);
  }
  DoubleClick("Bend");
  Type("txtPitch", "200");
  DoubleClick("Pitch");
  EXPECT_EQ(Bar("scPitch")->value(), 200);
  EXPECT_EQ(SayData(), "\\BEND \\15 \\PITCH \\200 |");
  EXPECT_EQ(Sent(), "") << "nothing is said";
  GivenBoxesThatSwallowClicks();
  Type("txtBend", "3");
  prompts.whileOpen();
  EXPECT_TRUE(QTest::qWaitFor([this] { return SayDataBox()->hasFocus(); }));
  EXPECT_EQ(Bar("scBend")->value(), 3) << "the window has come back with the focus elsewhere";
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
  for (const auto& [name, page] :
       Rows<const char*, int>{{"scVolume", 8}, {"scSpeed", 8}, {"scPitch", 8}, {"scBend", 1}}) {
    auto* bar = Bar(name);
    bar->setValue(3);
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(bar->value(), 4);
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(bar->value(), 4 + page) << name;
    bar->triggerAction(QAbstractSlider::SliderToMaximum);
  }
  EXPECT_EQ(Prefix(), "\x14\x7F\x15\x7F\x16\xFF\x17\x0F");
}

}  // namespace
}  // namespace loquitor::testing
