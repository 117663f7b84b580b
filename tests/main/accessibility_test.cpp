#include <QAccessible>
#include <QRadioButton>
#include <set>

#include "tests/support/window_test.h"
#include "ui/chip/frm_baud_rate.h"
#include "ui/chip/frm_buttons.h"
#include "ui/chip/frm_eeprom.h"
#include "ui/dictedit/frm_dict_edit.h"
#include "ui/main/frm_utility.h"
#include "ui/phrase/frm_codes.h"
#include "ui/phrase/frm_phrase.h"
#include "ui/synth/frm_synth_ctrl.h"

namespace loquitor::testing {
namespace {

/// Every window of the program, open.
class EveryWindow : public WindowTest {
 protected:
  using Visit = std::function<void(QWidget*)>;

  void Each(const Visit& zVisit) {
    GivenDictionary("cat=\\KE \\AY \\TT\r\n");
    WriteBytes(folder / "Loquitor.ini", "[EEPROM]\r\nPhrase3=\\IY\r\n");
    frmUtility mainWindow(port, settings, dictionary, prompts);
    mainWindow.Open();
    zVisit(&mainWindow);
    VisitEditors<frmPhrase, frmCodes, frmEEPROM, frmButtons, frmBaudRate, FrmSynthCtrl,
                 frmDictEdit>(zVisit);
  }

 private:
  template <class... Editors>
  void VisitEditors(const Visit& zVisit) {
    const auto visit = [&](auto zEditor) {
      zEditor->Open();
      EXPECT_TRUE(QTest::qWaitForWindowActive(zEditor.get()));
      zVisit(zEditor.get());
      zEditor->close();
    };
    (visit(std::make_unique<Editors>(nullptr, context)), ...);
  }
};

/// What a screen reader announces as something to act on.
const std::set<QAccessible::Role> Controls = {QAccessible::PushButton,  QAccessible::CheckBox,
                                              QAccessible::RadioButton, QAccessible::EditableText,
                                              QAccessible::ScrollBar,   QAccessible::Slider,
                                              QAccessible::ComboBox,    QAccessible::ListItem};

int CheckNames(QAccessibleInterface* zItem, const QWidget* zWindow) {
  if (zItem == nullptr || zItem->state().invisible) {
    return 0;
  }
  int controls = 0;
  if (Controls.contains(zItem->role())) {
    const QObject* object = zItem->object();
    controls = 1;
    EXPECT_FALSE(zItem->text(QAccessible::Name).trimmed().isEmpty())
        << zWindow->windowTitle().toStdString() << ": "
        << (object != nullptr ? object->objectName().toStdString() : "an item without an object");
  }
  for (int child = 0; child < zItem->childCount(); ++child) {
    controls += CheckNames(zItem->child(child), zWindow);
  }
  return controls;
}

TEST_F(EveryWindow, GivesEveryControlANameForAScreenReader) {
  Each([](QWidget* zWindow) {
    EXPECT_GE(CheckNames(QAccessible::queryAccessibleInterface(zWindow), zWindow), 2)
        << zWindow->windowTitle().toStdString();
  });
}

/// The widgets that Tab stops at, and those that the arrow keys reach from there (option buttons).
QWidgetList ReachedByKeys(QWidget* zWindow) {
  QWidgetList reached;
  for (QWidget* stop = zWindow->nextInFocusChain(); stop != zWindow;
       stop = stop->nextInFocusChain()) {
    if (stop->isVisibleTo(zWindow) && stop->isEnabled() &&
        (stop->focusPolicy() & Qt::TabFocus) != 0) {
      reached.append(stop);
    }
  }
  for (qsizetype at = 0; at < reached.size(); ++at) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
      if (qobject_cast<QRadioButton*>(reached[at]) != nullptr) {
        reached[at]->setFocus();
        QTest::keyClick(reached[at], key);
        if (!reached.contains(zWindow->focusWidget())) {
          reached.append(zWindow->focusWidget());
        }
      }
    }
  }
  return reached;
}

TEST_F(EveryWindow, IsUsableByKeyboardAlone) {
  Each([](QWidget* zWindow) {
    const QWidgetList reached = ReachedByKeys(zWindow);
    for (QWidget* control : zWindow->findChildren<QWidget*>()) {
      const bool takesKeys = (control->focusPolicy() & Qt::ClickFocus) != 0;
      if (takesKeys && control->isVisibleTo(zWindow) && control->isEnabled()) {
        EXPECT_TRUE(reached.contains(control))
            << zWindow->windowTitle().toStdString() << ": " << control->objectName().toStdString();
      }
    }
  });
}

}  // namespace
}  // namespace loquitor::testing
