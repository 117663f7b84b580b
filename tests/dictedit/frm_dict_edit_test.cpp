#include "ui/dictedit/frm_dict_edit.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

#include "core/dictionary_text.h"
#include "tests/support/window_test.h"

namespace loquitor {
namespace {

using testing::ReadBytes;
using testing::WriteBytes;

/// The editor over a dictionary in a folder of the test's own, which is also the working directory.
class DictionaryEditor : public testing::WindowTest {
 protected:
  DictionaryEditor() { std::filesystem::current_path(folder.Path()); }
  ~DictionaryEditor() override {
    window.reset();
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::owner_all);
    std::filesystem::current_path("/");
  }

  void GivenFile(std::string_view zBytes) { WriteBytes(Dictionary(), zBytes); }
  void GivenWordList(std::string_view zBytes) { WriteBytes(WordList(), zBytes); }

  void Open() {
    window = std::make_unique<frmDictEdit>(nullptr, context);
    window->Open();
    QCoreApplication::processEvents();
  }
  void OpenOn(std::string_view zBytes) {
    GivenFile(zBytes);
    Open();
  }

  TextArea& Box() { return *window->findChild<TextArea*>("txtDictionary"); }
  QPushButton& Button(const char* zName) { return *window->findChild<QPushButton*>(zName); }
  void Click(const char* zName) { QTest::mouseClick(&Button(zName), Qt::LeftButton); }
  static void Press(QWidget& zFocus, QKeySequence::StandardKey zKey) {
    QTest::keySequence(&zFocus, QKeySequence(zKey));
  }
  void Find(const QString& zText) {
    prompts.texts.push_back(zText);
    Click("btnFind");
  }

  std::filesystem::path Dictionary() { return folder / "Loquitor.Dic"; }
  std::filesystem::path WordList() { return folder / "ImportWords.txt"; }
  std::string Saved() { return ReadBytes(Dictionary()); }

  std::unique_ptr<frmDictEdit> window;
};

constexpr const char* Unsorted = "[words]\r\nCat=\\KE \\AX \\TT\r\nant=\\AY\r\nbee=";

TEST_F(DictionaryEditor, ShowsTheFileAndStandsAsLaidOut) {
  OpenOn("[words]\r\na=\\AY\rb=\xA0\n\nc");
  EXPECT_EQ(Box().Text(), "[words]\na=\\AY\nb=\xA0\n\nc");
  EXPECT_EQ(Box().SelectionStart(), 0);
  EXPECT_EQ(window->windowTitle(), "Orvatone Dictionary Editor");
  EXPECT_EQ(window->size(), QSize(690, 500));
  EXPECT_EQ(Box().geometry(), QRect(4, 4, 595, 493));
  EXPECT_EQ(Button("btnSort").geometry(), QRect(604, 364, 83, 29));
  EXPECT_EQ(Box().lineWrapMode(), QPlainTextEdit::NoWrap);
  EXPECT_TRUE(prompts.asked.empty());

  const char* order[] = {"btnReadTerms", "txtDictionary", "btnSaveChanges", "btnSort",
                         "btnDone",      "btnFind",       "btnEraseBlank",  "btnReadTerms"};
  window->activateWindow();
  Button("btnReadTerms").setFocus();
  for (const char* name : order) {
    EXPECT_EQ(window->focusWidget()->objectName(), name);
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(DictionaryEditor, SavesTheTextAndOneLineEnd) {
  OpenOn("[words]\na=\\AY\n");
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "[words]\r\na=\\AY\r\n\r\n");
  Box().Select(0, 0);
  QTest::keyClicks(&Box(), "x ");
  EXPECT_EQ(Saved(), "[words]\r\na=\\AY\r\n\r\n");
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "x [words]\r\na=\\AY\r\n\r\n");
  EXPECT_TRUE(prompts.asked.empty());
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

TEST_F(DictionaryEditor, SaveAndSortSavesThenShowsTheSortedText) {
  OpenOn(Unsorted);
  Click("btnSort");
  EXPECT_EQ(Saved(), std::string(Unsorted) + "\r\n");
  EXPECT_EQ(Box().Text(), "[words]\nant=\\AY\nbee=\ncat=\\KE \\AX \\TT\n");
  EXPECT_TRUE(Button("btnSort").isEnabled());
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "[words]\r\nant=\\AY\r\nbee=\r\ncat=\\KE \\AX \\TT\r\n\r\n");
}

TEST_F(DictionaryEditor, EraseBlankEntriesSavesThenShowsTheEntriesWithCodes) {
  OpenOn(Unsorted);
  Click("btnEraseBlank");
  EXPECT_EQ(Saved(), std::string(Unsorted) + "\r\n");
  EXPECT_EQ(Box().Text(), "[words]\ncat=\\KE \\AX \\TT\nant=\\AY\n");
}

TEST_F(DictionaryEditor, DoneLosesWhatWasNotSaved) {
  OpenOn(Unsorted);
  QTest::keyClicks(&Box(), "typed");
  Click("btnDone");
  EXPECT_TRUE(window->IsUnloaded());
  EXPECT_EQ(Saved(), Unsorted);
}

TEST_F(DictionaryEditor, AMissingDictionaryIsCreatedBySavingOnly) {
  Open();
  EXPECT_EQ(Box().Text(), "");
  ASSERT_EQ(prompts.asked.size(), 1U);
  EXPECT_TRUE(prompts.asked[0].text.contains("Loquitor.Dic"));
  EXPECT_FALSE(std::filesystem::exists(Dictionary()));
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "\r\n");
  EXPECT_EQ(prompts.asked.size(), 1U);
}

