#include "ui/dictedit/frm_dict_edit.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <QClipboard>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolTip>

#include <random>

#include "core/dictionary_text.h"
#include "tests/support/window_test.h"
#include "ui/dictedit/editable_text.h"

namespace loquitor::testing {
namespace {

/// The editor over a dictionary in a folder of the test's own, which is also the working directory.
class DictionaryEditor : public ToolWindowTest {
 protected:
  DictionaryEditor() { std::filesystem::current_path(folder.Path()); }
  ~DictionaryEditor() override { std::filesystem::current_path("/"); }

  void Open() {
    ToolWindowTest::Open<frmDictEdit>();
    QCoreApplication::processEvents();
  }
  void OpenOn(std::string_view zBytes) {
    WriteBytes(Dictionary(), zBytes);
    prompts.asked.clear();
    Open();
  }

  TextArea& Box() { return *Get<TextArea>("txtDictionary"); }
  std::pair<int, std::string> Selection() { return {Box().SelectionStart(), Box().SelectedText()}; }
  static void Press(QWidget* zFocus, QKeySequence::StandardKey zKey) {
    QTest::keySequence(zFocus, QKeySequence(zKey));
  }
  void Find(const QString& zText) {
    prompts.asked.clear();
    prompts.texts.push_back(zText);
    Click("btnFind");
  }
  bool HasTold(const char* zWords) const { return Told().join('\n').contains(zWords); }

  std::filesystem::path Dictionary() { return folder / "Loquitor.Dic"; }
  std::filesystem::path WordList() { return folder / "ImportWords.txt"; }
  std::string Saved() { return ReadBytes(Dictionary()); }
};

constexpr const char* Unsorted = "[words]\r\nCat=\\KE \\AX \\TT\r\nant=\\AY\r\nbee=";

TEST_F(DictionaryEditor, ShowsTheFileInItsLayout) {
  OpenOn("[words]\r\na=\\AY\rb=\xA0\n\nc");
  EXPECT_EQ(Box().Text(), "[words]\na=\\AY\nb=\xA0\n\nc");
  EXPECT_EQ(Selection(), std::make_pair(0, std::string()));
  EXPECT_EQ(window->windowTitle(), "Orvatone Dictionary Editor");
  EXPECT_EQ(window->size(), QSize(690, 500));
  EXPECT_EQ(Box().geometry(), QRect(4, 4, 595, 493));
  EXPECT_EQ(Box().lineWrapMode(), QPlainTextEdit::NoWrap);
  EXPECT_EQ(Told(), QStringList());

  EXPECT_EQ(TabOrder("btnReadTerms"),
            "btnReadTerms txtDictionary btnSaveChanges btnSort btnDone btnFind btnEraseBlank");
}

TEST_F(DictionaryEditor, RandomFilesOfAllBytesAreSavedAsTheyWere) {
  std::mt19937 random(61);
  for (int round = 0; round < 40; ++round) {
    std::string file(round == 0 ? 256 : random() % 2000, '\0');
    for (std::size_t i = 0; i < file.size(); ++i) {
      file[i] = static_cast<char>(round == 0 ? i : random());
    }
    std::replace(file.begin(), file.end(), '\r', ' ');
    std::string expected;
    for (const char character : file) {
      expected += character == '\n' ? std::string("\r\n") : std::string(1, character);
    }
    OpenOn(file);
    Click("btnSaveChanges");
    ASSERT_EQ(Saved(), expected + "\r\n") << round;
    Box().Select(0, 0);
    QTest::keyClick(&Box(), 'y');
    Click("btnSaveChanges");
    ASSERT_EQ(Saved(), "y" + expected + "\r\n") << round;
  }
}

TEST_F(DictionaryEditor, EachButtonSavesThenShowsWhatItMakesOfTheText) {
  const Rows<const char*, std::string, std::string> rows = {
      {"btnSaveChanges", BoxTextFromFile(Unsorted), "\r\n"},
      {"btnSort", "[words]\nant=\\AY\nbee=\ncat=\\KE \\AX \\TT\n", "\r\n"},
      {"btnEraseBlank", "[words]\ncat=\\KE \\AX \\TT\nant=\\AY\n", "\r\n"},
      {"btnDone", BoxTextFromFile(Unsorted), ""}};
  for (const auto& [button, shown, end] : rows) {
    OpenOn(Unsorted);
    Click(button);
    EXPECT_EQ(Saved(), Unsorted + end) << button;
    EXPECT_EQ(Box().Text(), shown) << button;
    EXPECT_TRUE(Get(button)->isEnabled());
    EXPECT_EQ(window->IsUnloaded(), end.empty());
    EXPECT_EQ(Told(), QStringList());

    OpenOn(Unsorted);  // the same where saving fails
    std::filesystem::remove(Dictionary());
    std::filesystem::create_directories(Dictionary() / "in the way");
    Click(button);
    EXPECT_EQ(HasTold("could not be saved"), !end.empty()) << button;
    EXPECT_EQ(Told().size(), end.empty() ? 0 : 1);
    EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted)) << button;
    EXPECT_TRUE(Get(button)->isEnabled());
    std::filesystem::remove_all(Dictionary());
  }
}

