#include "tests/phrase/phrase_window.h"

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

TEST_F(VoiceControlsTest, TakeTypedValuesWhenTheFocusLeavesAndInsertThemAtADoubleClick) {
  const Rows<const char*, const char*, int> rows = {{"7.5", "8", 8}, {"300", "15", 15}};
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

}  // namespace
}  // namespace loquitor::testing
