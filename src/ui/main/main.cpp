#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "english/phone_source.h"
#include "files/data_folder.h"
#include "line/qt/system_port.h"
#include "ui/help/help_key.h"
#include "ui/help/manual_window.h"
#include "ui/main/ending_signals.h"
#include "ui/main/frm_utility.h"
#include "ui/windows/prompts.h"

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) {
    // The format is named because otherwise Qt loads every library of image formats that it has.
    icon.addPixmap(QPixmap(QStringLiteral(":/icons/loquitor_%1.png").arg(size), "PNG"));
  }
  return icon;
}

/// Makes a write beyond the system's limit for file sizes fail like a write on a full disk. Without
/// this it would end the program, and unsaved work would be lost.
void OutliveWritesBeyondTheLimit() {
#ifdef SIGXFSZ
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // cannot fail for a signal that exists
#endif
}

/// Handles Qt's messages while the QApplication is made. When no display can be reached, it ends
/// the program with a message. Without this, Qt would end it with a core dump.
void EndWithoutDisplay(QtMsgType zType, const QMessageLogContext&, const QString& zMessage) {
  if (zType == QtFatalMsg) {
    std::cerr << "Loquitor: no window can be opened, because no display can be reached. "
                 "loquitor-say speaks without one."
              << std::endl;
    std::_Exit(EXIT_FAILURE);
  }
  std::cerr << zMessage.toStdString() << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  OutliveWritesBeyondTheLimit();
  // The captions and bars fit their places in this style. It is on every system.
  QApplication::setStyle(QStringLiteral("Fusion"));
  const QtMessageHandler handler = qInstallMessageHandler(EndWithoutDisplay);
  QApplication application(argc, argv);
  qInstallMessageHandler(handler);
  QApplication::setApplicationName(loquitor::ApplicationTitle);
  QApplication::setApplicationVersion(QStringLiteral(LOQUITOR_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("org.loquitor.Loquitor"));

  const std::filesystem::path folder = loquitor::ChooseDataFolder(loquitor::FindDataPlaces());
  const loquitor::SettingsFile settings(folder);
  const loquitor::DictionaryStore dictionary(folder);
  loquitor::SystemPort MSComm1;
  loquitor::DesktopPrompts prompts;
  const std::unique_ptr<loquitor::PhoneSource> phones = loquitor::CreatePhoneSource();
  loquitor::frmUtility window(MSComm1, settings, dictionary, prompts, phones.get());
  loquitor::HandleEndingSignals(&window, [&window] { window.close(); });
  const loquitor::HelpKey help(loquitor::FindManual(QApplication::applicationDirPath()));
  window.Open();
  // The first window does not wait for its icon.
  QTimer::singleShot(0, &application, [] { QApplication::setWindowIcon(ProgramIcon()); });
  return QApplication::exec();
}
