#pragma once

#include <QObject>
#include <QString>
#include <memory>

namespace loquitor {

class ManualWindow;

/// Opens the manual when F1 is pressed in a window that has a chapter in it, at that chapter. F1 in
/// a message box or in the manual itself does nothing.
class HelpKey : public QObject {
  Q_OBJECT
 public:
  /// `zManualFolder` is as for ManualWindow. Needs a QApplication, whose events it watches.
  explicit HelpKey(const QString& zManualFolder);
  ~HelpKey() override;

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  std::unique_ptr<ManualWindow> manual_;
  QString folder_;
};

}  // namespace loquitor
