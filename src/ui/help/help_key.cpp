#include "ui/help/help_key.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include "ui/help/manual_window.h"

namespace loquitor {
namespace {

/// A window and the heading of its chapter.
struct Chapter {
  const char* window;  ///< the name of its class
  const char* heading;
};

constexpr Chapter Chapters[] = {
    {"loquitor::frmUtility", "Main window"},
    {"loquitor::frmPhrase", "Phrase Editor"},
    {"loquitor::frmCodes", "Codes viewer"},
    {"loquitor::frmEEPROM", "EEPROM Editor"},
    {"loquitor::frmButtons", "Event Configuration"},
    {"loquitor::FrmSynthCtrl", "Synth Control"},
    {"loquitor::frmDictEdit", "Dictionary Editor"},
    {"loquitor::frmBaudRate", "Baud Rate and Detune"},
};

/// The heading of the window's chapter. Null for a window without one.
const char* ChapterOf(const QWidget* zWindow) {
  for (const Chapter& chapter : Chapters) {
    if (qstrcmp(chapter.window, zWindow->metaObject()->className()) == 0) {
      return chapter.heading;
    }
  }
  return nullptr;
}

bool IsHelpKey(const QEvent* zEvent) {
  if (zEvent->type() != QEvent::KeyPress) {
    return false;
  }
  const auto* key = static_cast<const QKeyEvent*>(zEvent);
  return key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier;
}

}  // namespace

HelpKey::HelpKey(const QString& zManualFolder) : folder_(zManualFolder) {
  QCoreApplication::instance()->installEventFilter(this);
}

HelpKey::~HelpKey() = default;

bool HelpKey::eventFilter(QObject* zWatched, QEvent* zEvent) {
  if (!IsHelpKey(zEvent) || !zWatched->isWidgetType()) {
    return false;
  }
  const char* chapter = ChapterOf(static_cast<QWidget*>(zWatched)->window());
  if (chapter == nullptr) {
    return false;
  }
  if (manual_ == nullptr) {
    manual_ = std::make_unique<ManualWindow>(folder_);
  }
  manual_->ShowChapter(QLatin1String(chapter));
  return true;
}

}  // namespace loquitor
