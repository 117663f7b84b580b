#pragma once

#include <QObject>
#include <QString>
#include <memory>

namespace loquitor {

class ManualWindow;

/// Opens the manual when F1 is pressed in any window of the program, at the chapter of that window.
class HelpKey : public QObject {
  Q_OBJECT
 public:
  /// `zManualFolder`: see ManualWindow. Needs a QApplication, which it watches while it lives.
  explicit HelpKey(const QString& zManualFolder);
  ~HelpKey() override;

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  std::unique_ptr<ManualWindow> manual_;
  QString folder_;
};

}  // namespace loquitor
