#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "tests/support/program.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"
#include "ui/controls/check_box.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"
#include "ui/windows/tool_window.h"

namespace loquitor::testing {

struct InFolder {
  TempFolder folder;
};

/// A test with the program without its main window, in a folder of the test's own.
class WindowTest : public ::testing::Test, protected InFolder, protected Program {
 protected:
  WindowTest() : Program(folder.Path()) {}

  /// Writes the dictionary, one section with these entries.
  void GivenDictionary(std::string_view zEntries) {
    WriteBytes(folder / "Loquitor.Dic", "[words]\r\n" + std::string(zEntries));
  }

  /// What has gone out on the line since the last call.
  std::string Sent() { return port.TakeWritten(); }

  /// Runs `zStep` when `zCount` bytes have gone out since the last call of Sent().
  void AfterBytes(std::size_t zCount, std::function<void()> zStep) {
    port.onByte = [=, this] {
      if (port.written.size() == zCount) {
        zStep();
      }
    };
  }

  /// Runs `zStep` after `zMilliseconds`, from the event loop that runs then.
  void After(int zMilliseconds, std::function<void()> zStep) {
    QTimer::singleShot(zMilliseconds, &steps_, std::move(zStep));
  }

  /// The texts of the boxes that have been shown.
  QStringList Told() const {
    QStringList texts;
    for (const auto& asked : prompts.asked) {
      texts.push_back(asked.text);
    }
    return texts;
  }

 private:
  QObject steps_;  // the steps that have not run end with the test
};

/// A test of one window, with verbs for what its user does.
class ToolWindowTest : public WindowTest {
 protected:
  /// The window that the verbs act on.
  virtual QWidget* Front() { return window.get(); }

  template <class Window>
  void Open() {
    window = std::make_unique<Window>(nullptr, context);
    window->Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  template <class Window>
  void Reopen() {
    window->close();
    Open<Window>();
  }

  /// A control of the window; throws when there is none.
  template <class T = QWidget>
  T* Get(const QString& zName) {
    T* control = Front()->findChild<T*>(zName);
    if (control == nullptr) {
      throw std::invalid_argument("no control " + zName.toStdString());
    }
    return control;
  }

  void Click(const QString& zName) {
    auto* control = Get(zName);
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
  }
  TextBox* Box(const QString& zName) { return Get<TextBox>(zName); }
  /// The background that a box was given; invalid while it has the desktop's.
  static QColor ColourOf(const QWidget* zBox) {
    const QPalette palette = zBox->palette();
    return palette.isBrushSet(QPalette::Active, QPalette::Base) ? palette.color(QPalette::Base)
                                                                : QColor();
  }
  ScrollBar* Bar(const QString& zName) { return Get<ScrollBar>(zName); }

  /// Types a text in place of the text of a box. The box keeps the focus.
  void Type(const QString& zBox, const QString& zText) {
    Box(zBox)->setFocus();
    Box(zBox)->selectAll();
    QTest::keyClick(Box(zBox), Qt::Key_Delete);
    QTest::keyClicks(Box(zBox), zText);
  }

  /// The names of all Tab stops that can be reached, in their order from `zFirst` on.
  std::string TabOrder(const QString& zFirst) {
    QWidget* first = Get(zFirst);
    QString order = zFirst;
    for (QWidget* at = first->nextInFocusChain(); at != first; at = at->nextInFocusChain()) {
      if ((at->focusPolicy() & Qt::TabFocus) != 0 && at->isVisible() && at != Front()) {
        order += ' ' + at->objectName();
      }
    }
    return order.toStdString();
  }

  std::unique_ptr<ToolWindow> window;
};

}  // namespace loquitor::testing
