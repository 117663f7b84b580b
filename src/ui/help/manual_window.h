#pragma once

#include <QString>
#include <QTextBrowser>
#include <QWidget>

namespace loquitor {

/// The pages of the manual. A link to a heading is # and the heading in lower case, with hyphens
/// for its blanks and only its letters, digits, underscores and hyphens.
class ManualPages : public QTextBrowser {
  Q_OBJECT
 public:
  explicit ManualPages(QWidget* zParent);

 protected:
  void doSetSource(const QUrl& zPage, QTextDocument::ResourceType zType) override;

 private:
  void ScrollToHeading(const QString& zTarget);
};

/// Shows the manual, its pictures and the documents that it links to, and names the version and the
/// licence of the program. The program ends even while this window is open.
class ManualWindow : public QWidget {
  Q_OBJECT
 public:
  /// `zFolder` is the folder of manual.md. When it is empty, the window says that the manual was
  /// not found.
  explicit ManualWindow(const QString& zFolder);

  /// Shows the chapter with the heading `zChapter` and brings the window to the front.
  void ShowChapter(const QString& zChapter);

 protected:
  void keyPressEvent(QKeyEvent* zEvent) override;

 private:
  QString folder_;
  ManualPages* pages_;
};

/// The folder of manual.md. Looks in the places where it is installed or built, relative to the
/// folder of the program, `zProgramFolder`. Empty when none of them has it.
QString FindManual(const QString& zProgramFolder);

}  // namespace loquitor