TEST_F(DictionaryEditor, ADictionaryThatCannotBeReadIsNotReplacedUnasked) {
  std::filesystem::create_directory(Dictionary());
  Open();
  EXPECT_EQ(Box().Text(), "");
  ASSERT_EQ(prompts.asked.size(), 1U);
  Click("btnSort");
  ASSERT_EQ(prompts.asked.size(), 2U);
  EXPECT_EQ(prompts.asked[1].buttons, PromptButtons::YesNo);
  EXPECT_TRUE(std::filesystem::is_directory(Dictionary()));
}

TEST_F(DictionaryEditor, AFailedSaveIsToldAndKeepsTheText) {
  for (const char* button : {"btnSaveChanges", "btnSort", "btnEraseBlank"}) {
    OpenOn(Unsorted);
    std::filesystem::remove(Dictionary());
    std::filesystem::create_directories(Dictionary() / "in the way");
    prompts.asked.clear();
    Click(button);
    ASSERT_EQ(prompts.asked.size(), 1U) << button;
    EXPECT_TRUE(prompts.asked[0].text.contains("could not be saved")) << button;
    EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted)) << button;
    EXPECT_TRUE(Button(button).isEnabled());
    std::filesystem::remove_all(Dictionary());
  }
}

TEST_F(DictionaryEditor, FindStartsBehindTheSelectionAndWrapsAround) {
  OpenOn("[words]\r\nCat=1\r\ndog=2\r\nconCAT=3\r\n");
  const auto selection = [this] {
    return std::make_pair(Box().SelectionStart(), Box().SelectedText());
  };
  Find("cat");
  EXPECT_EQ(selection(), std::make_pair(8, std::string("Cat")));
  QTest::keyClick(window.get(), Qt::Key_F3);
  EXPECT_EQ(selection(), std::make_pair(23, std::string("CAT")));
  QTest::keyClick(&Box(), Qt::Key_F3);
  EXPECT_EQ(selection(), std::make_pair(8, std::string("Cat")));
  ASSERT_EQ(prompts.asked.size(), 1U);
  EXPECT_EQ(prompts.asked[0].title, "Find");
  EXPECT_EQ(prompts.asked[0].text, "Find:");

  prompts.asked.clear();
  Find("DOG=");
  EXPECT_EQ(prompts.offered.back(), "cat");
  EXPECT_EQ(selection(), std::make_pair(14, std::string("dog=")));
  for (const char* nowhere : {"unicorn", "\u4E2D", "cat\u4E2D"}) {
    prompts.asked.clear();
    Find(QString::fromUtf8(nowhere));
    ASSERT_EQ(prompts.asked.size(), 2U) << nowhere;
    EXPECT_TRUE(prompts.asked[1].text.contains(QString::fromUtf8(nowhere)));
    EXPECT_EQ(selection(), std::make_pair(14, std::string("dog=")));
  }
}

