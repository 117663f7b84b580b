#pragma once

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>

#include "tests/support/real_mouse.h"
#include "tests/support/window_test.h"
#include "ui/controls/click_label.h"
#include "ui/phrase/frm_phrase.h"

namespace loquitor::testing {

/// The control-code prefix of the default voice settings.
inline const std::string DefaultPrefix = "\x14\x60\x15\x72\x16\x58\x17\x05";

/// The phrase editor, open, with verbs for what its user does.
class PhraseWindowTest : public ToolWindowTest {
 protected:
  void SetUp() override { Open(); }
  void Open() { ToolWindowTest::Open<frmPhrase>(); }
  frmPhrase& Editor() { return static_cast<frmPhrase&>(*window); }

  ClickLabel* Member(std::string_view zCaption) {
    for (ClickLabel* label : window->findChildren<ClickLabel*>()) {
      if (label->text() == QLatin1String(zCaption.data())) {
        return label;
      }
    }
    throw std::invalid_argument("no member " + std::string(zCaption));
  }
  TextArea* SayDataBox() { return Get<TextArea>("txtSayData"); }

  void Press(const char* zButton) { QTest::mouseClick(Get<QPushButton>(zButton), Qt::LeftButton); }
  void Tick(const char* zCheckBox, bool zIsTicked) {
    Get<CheckBox>(zCheckBox)->SetValue(zIsTicked ? 1 : 0);
  }
  void Click(std::string_view zCaption) { QTest::mouseClick(Member(zCaption), Qt::LeftButton); }

  /// Two clicks of a real mouse; returns when both have been handled.
  void DoubleClick(std::string_view zCaption, int zMilliseconds = 60) {
    ClickLabel* label = Member(zCaption);
    QSignalSpy doubleClicks(label, &ClickLabel::DoubleClick);
    RealMouse mouse;
    mouse.ClickTwice(label, zMilliseconds);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !doubleClicks.isEmpty(); }));
  }

  /// Shows a modal box for a while at every question. It swallows all clicks meanwhile.
  void GivenBoxesThatSwallowClicks() {
    prompts.whileOpen = [this] {
      QDialog box(window.get());
      QTimer::singleShot(200, &box, &QDialog::reject);
      box.exec();
      window->activateWindow();  // as the window manager does
    };
  }

  /// Does `zStep` once, when a send is under way.
  void WhileSending(std::function<void()> zStep) {
    auto* timer = new QTimer(window.get());
    QObject::connect(timer, &QTimer::timeout, window.get(), [=, this] {
      if (sender.IsSending()) {
        timer->stop();
        zStep();
      }
    });
    timer->start(1);
  }

  /// The Say Data with the selection in brackets, or the caret as a bar.
  std::string SayData() {
    std::string text = SayDataBox()->Text();
    const auto start = static_cast<std::size_t>(SayDataBox()->SelectionStart());
    const auto length = static_cast<std::size_t>(SayDataBox()->SelectionLength());
    if (length == 0) {
      return text.insert(start, "|");
    }
    return text.insert(start + length, "]").insert(start, "[");
  }

  /// Puts a text into the Say Data, in the form that SayData returns.
  void GivenSayData(std::string zMarked) {
    const std::size_t start = zMarked.find_first_of("|[");
    zMarked.erase(start, 1);
    const std::size_t end = std::min(zMarked.find(']'), zMarked.size());
    const std::size_t length = end < zMarked.size() ? end - start : 0;
    zMarked.erase(end, 1);
    SayDataBox()->SetText(zMarked);
    SayDataBox()->Select(static_cast<int>(start), static_cast<int>(length));
  }
};

}  // namespace loquitor::testing
