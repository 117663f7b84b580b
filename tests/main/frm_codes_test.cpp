#include "ui/main/frm_codes.h"

#include <QClipboard>
#include <QGuiApplication>

#include "tests/support/window_test.h"
#include "ui/toolkit/text_area.h"

namespace loquitor {
namespace {

class CodesViewer : public testing::WindowTest {
 protected:
  frmCodes& Open(const std::string& zCodes) {
    shared.OrvatoneCodes = zCodes;
    window = std::make_unique<frmCodes>(nullptr, context);
    window->Open();
    return *window;
  }
  QRect Place(const char* zName) {
    return window->findChild<QWidget*>(QLatin1String(zName))->geometry();
  }
  void Click(const char* zName) {
    QTest::mouseClick(window->findChild<QWidget*>(QLatin1String(zName)), Qt::LeftButton);
  }

  std::unique_ptr<frmCodes> window;
};

TEST_F(CodesViewer, CopiesWhatTheBoxHoldsNowEditsIncluded) {
  Open("183, 131, 146");
  auto* list = window->findChild<TextArea*>("txtCodes");
  EXPECT_EQ(list->Text(), "183, 131, 146");
  Click("btnCopy");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "183, 131, 146");
  list->setFocus();
  QTest::keyClicks(list, "0, ");
  Click("btnCopy");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "0, 183, 131, 146");
  Click("btnDone");
  EXPECT_TRUE(window->IsUnloaded());
}

TEST_F(CodesViewer, AnEmptyListEmptiesTheClipboard) {
  QGuiApplication::clipboard()->setText("before");
  Open("");
  Click("btnCopy");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST_F(CodesViewer, TheButtonsStayInTheCornerAndTheListFillsTheRest) {
  struct Row {
    QSize window;
    QRect list;
    QPoint copy;
    QPoint done;
  };
  Open("1");
  for (const Row& row : {Row{{489, 351}, {0, 0, 489, 314}, {291, 318}, {408, 318}},
                         Row{{800, 600}, {0, 0, 800, 563}, {602, 567}, {719, 567}},
                         Row{{150, 30}, {0, 0, 150, 1}, {-48, -3}, {69, -3}}}) {
    window->resize(row.window);
    QCoreApplication::processEvents();
    EXPECT_EQ(Place("txtCodes"), row.list);
    EXPECT_EQ(Place("btnCopy"), QRect(row.copy, QSize(113, 29)));
    EXPECT_EQ(Place("btnDone"), QRect(row.done, QSize(77, 29)));
  }
}

}  // namespace
}  // namespace loquitor
