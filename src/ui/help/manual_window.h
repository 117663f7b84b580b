#pragma once

#include <QString>
#include <QTextBrowser>
#include <QWidget>

namespace loquitor {

/// The pages of the manual. A link to a heading is #, then the heading in lower case with hyphens
/// for blanks and without other signs than letters, digits and hyphens.
class ManualPages : public QTextBrowser {
  Q_OBJECT
 public:
  explicit ManualPages(QWidget* zParent);

 protected:
  void doSetSource(const QUrl& zPage, QTextDocument::ResourceType zType) override;

 private:
  void ScrollToHeading(const QString& zTarget);
};

/// Shows the manual, its pictures and the documents that it leads to. Names the version and the
/// licence of the program. A window of its own, which keeps no program running.
class ManualWindow : public QWidget {
  Q_OBJECT
 public:
  /// `zFolder`: where manual.md is; empty when it was not found, which the window then says.
  explicit ManualWindow(const QString& zFolder);

  /// Shows the chapter with the heading `zChapter` and brings the window to the front.
  void ShowChapter(const QString& zChapter);

 protected:
  void keyPressEvent(QKeyEvent* zEvent) override;

 private:
  QString folder_;
  ManualPages* pages_;
};

/// The folder of the manual: the first that holds manual.md among the places where it is installed
/// or built, seen from the program's own folder `zProgramFolder`. Empty when there is none.
QString FindManual(const QString& zProgramFolder);

}  // namespace loquitor