TEST_F(DictionaryEditor, ACancelledFindLeavesEverythingAsItWas) {
  OpenOn("[words]\r\ncat=1\r\n");
  Click("btnFind");
  QTest::keyClick(window.get(), Qt::Key_F3);
  EXPECT_EQ(prompts.offered, (std::vector<QString>{"", ""}));
  EXPECT_EQ(Box().SelectionLength(), 0);
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

TEST_F(DictionaryEditor, ImportAddsTheWordsThatTheFileLacksBehindTheText) {
  OpenOn("[words]\r\ncat=1\r\nempty=\r\ntail=2");
  GivenWordList("Cat dog; EMPTY, don't\r\nDog");
  Box().Select(0, 0);
  Click("btnReadTerms");
  EXPECT_EQ(Box().Text(), "[words]\ncat=1\nempty=\ntail=2dog=\ndon=\nt=\ndog=\n");
  ASSERT_EQ(prompts.asked.size(), 1U);
  EXPECT_EQ(prompts.asked[0].title, "Import Status");
  EXPECT_EQ(prompts.asked[0].text, "4 Words added");
  EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::Ok);
  EXPECT_EQ(Saved(), "[words]\r\ncat=1\r\nempty=\r\ntail=2");
  EXPECT_TRUE(Button("btnReadTerms").isEnabled());

  Click("btnReadTerms");  // what is in the box, but not saved, does not count
  EXPECT_EQ(prompts.asked[1].text, "4 Words added");
  Click("btnSaveChanges");
  Click("btnReadTerms");
  EXPECT_EQ(prompts.asked[2].text, "0 Words added");
}

TEST_F(DictionaryEditor, AMissingWordListIsCreatedEmpty) {
  OpenOn(Unsorted);
  Click("btnReadTerms");
  EXPECT_TRUE(std::filesystem::is_empty(WordList()));
  ASSERT_EQ(prompts.asked.size(), 1U);
  EXPECT_EQ(prompts.asked[0].text, "0 Words added");
  EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted));
}

TEST_F(DictionaryEditor, AWordListThatIsNoFileIsToldAndNeverWaitedFor) {
  OpenOn(Unsorted);
  ASSERT_EQ(mkfifo(WordList().c_str(), 0600), 0);
  Click("btnReadTerms");
  ASSERT_EQ(prompts.asked.size(), 2U);
  EXPECT_TRUE(prompts.asked[0].text.contains("ImportWords.txt"));
  EXPECT_EQ(prompts.asked[1].text, "0 Words added");
}

TEST_F(DictionaryEditor, ClosingTheWindowEndsAnImport) {
  OpenOn(Unsorted);
  std::string words;
  for (int i = 0; i < 100'000; ++i) {
    words += "same words again ";
  }
  GivenWordList(words);
  QTimer::singleShot(0, window.get(),
                     [this] { QTimer::singleShot(0, window.get(), [this] { Click("btnDone"); }); });
  Click("btnReadTerms");
  EXPECT_TRUE(window->IsUnloaded());
  EXPECT_EQ(Box().Text(), BoxTextFromFile(Unsorted));
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(DictionaryEditor, EachActionIsOneUndoStep) {
  OpenOn("[words]\r\nb=1\r\na=\r\n");
  GivenWordList("new");
  std::vector<std::string> texts = {Box().Text()};
  const auto remember = [&] { texts.push_back(Box().Text()); };
  Box().moveCursor(QTextCursor::End);
  QTest::keyClicks(&Box(), "C=typed");
  remember();
  Click("btnSort");
  remember();
  Click("btnEraseBlank");
  remember();
  Click("btnReadTerms");
  remember();
  EXPECT_EQ(texts.back(), "[words]\nb=1\nc=typed\nnew=\n");
  for (std::size_t i = texts.size() - 1; i-- > 0;) {
    Press(Box(), QKeySequence::Undo);
    EXPECT_EQ(Box().Text(), texts[i]);
  }
  Press(Box(), QKeySequence::Undo);
  EXPECT_EQ(Box().Text(), texts.front());
  for (std::size_t i = 1; i < texts.size(); ++i) {
    Press(Box(), QKeySequence::Redo);
    EXPECT_EQ(Box().Text(), texts[i]);
  }
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), FileBytesFromBox(texts.back()));

  window->activateWindow();
  Button("btnSort").setFocus();
  Press(Button("btnSort"), QKeySequence::Undo);
  EXPECT_EQ(Box().Text(), texts[texts.size() - 2]);
}

