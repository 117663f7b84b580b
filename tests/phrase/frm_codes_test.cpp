#include "ui/phrase/frm_codes.h"

#include <QClipboard>
#include <QGuiApplication>

#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

class CodesViewer : public ToolWindowTest {
 protected:
  void OpenWith(const std::string& zCodes) {
    shared.OrvatoneCodes = zCodes;
    Open<frmCodes>();
  }
  QString Copied() {
    QGuiApplication::clipboard()->setText("before");
    Click("btnCopy");
    return QGuiApplication::clipboard()->text();
  }
};

TEST_F(CodesViewer, CopiesTheTextOfTheBoxWithItsEdits) {
  OpenWith("");
  EXPECT_EQ(Copied(), "");
  OpenWith("183, 131, 146");
  EXPECT_EQ(Get<TextArea>("txtCodes")->Text(), "183, 131, 146");
  EXPECT_EQ(Copied(), "183, 131, 146");
  Get("txtCodes")->setFocus();
  QTest::keyClicks(Get("txtCodes"), "0, ");
  EXPECT_EQ(Copied(), "0, 183, 131, 146");
  Click("btnDone");
  EXPECT_TRUE(window->IsUnloaded());
}

TEST_F(CodesViewer, TheButtonsStayInTheCornerAndTheListFillsTheRest) {
  OpenWith("1");
  for (const auto& [size, list, buttons] :
       {std::tuple(QSize(489, 351), QSize(489, 314), QPoint(291, 318)),
        {QSize(800, 600), QSize(800, 563), QPoint(602, 567)},
        {QSize(150, 30), QSize(150, 1), QPoint(-48, -3)}}) {
    window->resize(size);
    QCoreApplication::processEvents();
    EXPECT_EQ(Get("txtCodes")->geometry(), QRect(QPoint(0, 0), list));
    EXPECT_EQ(Get("btnCopy")->geometry(), QRect(buttons, QSize(113, 29)));
    EXPECT_EQ(Get("btnDone")->geometry(), QRect(buttons + QPoint(117, 0), QSize(77, 29)));
  }
}

}  // namespace
}  // namespace loquitor::testing
