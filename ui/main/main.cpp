#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <csignal>

#include "link/program_folder.h"
#include "link/qt/qt_serial_port.h"
#include "ui/main/frm_utility.h"
#include "ui/toolkit/font_warm_up.h"
#include "ui/toolkit/large_blocks.h"

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) {
    // The format is named because otherwise Qt loads every library of image formats that it has.
    icon.addPixmap(QPixmap(QStringLiteral(":/icons/loquitor_%1.png").arg(size), "PNG"));
  }
  return icon;
}

/// A write beyond the system's limit for the size of a file fails, and is told, as on a full disk;
/// otherwise it would end the program with all that is not saved.
void OutliveWritesBeyondTheLimit() {
#ifdef SIGXFSZ
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // cannot fail for a signal that exists
#endif
}

}  // namespace

int main(int argc, char** argv) {
  loquitor::ReturnLargeBlocksAtOnce();
  OutliveWritesBeyondTheLimit();
  loquitor::FontWarmUp fonts;
  QApplication application(argc, argv);
  fonts.Finish();
  QApplication::setApplicationName(loquitor::ApplicationTitle);
  QApplication::setApplicationVersion(QStringLiteral("1.4"));
  QApplication::setDesktopFileName(QStringLiteral("org.loquitor.Loquitor"));

  const std::filesystem::path folder = loquitor::ProgramFolder();
  const loquitor::SettingsFile settings(folder);
  const loquitor::DictionaryStore dictionary(folder);
  loquitor::QtSerialPort MSComm1;
  loquitor::DesktopPrompts prompts;
  loquitor::frmUtility window(MSComm1, settings, dictionary, prompts);
  window.Open();
  // The first window does not wait for its icon.
  QTimer::singleShot(0, &application, [] { QApplication::setWindowIcon(ProgramIcon()); });
  return QApplication::exec();
}