TEST_F(DictionaryEditor, TheKeyboardFindsAndSaves) {
  OpenOn("[words]\r\ncat=1\r\n");
  window->activateWindow();
  Button("btnDone").setFocus();
  prompts.texts = {"CAT"};
  Press(Button("btnDone"), QKeySequence::Find);
  EXPECT_EQ(Box().SelectedText(), "cat");
  QTest::keyClicks(&Box(), "dog");
  Press(Box(), QKeySequence::Save);
  EXPECT_EQ(Saved(), "[words]\r\ndog=1\r\n\r\n");
}

TEST_F(DictionaryEditor, ADictionaryBeyondTheBoundIsLeftAlone) {
  GivenFile("[words]\r\n");
  std::filesystem::resize_file(Dictionary(), frmDictEdit::MaximumBytes + 1);
  Open();
  EXPECT_EQ(Box().Text(), "");
  ASSERT_EQ(prompts.asked.size(), 1U);
  EXPECT_TRUE(prompts.asked[0].text.contains("too large"));
  Click("btnSaveChanges");
  EXPECT_EQ(std::filesystem::file_size(Dictionary()), frmDictEdit::MaximumBytes + 1);
  prompts.answers = {PromptAnswer::Yes};
  Click("btnSaveChanges");
  EXPECT_EQ(Saved(), "\r\n");
}

TEST_F(DictionaryEditor, WhatTheBoxCannotDrawIsLeftAlone) {
  const std::string longLine = "\r\n" + std::string(frmDictEdit::MaximumLineLength, '\0');
  const struct {
    std::string file;
    const char* told;
  } table[] = {
      {longLine, ""},
      {longLine + "x\r\n", "Line 2 of"},
      {std::string(frmDictEdit::MaximumLines, '\n'), "too large"},
  };
  for (const auto& [file, told] : table) {
    prompts.asked.clear();
    OpenOn(file);
    if (*told == '\0') {
      EXPECT_TRUE(prompts.asked.empty());
      EXPECT_EQ(Box().Text(), BoxTextFromFile(file));
      continue;
    }
    ASSERT_EQ(prompts.asked.size(), 1U) << told;
    EXPECT_TRUE(prompts.asked[0].text.contains(told)) << prompts.asked[0].text.toStdString();
    EXPECT_TRUE(prompts.asked[0].text.contains("Loquitor.Dic"));
    EXPECT_EQ(Box().Text(), "");
    Click("btnEraseBlank");
    EXPECT_EQ(prompts.asked.size(), 2U);
    EXPECT_TRUE(Saved() == file);
  }
}

TEST_F(DictionaryEditor, AnImportEndsAtAWordThatTheBoxCannotDraw) {
  OpenOn("[words]\r\na=\r\n");
  GivenWordList("a first second " + std::string(3 * frmDictEdit::MaximumLineLength, 'x') + " last");
  Click("btnReadTerms");
  ASSERT_EQ(prompts.asked.size(), 2U);
  EXPECT_TRUE(prompts.asked[0].text.contains("than the dictionary can take"));
  EXPECT_EQ(prompts.asked[1].text, "2 Words added");
  EXPECT_EQ(Box().Text(), "[words]\na=\nfirst=\nsecond=\n");
}

TEST_F(DictionaryEditor, CharactersOutsideTheCodePageAreRefused) {
  OpenOn("");
  QTest::keyClick(&Box(), Qt::Key_Z);
  QKeyEvent foreign(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(0x4E2D)));
  QCoreApplication::sendEvent(&Box(), &foreign);
  QTest::keyClick(&Box(), Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClick(&Box(), Qt::Key_Return);
  EXPECT_EQ(Box().Text(), "z\n\n");
}

}  // namespace
}  // namespace loquitor
