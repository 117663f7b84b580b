// Fill Blank Entries in the dictionary editor.
#include <QAction>
#include <QContextMenuEvent>
#include <QPointer>
#include <QProgressDialog>
#include <QToolTip>

#include "english/english_reader.h"
#include "tests/support/scripted_phones.h"
#include "tests/support/window_test.h"
#include "ui/dictedit/frm_dict_edit.h"

namespace loquitor::testing {
namespace {

/// Is so slow at its first words that the editor shows its progress.
class SlowPhones : public ScriptedPhones {
 public:
  std::vector<WordPhones> PhonesOf(std::span<const std::string> zWords) override {
    if (asked.empty()) {
      QTest::qSleep(600);
    }
    return ScriptedPhones::PhonesOf(zWords);
  }
};

class FillBlank : public ToolWindowTest {
 protected:
  void OpenWith(PhoneSource& zPhones) {
    reader_.emplace(zPhones, codeTable);
    context.english = &*reader_;
    GivenDictionary("see=\r\ndog=\\DO\r\nmumble= \r\nrobot=\r\n");
    Open<frmDictEdit>();
  }
  QAction* Entry() {
    for (QAction* action : Box()->actions()) {
      if (action->text().remove('&').startsWith("Fill Blank Entries")) {
        return action;
      }
    }
    throw std::invalid_argument("no Fill Blank Entries");
  }
  TextArea* Box() { return Get<TextArea>("txtDictionary"); }

  static constexpr char Blank[] = "[words]\nsee=\ndog=\\DO\nmumble= \nrobot=\n";
  static constexpr char Filled[] =
      "[words]\nsee=\\SE \\IY\ndog=\\DO\nmumble= \nrobot=\\RR \\OW \\BO \\OH \\TT\n";

 private:
  std::optional<EnglishReader> reader_;
};

TEST_F(FillBlank, KeepsTheMenuThatItWasChosenFromAlive) {
  ScriptedPhones phones;
  OpenWith(phones);
  QContextMenuEvent wanted(QContextMenuEvent::Mouse, {9, 9}, Box()->mapToGlobal(QPoint(9, 9)));
  QCoreApplication::sendEvent(Box()->viewport(), &wanted);
  const QPointer<QWidget> menu = QApplication::activePopupWidget();
  bool isAlive = false;
  QObject::connect(Entry(), &QAction::triggered, Box(), [&] { isAlive = !menu.isNull(); });
  QTest::keyClick(menu, Qt::Key_B);
  EXPECT_EQ(Box()->Text(), Filled);
  EXPECT_TRUE(isAlive) << "events ran while the menu was at work";
}

TEST_F(FillBlank, GivesEveryBlankEntryItsSoundsInOneStep) {
  ScriptedPhones phones;
  OpenWith(phones);
  Entry()->trigger();
  EXPECT_EQ(Box()->Text(), Filled);
  EXPECT_TRUE(QToolTip::text().contains("Blank entries that have sounds now: 2")) << "and tells it";
  EXPECT_TRUE(QToolTip::text().contains("\"mumble\"")) << QToolTip::text().toStdString();
  Box()->undo();
  EXPECT_EQ(Box()->Text(), Blank);
}

TEST_F(FillBlank, ShowsItsProgressWhenItTakesLongAndChangesNothingWhenCancelled) {
  for (const bool isCancelled : {true, false}) {
    SlowPhones phones;
    OpenWith(phones);
    bool wasShown = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, window.get(), [&] {
      auto* const progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
      if (progress != nullptr && progress->isVisible()) {
        watch.stop();
        wasShown = true;
        if (isCancelled) {
          progress->cancel();
        }
      }
    });
    watch.start(0);
    Entry()->trigger();
    QCoreApplication::processEvents();
    EXPECT_TRUE(wasShown);
    EXPECT_EQ(Box()->Text(), isCancelled ? Blank : Filled);
    window->close();
  }
}

TEST_F(FillBlank, IsDisabledWithoutEnglishAndSaysWhy) {
  Open<frmDictEdit>();
  EXPECT_FALSE(Entry()->isEnabled());
  EXPECT_EQ(Entry()->text().remove('&'), "Fill Blank Entries (this build cannot read English)");
}

}  // namespace
}  // namespace loquitor::testing