TEST_F(DictionaryEditor, AMissingDictionaryIsCreatedBySavingOnly) {
  Open();
  EXPECT_EQ(Box().Text(), "");
  EXPECT_TRUE(HasTold("Loquitor.Dic"));
  EXPECT_FALSE(std::filesystem::exists(Dictionary()));
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "\r\n");
  EXPECT_EQ(Told().size(), 1);
}

TEST_F(DictionaryEditor, FindStartsAfterTheSelectionAndWrapsAround) {
  OpenOn("[words]\r\nCat=1\r\ndog=2\r\nconCAT=3\r\n");
  Click("btnFind");  // cancelled: F3 asks again
  QTest::keyClick(window.get(), Qt::Key_F3);
  EXPECT_EQ(prompts.offered, (std::vector<QString>{"", ""}));
  EXPECT_EQ(Selection(), std::make_pair(0, std::string()));
  Find("cat");
  EXPECT_EQ(Selection(), std::make_pair(8, std::string("Cat")));
  QTest::keyClick(window.get(), Qt::Key_F3);
  EXPECT_EQ(Selection(), std::make_pair(23, std::string("CAT")));
  QTest::keyClick(&Box(), Qt::Key_F3);
  EXPECT_EQ(Selection(), std::make_pair(8, std::string("Cat")));
  ASSERT_EQ(prompts.asked.size(), 1U);
  EXPECT_EQ(prompts.asked[0].title, "Find");
  EXPECT_EQ(prompts.asked[0].text, "Find:");

  Find("DOG=");
  EXPECT_EQ(prompts.offered.back(), "cat");
  EXPECT_EQ(Selection(), std::make_pair(14, std::string("dog=")));
  for (const char* nowhere : {"unicorn", "\u4E2D", "cat\u4E2D"}) {
    Find(QString::fromUtf8(nowhere));
    EXPECT_EQ(
        Told(),
        QStringList({"Find:", QString::fromUtf8(nowhere).prepend("“").append("” was not found.")}));
    EXPECT_EQ(Selection(), std::make_pair(14, std::string("dog=")));
  }
  Find(QString(1000, 'x'));
  EXPECT_LT(Told().back().size(), 100);
}

TEST_F(DictionaryEditor, AMatchIsScrolledIntoView) {
  std::string file;
  for (int i = 0; i < 5000; ++i) {
    file += "word" + std::to_string(i) + "=" + (i == 4000 ? std::string(400, ' ') + "here" : "") +
            "\r\n";
  }
  OpenOn(file);
  for (const char* sought : {"word3000=", "here", "word10="}) {
    Find(sought);
    EXPECT_TRUE(Box().viewport()->rect().contains(Box().cursorRect())) << sought;
    EXPECT_EQ(window->focusWidget(), &Box());
  }
}

TEST_F(DictionaryEditor, ImportAddsTheWordsThatTheFileLacksAfterTheText) {
  OpenOn("[words]\r\ncat=1\r\nempty=\r\ntail=2");
  WriteBytes(WordList(), "Cat dog; EMPTY, don't\r\nDog");
  Box().Select(0, 0);
  Click("btnReadTerms");
  EXPECT_EQ(Box().Text(), "[words]\ncat=1\nempty=\ntail=2dog=\ndon=\nt=\ndog=\n");
  EXPECT_TRUE(Get("btnReadTerms")->toolTip().endsWith(QString::fromStdString(WordList().string())));
  EXPECT_EQ(prompts.asked.at(0).title, "Import Status");
  EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::Ok);
  EXPECT_EQ(Saved(), "[words]\r\ncat=1\r\nempty=\r\ntail=2");
  EXPECT_TRUE(Get("btnReadTerms")->isEnabled());

  Click("btnReadTerms");  // what is in the box, but not saved, does not count
  Click("btnSaveChanges");
  Click("btnReadTerms");
  EXPECT_EQ(Told(), QStringList({"4 Words added", "4 Words added", "0 Words added"}));
}

