#include "ui/synth/sound_name_box.h"

#include <QAbstractItemView>
#include <QCompleter>

#include "tests/synth/synth_window.h"

namespace loquitor::testing {
namespace {

TEST_F(OpenSynthTest, TheSoundBoxOffersTheNamesThatAreThereNow) {
  GivenSounds("", "[Bell]\nFreq1=1\n[Siren]\n[bird \xE9]\nFreq1=2\n");
  TextBox* box = Box("txtSound");
  QAbstractItemView* list = box->completer()->popup();
  const struct {
    const char* typed;
    std::vector<Qt::Key> keys;
    QString text;
  } rows[] = {{"b", {Qt::Key_Down, Qt::Key_Return}, "Bell"},
              {"b", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, QStringLiteral("bird é")},
              {"b", {Qt::Key_Escape}, "b"},
              {"S", {Qt::Key_Return}, "S"},
              {"b", {Qt::Key_Tab}, "b"},
              {"", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "Siren"}};
  for (const auto& row : rows) {
    Type("txtSound", row.typed);
    EXPECT_EQ(list->isVisible(), *row.typed != '\0');
    for (const Qt::Key key : row.keys) {
      QTest::keyClick(box, key);
    }
    EXPECT_EQ(box->text(), row.text);
    EXPECT_FALSE(list->isVisible()) << row.typed;
    EXPECT_TRUE(window->isVisible());
  }
  Type("txtSound", "b");
  window->move(window->pos() + QPoint(40, 40));
  LetRun();
  EXPECT_FALSE(list->isVisible());
  Type("txtSound", "Bell");  // the list swallows no click
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                    Get("btnLoad")->geometry().center());
  EXPECT_EQ(Sent(), Writes({{1, 1}}));
  EXPECT_FALSE(list->isVisible());
}

TEST_F(OpenSynthTest, ANameThatNoSoundHasIsMarkedBeforeLoadIsPressed) {
  GivenSounds("", "[Bell]\nFreq1=1\n[\xC9t\xE9]\n");
  const Rows<QString, const char*> rows = {{"Bell", ""},       {"bELL", ""},
                                           {"Bel", "Save"},    {QStringLiteral("éTÉ"), ""},
                                           {"a]b", "bracket"}, {"", ""}};
  for (const auto& [name, reason] : rows) {
    Box("txtSound")->setText(name);
    const bool isMarked = *reason != '\0';
    EXPECT_EQ(Colour("txtSound").isValid(), isMarked) << name.toStdString();
    EXPECT_EQ(Box("txtSound")->toolTip().isEmpty(), !isMarked);
    EXPECT_TRUE(Box("txtSound")->accessibleDescription().contains(reason));
  }
  Type("txtSound", "Drum");
  Click("btnSave");
  EXPECT_FALSE(Colour("txtSound").isValid()) << "now there is one";
}

}  // namespace
}  // namespace loquitor::testing
