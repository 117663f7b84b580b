#include "ui/toolkit/unwrapped_layout.h"

#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextLine>
#include <algorithm>

namespace loquitor {
namespace {

constexpr int LeastLinesKept = 256;
constexpr int PartKept = 128;

/// Wider than any line and any screen, so that a line that has become shorter is drawn anew to the
/// right edge.
constexpr double LineWidth = 4'000'000;

/// How wide the document must be for `zLine`; 0 as long as that is not laid out.
double WidthOf(const QTextBlock& zLine, double zMargin) {
  return zLine.layout()->lineCount() == 0
             ? 0
             : zLine.layout()->lineAt(0).naturalTextWidth() + 2 * zMargin;
}

}  // namespace

void UnwrappedLayout::Install(QTextDocument* zDocument) {
  zDocument->setDocumentLayout(new UnwrappedLayout(zDocument));
}

int UnwrappedLayout::LinesKept() const {
  return std::max(LeastLinesKept, document()->blockCount() / PartKept);
}

QRectF UnwrappedLayout::blockBoundingRect(const QTextBlock& zLine) const {
  if (zLine.isValid()) {
    auto* self = const_cast<UnwrappedLayout*>(this);  // Qt asks here for what it needs laid out
    if (zLine.layout()->lineCount() == 0) {
      self->LayOut(zLine);
    }
    self->NoteWidth(WidthOf(zLine, document()->documentMargin()));
  }
  return QPlainTextDocumentLayout::blockBoundingRect(zLine);
}

QSizeF UnwrappedLayout::documentSize() const {
  return {widest_, QPlainTextDocumentLayout::documentSize().height()};
}

void UnwrappedLayout::documentChanged(int zFrom, int zRemoved, int zAdded) {
  const QTextBlock first = document()->findBlock(zFrom);
  const bool isWithinLine = first.isValid() && first.contains(zFrom + std::max(zAdded - 1, 0)) &&
                            document()->blockCount() == lines_;
  if (isWithinLine) {
    LineChanged(first);
    return;
  }
  lines_ = document()->blockCount();
  if (lines_ == 1) {
    widest_ = 0;
    linesHeld_ = 0;
  }
  QPlainTextDocumentLayout::documentChanged(zFrom, zRemoved, zAdded);
}

void UnwrappedLayout::LineChanged(const QTextBlock& zLine) {
  const double margin = document()->documentMargin();
  const double width = WidthOf(zLine, margin);
  const double height = blockBoundingRect(zLine).height();
  changedLine_ = zLine.blockNumber();
  LayOut(zLine);
  if (width >= widest_) {
    widest_ = 0;  // the lines in view tell theirs when they are drawn
  }
  NoteWidth(WidthOf(zLine, margin));
  if (blockBoundingRect(zLine).height() == height) {
    emit updateBlock(zLine);
  } else {
    requestUpdate();
  }
}

void UnwrappedLayout::LayOut(const QTextBlock& zLine) {
  QTextLayout& layout = *zLine.layout();
  if (layout.lineCount() == 0) {
    ++linesHeld_;
  }
  layout.setTextOption(document()->defaultTextOption());
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLeadingIncluded(true);
  line.setLineWidth(LineWidth);
  line.setPosition(QPointF(document()->documentMargin(), 0));
  layout.endLayout();
}

/// Tells the scroll bar of a line wider than all before. It asks for lines that may be wider still.
void UnwrappedLayout::NoteWidth(double zWidth) {
  if (zWidth <= widest_) {
    return;
  }
  widest_ = zWidth;
  if (!isNotingWidth_) {
    isNotingWidth_ = true;
    emit documentSizeChanged(documentSize());
    isNotingWidth_ = false;
  }
}

/// A new layout takes the place of the old: only then the document lets go of what it holds of its
/// lines.
void UnwrappedLayout::ForgetLines(QTextDocument* zDocument) {
  const auto* layout = qobject_cast<UnwrappedLayout*>(zDocument->documentLayout());
  if (layout == nullptr || layout->linesHeld_ <= layout->LinesKept() || layout->IsBeingComposed()) {
    return;
  }
  auto* successor = new UnwrappedLayout(zDocument);
  successor->widest_ = layout->widest_;
  successor->setCursorWidth(layout->cursorWidth());
  {
    const QSignalBlocker noChange(zDocument);  // it would report the whole text as inserted
    zDocument->setDocumentLayout(successor);   // deletes the old one
  }
  emit zDocument->documentLayoutChanged();
}

/// Whether an input method is at work, whose text is nowhere but in the layout of its line.
bool UnwrappedLayout::IsBeingComposed() const {
  const QTextBlock line = document()->findBlockByNumber(changedLine_);
  return line.isValid() && !line.layout()->preeditAreaText().isEmpty();
}

}  // namespace loquitor