TEST_F(DictionaryEditor, AMissingWordListIsCreatedEmpty) {
  OpenOn(Unsorted);
  Click("btnReadTerms");
  EXPECT_TRUE(std::filesystem::is_empty(WordList()));
  EXPECT_EQ(Told(), QStringList("0 Words added"));
  EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted));
}

#ifndef _WIN32
TEST_F(DictionaryEditor, APipeInPlaceOfTheWordListIsNotWaitedFor) {
  OpenOn(Unsorted);
  ASSERT_EQ(mkfifo(WordList().c_str(), 0600), 0);
  Click("btnReadTerms");
  EXPECT_TRUE(HasTold("ImportWords.txt"));
  EXPECT_EQ(Told().size(), 2);
  EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted));
}
#endif

TEST_F(DictionaryEditor, ClosingTheWindowEndsAnImport) {
  OpenOn(Unsorted);
  std::string words;
  for (int i = 0; i < 100'000; ++i) {
    words += "same words again ";
  }
  WriteBytes(WordList(), words);
  After(0, [this] { After(0, [this] { Click("btnDone"); }); });
  Click("btnReadTerms");
  EXPECT_TRUE(window->IsUnloaded());
  EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted));
  EXPECT_EQ(Told(), QStringList());
}

TEST_F(DictionaryEditor, EachActionIsOneUndoStep) {
  OpenOn("[words]\r\nb=1\r\na=\r\n");
  WriteBytes(WordList(), "new");
  std::vector<std::string> texts = {Box().Text()};
  Box().moveCursor(QTextCursor::End);
  QTest::keyClicks(&Box(), "C=typed");
  texts.push_back(Box().Text());
  for (const char* button : {"btnSort", "btnEraseBlank", "btnReadTerms"}) {
    Click(button);
    texts.push_back(Box().Text());
  }
  EXPECT_EQ(texts.back(), "[words]\nb=1\nc=typed\nnew=\n");
  for (std::size_t i = texts.size() - 1; i-- > 0;) {
    Press(&Box(), QKeySequence::Undo);
    EXPECT_EQ(Box().Text(), texts[i]);
  }
  Press(&Box(), QKeySequence::Undo);
  EXPECT_EQ(Box().Text(), texts.front());
  for (std::size_t i = 1; i < texts.size(); ++i) {
    Press(&Box(), QKeySequence::Redo);
    EXPECT_EQ(Box().Text(), texts[i]);
  }
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), FileBytesFromBox(texts.back()));

  for (QWidget* focus : {Get("btnSort"), static_cast<QWidget*>(&Box())}) {
    focus->setFocus();
    Press(focus, QKeySequence::Undo);
    EXPECT_EQ(Box().Text(), texts[texts.size() - 2]);
    QTest::keyClick(focus, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Box().Text(), texts.back());
  }
}

TEST_F(DictionaryEditor, TheKeyboardFindsAndSaves) {
  OpenOn("[words]\r\ncat=1\r\n");
  Get("btnDone")->setFocus();
  prompts.texts = {"CAT"};
  Press(Get("btnDone"), QKeySequence::Find);
  EXPECT_EQ(Box().SelectedText(), "cat");
  QTest::keyClicks(&Box(), "dog");
  Press(&Box(), QKeySequence::Save);
  EXPECT_EQ(Saved(), "[words]\r\ndog=1\r\n\r\n");
}

TEST_F(DictionaryEditor, TheContextMenuOffersItsActionsWithTheirKeys) {
  OpenOn("[words]\r\ncat=1\r\n");
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(9, 9), Box().mapToGlobal(QPoint(9, 9)));
  QApplication::sendEvent(Box().viewport(), &event);
  const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList offered;
  for (const QAction* action : menu->actions()) {
    const QString text = action->text().remove('&').section('\t', 0, 0);
    offered << text + " " + action->shortcut().toString();
  }
  EXPECT_EQ(offered.mid(0, 2),
            QStringList({"Undo Ctrl+Z", "Redo " + QKeySequence(QKeySequence::Redo).toString()}));
  EXPECT_EQ(offered.filter(QRegularExpression("^(L|Find|Save)")),
            QStringList({"Larger Letters Ctrl++", "Find... Ctrl+F", "Find Next F3",
                         "Save Changes Ctrl+S"}));
  prompts.texts = {"CAT"};
  menu->actions().at(offered.indexOf("Find... Ctrl+F"))->trigger();
  EXPECT_EQ(Box().SelectedText(), "cat");
}

