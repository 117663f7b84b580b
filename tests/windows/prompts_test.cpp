#include "ui/windows/prompts.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

/// Calls `zAct` with the box that is shown next.
template <class Box>
void WhenUp(std::function<void(Box*)> zAct) {
  QTimer::singleShot(0, qApp, [zAct] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    zAct(box);
  });
}

TEST(DesktopPrompts, EachButtonAndTheCloseBoxHaveTheirAnswer) {
  DesktopPrompts prompts;
  using Ask = PromptButtons;
  using Is = PromptAnswer;
  using Box = QMessageBox;  // NoButton: Escape
  for (const auto& [buttons, pressed, answer] :
       Rows<Ask, Box::StandardButton, Is>{{Ask::Ok, Box::Ok, Is::Ok},
                                          {Ask::OkCancel, Box::Ok, Is::Ok},
                                          {Ask::OkCancel, Box::NoButton, Is::Cancel},
                                          {Ask::YesNo, Box::Yes, Is::Yes},
                                          {Ask::YesNo, Box::NoButton, Is::No},
                                          {Ask::YesNoCancel, Box::No, Is::No},
                                          {Ask::YesNoCancel, Box::NoButton, Is::Cancel}}) {
    WhenUp<Box>([button = pressed](Box* zBox) {
      button == Box::NoButton ? QTest::keyClick(zBox, Qt::Key_Escape)
                              : zBox->button(button)->click();
    });
    EXPECT_EQ(prompts.Ask(nullptr, "Notice", "Text", buttons), answer) << pressed;
  }
}

TEST(DesktopPrompts, TextsAreShownAsTheyAre) {
  DesktopPrompts prompts;
  WhenUp<QMessageBox>([](QMessageBox* zBox) {
    EXPECT_EQ(zBox->windowTitle(), "Loquitor");
    EXPECT_EQ(zBox->text(), "<b>one</b>\n\n       seven blanks & more");
    EXPECT_EQ(zBox->textFormat(), Qt::PlainText);
    EXPECT_EQ(zBox->icon(), QMessageBox::NoIcon);
    zBox->accept();
  });
  prompts.Tell(nullptr, "<b>one</b>\r\n\r\n       seven blanks & more");
  WhenUp<QMessageBox>([](QMessageBox* zBox) {
    EXPECT_GT(zBox->width(), zBox->fontMetrics().horizontalAdvance(zBox->windowTitle()) + 100);
    zBox->accept();
  });
  prompts.Ask(nullptr, "A title wider than the text", "x", PromptButtons::Ok);
}

TEST(DesktopPrompts, AnInputBoxGivesItsTextOrNothing) {
  DesktopPrompts prompts;
  WhenUp<QDialog>([](QDialog* zBox) {
    auto* line = zBox->findChild<QLineEdit*>();
    EXPECT_EQ(zBox->windowTitle(), "Find");
    EXPECT_EQ(line->selectedText(), "before");
    QTest::keyClicks(line, "after");
    line->insert("ř");
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(prompts.AskText(nullptr, "Find", "Find:", "before"), QString("after"));
  WhenUp<QDialog>([](QDialog* zBox) { QTest::keyClick(zBox, Qt::Key_Escape); });
  EXPECT_EQ(prompts.AskText(nullptr, "Find", "Find:", "before"), std::nullopt);
}

TEST(DesktopPrompts, ABoxIsClosedWhenItsOwnerIsDestroyed) {
  DesktopPrompts prompts;
  QPointer<QWidget> owner;
  const auto show = [&] {
    owner = new QWidget;
    owner->show();
  };
  show();
  WhenUp<QMessageBox>([&](QMessageBox*) { delete owner; });
  EXPECT_EQ(prompts.Ask(owner, "Notice", "Text", PromptButtons::YesNo), PromptAnswer::No);
  show();
  WhenUp<QDialog>([&](QDialog*) { delete owner; });
  EXPECT_EQ(prompts.AskText(owner, "Find", "Find:", ""), std::nullopt);
}

}  // namespace
}  // namespace loquitor::testing
