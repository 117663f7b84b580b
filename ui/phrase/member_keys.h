#pragma once

#include <QObject>
#include <QVector>
#include <vector>

#include "ui/toolkit/click_label.h"
#include "ui/toolkit/twips.h"

class QKeyEvent;

namespace loquitor {

/// Makes a frame of clickable labels one stop in the tab order. While the frame has the focus one
/// of its members is the current one, visibly marked: the arrow keys move among the members by
/// position, Home and End to the first and last, Space and Enter click the current member, Insert
/// and Ctrl+Enter raise its double click (and no click).
class MemberKeys : public QObject {
  Q_OBJECT
 public:
  /// `zMembers`: the labels in reading order, at least one, all children of `zFrame`. A label that
  /// is clicked with the mouse becomes the current one. Their tooltips become their accessible
  /// descriptions.
  MemberKeys(QWidget* zFrame, const QVector<ClickLabel*>& zMembers);

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  bool HandleKey(const QKeyEvent& zEvent);
  bool HandleMove(int zKey);
  void MoveTo(std::size_t zMember);
  void ShowCurrent();

  QWidget* frame_;
  std::vector<ClickLabel*> members_;
  std::vector<TwipRect> places_;
  std::size_t current_ = 0;
};

}  // namespace loquitor
