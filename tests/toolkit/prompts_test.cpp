#include "ui/toolkit/prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

namespace loquitor {
namespace {

/// Does something to the box that is up next.
template <class Box>
void WhenUp(std::function<void(Box*)> zAct) {
  QTimer::singleShot(0, qApp, [zAct] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    zAct(box);
  });
}

void Press(QMessageBox* zBox, QMessageBox::StandardButton zButton) {
  QTest::mouseClick(zBox->button(zButton), Qt::LeftButton);
}

TEST(DesktopPrompts, EachButtonAndTheCloseBoxHaveTheirAnswer) {
  struct Row {
    PromptButtons buttons;
    QMessageBox::StandardButton pressed;  // NoButton: Escape
    PromptAnswer answer;
  };
  DesktopPrompts prompts;
  for (const Row& row :
       {Row{PromptButtons::Ok, QMessageBox::Ok, PromptAnswer::Ok},
        {PromptButtons::Ok, QMessageBox::NoButton, PromptAnswer::Ok},
        {PromptButtons::OkCancel, QMessageBox::Ok, PromptAnswer::Ok},
        {PromptButtons::OkCancel, QMessageBox::Cancel, PromptAnswer::Cancel},
        {PromptButtons::OkCancel, QMessageBox::NoButton, PromptAnswer::Cancel},
        {PromptButtons::YesNo, QMessageBox::Yes, PromptAnswer::Yes},
        {PromptButtons::YesNo, QMessageBox::No, PromptAnswer::No},
        {PromptButtons::YesNo, QMessageBox::NoButton, PromptAnswer::No},
        {PromptButtons::YesNoCancel, QMessageBox::No, PromptAnswer::No},
        {PromptButtons::YesNoCancel, QMessageBox::NoButton, PromptAnswer::Cancel}}) {
    WhenUp<QMessageBox>([&](QMessageBox* zBox) {
      if (row.pressed == QMessageBox::NoButton) {
        QTest::keyClick(zBox, Qt::Key_Escape);
      } else {
        Press(zBox, row.pressed);
      }
    });
    EXPECT_EQ(prompts.Ask(nullptr, "Notice", "Text", row.buttons), row.answer) << row.pressed;
  }
}

TEST(DesktopPrompts, TextsAppearAsTheyAre) {
  DesktopPrompts prompts;
  WhenUp<QMessageBox>([](QMessageBox* zBox) {
    EXPECT_EQ(zBox->windowTitle(), "Loquitor");
    EXPECT_EQ(zBox->text(), "<b>one</b>\n\n       seven blanks & more");
    EXPECT_EQ(zBox->textFormat(), Qt::PlainText);
    EXPECT_EQ(zBox->icon(), QMessageBox::NoIcon);
    Press(zBox, QMessageBox::Ok);
  });
  prompts.Tell(nullptr, "<b>one</b>\r\n\r\n       seven blanks & more");
}

TEST(DesktopPrompts, AnInputBoxGivesItsTextOrNothing) {
  DesktopPrompts prompts;
  WhenUp<QDialog>([](QDialog* zBox) {
    auto* line = zBox->findChild<QLineEdit*>();
    EXPECT_EQ(zBox->windowTitle(), "Find");
    EXPECT_EQ(line->selectedText(), "before");
    QTest::keyClicks(line, "after");
    line->insert(QString::fromUtf8("ř"));
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(prompts.AskText(nullptr, "Find", "Find:", "before"), QString("after"));
  WhenUp<QDialog>([](QDialog* zBox) { QTest::keyClick(zBox, Qt::Key_Escape); });
  EXPECT_EQ(prompts.AskText(nullptr, "Find", "Find:", "before"), std::nullopt);
}

TEST(DesktopPrompts, ABoxWhoseOwnerGoesIsClosed) {
  DesktopPrompts prompts;
  auto owner = std::make_unique<QWidget>();
  owner->show();
  WhenUp<QMessageBox>([&](QMessageBox*) { owner.reset(); });
  EXPECT_EQ(prompts.Ask(owner.get(), "Notice", "Text", PromptButtons::YesNo), PromptAnswer::No);
  owner = std::make_unique<QWidget>();
  owner->show();
  WhenUp<QDialog>([&](QDialog*) { owner.reset(); });
  EXPECT_EQ(prompts.AskText(owner.get(), "Find", "Find:", ""), std::nullopt);
}

}  // namespace
}  // namespace loquitor
