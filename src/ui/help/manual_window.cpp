#include "ui/help/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>

namespace loquitor {
namespace {

constexpr QSize StartSize(920, 760);
const QString ManualPage = QStringLiteral("manual.md");

/// Beside the program, in the source tree of a build, and where packages put it.
const QStringList Places = {QStringLiteral("docs"), QStringLiteral("../../docs"),
                            QStringLiteral("../share/doc/loquitor"),
                            QStringLiteral("../share/doc/loquitor/docs")};

QString LinkTarget(const QString& zHeading) {
  QString target = zHeading.toLower().replace(u' ', u'-');
  static const QRegularExpression others(QStringLiteral("[^\\w-]"),
                                         QRegularExpression::UseUnicodePropertiesOption);
  return target.remove(others);
}

}  // namespace

ManualPages::ManualPages(QWidget* zParent) : QTextBrowser(zParent) {
  setOpenExternalLinks(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // one that appears changes the layout
}

void ManualPages::doSetSource(const QUrl& zPage, QTextDocument::ResourceType zType) {
  QTextBrowser::doSetSource(zPage, zType);
  if (zPage.hasFragment()) {
    const QString target = zPage.fragment();
    ScrollToHeading(target);
    // Again when the window has its final size, for which the page is laid out again.
    QTimer::singleShot(0, this, [this, target] { ScrollToHeading(target); });
  }
}

void ManualPages::ScrollToHeading(const QString& zTarget) {
  document()->pageCount();  // lays out the whole page, so that the scroll bar reaches its end
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0 && LinkTarget(block.text()) == zTarget) {
      const QRectF place = document()->documentLayout()->blockBoundingRect(block);
      verticalScrollBar()->setValue(static_cast<int>(place.top()));
      return;
    }
  }
}

ManualWindow::ManualWindow(const QString& zFolder)
    : folder_(zFolder), pages_(new ManualPages(this)) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setWindowTitle(QStringLiteral("Loquitor manual"));
  resize(StartSize);
  auto* about = new QLabel(QStringLiteral("Loquitor %1. Free software under the MIT licence. "
                                          "Alt+Left goes back, Escape closes this window.")
                               .arg(QCoreApplication::applicationVersion()),
                           this);
  about->setMargin(4);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(pages_);
  rows->addWidget(about);
}

void ManualWindow::ShowChapter(const QString& zChapter) {
  show();  // first, because a page is laid out for the width that is shown
  if (folder_.isEmpty()) {
    pages_->setPlainText(
        QStringLiteral("The manual was not found. It belongs in the folder "
                       "docs beside the program, as docs/manual.md."));
  } else {
    QUrl page = QUrl::fromLocalFile(QDir(folder_).filePath(ManualPage));
    page.setFragment(LinkTarget(zChapter));
    pages_->setSource(page);
  }
  raise();
  activateWindow();
}

void ManualWindow::keyPressEvent(QKeyEvent* zEvent) {
  if (zEvent->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(zEvent);
  }
}

QString FindManual(const QString& zProgramFolder) {
  for (const QString& place : Places) {
    const QString folder = QDir::cleanPath(QDir(zProgramFolder).filePath(place));
    if (QFileInfo::exists(QDir(folder).filePath(ManualPage))) {
      return folder;
    }
  }
  return {};
}

}  // namespace loquitor
