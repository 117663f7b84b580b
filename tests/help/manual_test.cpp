#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QWindow>

#include "tests/support/window_test.h"
#include "ui/help/help_key.h"
#include "ui/help/manual_window.h"
#include "ui/main/frm_utility.h"

namespace loquitor::testing {
namespace {

/// The program with the real manual, and its user, who presses F1.
class Manual : public WindowTest {
 protected:
  static ManualPages* Pages() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* manual = qobject_cast<ManualWindow*>(window);
          manual != nullptr && manual->isVisible()) {
        return manual->findChild<ManualPages*>();
      }
    }
    return nullptr;
  }
  /// The heading at the top of what is shown.
  static QString TopHeading() {
    QTextBlock block = Pages()->cursorForPosition({2, 4}).block();
    while (block.isValid() && block.blockFormat().headingLevel() == 0) {
      block = block.next();
    }
    return block.text();
  }

  static void Follow(const QString& zLink) {
    Pages()->setSource(Pages()->source().resolved(QUrl(zLink)));
  }
  /// What `zWhat` returns for each fragment of the page, without empty texts.
  static QStringList Found(const std::function<QString(const QTextCharFormat&)>& zWhat) {
    QStringList found;
    for (QTextBlock block = Pages()->document()->begin(); block.isValid(); block = block.next()) {
      for (auto at = block.begin(); !at.atEnd(); ++at) {
        found += zWhat(at.fragment().charFormat());
      }
    }
    found.removeAll(QString());
    return found;
  }

  HelpKey help{MANUAL_FOLDER};
  frmUtility main{port, settings, dictionary, prompts};
};

TEST_F(Manual, OpensAtTheChapterOfTheWindowThatF1IsPressedIn) {
  main.Open();
  for (const auto& [button, heading] :
       Rows<const char*, const char*>{{"EditPhrases", "Phrase Editor"},
                                      {"EditEEPROM", "EEPROM Editor"},
                                      {"btnSetSerialPort", "Event Configuration"},
                                      {"btnSynth", "Synth Control"},
                                      {"btnDictEdit", "Dictionary Editor"},
                                      {"Command1", "Baud Rate and Detune"}}) {
    After(0, [zHeading = heading] {
      QWidget* editor = QApplication::activeModalWidget();
      ASSERT_NE(editor, nullptr);
      QWidget* control = editor->findChild<QLineEdit*>();
      QTest::keyClick(control != nullptr ? control : editor, Qt::Key_F1);
      ASSERT_NE(Pages(), nullptr);
      EXPECT_EQ(TopHeading().toStdString(), zHeading);
      // Sent to the native window, as the desktop does: a modal window blocks keys there.
      QTest::keyClick(Pages()->window()->windowHandle(), Qt::Key_Escape);
      EXPECT_EQ(Pages(), nullptr);
      EXPECT_TRUE(editor->isVisible());
      editor->close();
    });
    QTest::mouseClick(main.findChild<QWidget*>(button), Qt::LeftButton);
  }
  QTest::keyClick(&main, Qt::Key_F1);
  EXPECT_EQ(TopHeading().toStdString(), "Main window");
}

TEST_F(Manual, FollowsItsLinksToChaptersAndDocumentsAndBack) {
  ManualWindow manual(MANUAL_FOLDER);
  manual.ShowChapter("The windows");
  const QStringList chapters = Found([](const QTextCharFormat& zFormat) {
                                 return zFormat.anchorHref();
                               }).filter(QRegularExpression("^#"));
  EXPECT_GE(chapters.size(), 6);
  for (const QString& link : chapters) {
    Follow(link);
    const QScrollBar* bar = Pages()->verticalScrollBar();
    if (bar->value() == bar->maximum()) {
      continue;  // the last chapter does not reach the top
    }
    EXPECT_EQ('#' + TopHeading().toLower().replace(' ', '-').toStdString(), link.toStdString());
  }
  Follow("#the-sounds");
  Follow("ports.md");
  EXPECT_TRUE(Pages()->toPlainText().contains("[Ports]"));
  Pages()->backward();
  EXPECT_EQ(TopHeading().toStdString(), "The sounds");
}

TEST_F(Manual, ShowsItsPictures) {
  ManualWindow manual(MANUAL_FOLDER);
  manual.ShowChapter("The windows");
  const QStringList pictures = Found([](const QTextCharFormat& zFormat) {
    return zFormat.isImageFormat() ? zFormat.toImageFormat().name() : QString();
  });
  EXPECT_GT(pictures.size(), 5);
  for (const QString& picture : pictures) {
    EXPECT_FALSE(Pages()->loadResource(QTextDocument::ImageResource, QUrl(picture)).isNull())
        << picture.toStdString();
  }
}

TEST_F(Manual, IsFoundBesideTheProgramAndInTheShareFolder) {
  for (const char* place : {"docs", "share/doc/loquitor"}) {
    EXPECT_EQ(FindManual(QString::fromStdString((folder / "bin").string())), "");
    const auto docs = folder / (std::string(place) == "docs" ? "bin/docs" : place);
    std::filesystem::create_directories(docs);
    WriteBytes(docs / "manual.md", "# Manual");
    EXPECT_EQ(FindManual(QString::fromStdString((folder / "bin").string())).toStdString(),
              docs.generic_string());
    std::filesystem::remove(docs / "manual.md");
  }
}

TEST_F(Manual, SaysVersionAndLicenceAndWhatIsMissing) {
  QCoreApplication::setApplicationVersion("1.4");
  ManualWindow manual{QString()};
  manual.ShowChapter("The windows");
  const QString about = manual.findChild<QLabel*>()->text();
  EXPECT_TRUE(about.contains("1.4") && about.contains("MIT")) << about.toStdString();
  EXPECT_TRUE(Pages()->toPlainText().contains("docs/manual.md"));
}

}  // namespace
}  // namespace loquitor::testing