TEST_F(DictionaryEditor, SaveChangesShowsWhetherSomethingIsUnsaved) {
  OpenOn("[words]\r\nb=1\r\na=2\r\n");
  auto* const button = Get<QPushButton>("btnSaveChanges");
  const QColor usual = button->palette().color(QPalette::Button);
  const auto isUnsaved = [&] {
    EXPECT_EQ(button->palette().color(QPalette::Button) != usual,
              button->toolTip().contains("not saved"));
    return button->toolTip().contains("not saved");
  };
  EXPECT_FALSE(isUnsaved());
  QTest::keyClick(&Box(), Qt::Key_Plus, Qt::ControlModifier);  // larger letters change no text
  EXPECT_FALSE(isUnsaved());
  QTest::keyClick(&Box(), 'x');
  EXPECT_TRUE(isUnsaved());
  Click("btnSaveChanges");
  EXPECT_FALSE(isUnsaved());
  Click("btnSort");
  EXPECT_TRUE(isUnsaved());
  Click("btnSort");  // nothing left to sort
  EXPECT_FALSE(isUnsaved());
  Press(&Box(), QKeySequence::Undo);
  EXPECT_TRUE(isUnsaved());
}

TEST_F(DictionaryEditor, AsksBeforeItReplacesAFileThatCannotBeReadOrDrawn) {
  const std::string longLine = "\r\n" + std::string(EditableLimits::LineLength, '\0');
  OpenOn(longLine);
  EXPECT_EQ(Told(), QStringList());
  EXPECT_EQ(Box().Text(), BoxTextFromFile(longLine));
  const Rows<std::string, std::size_t, const char*> rows = {
      {longLine + "x\r\n", longLine.size() + 3, "Line 2 of"},
      {std::string(EditableLimits::Lines, '\n'), EditableLimits::Lines, "too large"},
      {"[words]\r\n", EditableLimits::Bytes + 1, "too large"}};
  for (const auto& [file, size, told] : rows) {
    WriteBytes(Dictionary(), file);
    std::filesystem::resize_file(Dictionary(), size);
    const std::string before = Saved();
    prompts.asked.clear();
    Open();
    ASSERT_TRUE(HasTold(told) && HasTold("Loquitor.Dic")) << told;
    EXPECT_EQ(Box().Text(), "");
    Click("btnEraseBlank");
    EXPECT_EQ(prompts.asked.back().buttons, PromptButtons::YesNo);
    EXPECT_TRUE(Saved() == before);
  }
  prompts.answers = {PromptAnswer::Yes};
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "\r\n");
  std::filesystem::remove(Dictionary());
  std::filesystem::create_directory(Dictionary());
  Open();
  ASSERT_TRUE(HasTold("cannot be read"));
  Click("btnSort");
  EXPECT_EQ(prompts.asked.back().buttons, PromptButtons::YesNo);
  EXPECT_TRUE(std::filesystem::is_directory(Dictionary()));
}

TEST_F(DictionaryEditor, APasteThatCouldNotBeOpenedAgainIsRefused) {
  OpenOn("[words]\r\n");
  QApplication::clipboard()->setText(QString(EditableLimits::LineLength + 1, 'x'));
  Press(&Box(), QKeySequence::Paste);
  EXPECT_EQ(Box().Text(), "[words]\n");
  EXPECT_TRUE(QToolTip::text().startsWith("Nothing was inserted"));
}

TEST_F(DictionaryEditor, AnImportEndsAtAWordThatTheBoxCannotDraw) {
  OpenOn("[words]\r\na=\r\n");
  WriteBytes(WordList(),
             "a first second " + std::string(3 * EditableLimits::LineLength, 'x') + " last");
  Click("btnReadTerms");
  EXPECT_TRUE(HasTold("than the dictionary can take"));
  EXPECT_EQ(Told().back(), "2 Words added");
  EXPECT_EQ(Box().Text(), "[words]\na=\nfirst=\nsecond=\n");
}

}  // namespace
}  // namespace loquitor::testing
