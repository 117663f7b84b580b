#include "ui/phrase/silent_marks.h"

#include <QEvent>
#include <algorithm>

#include "core/say_data.h"
#include "ui/controls/text_area.h"
#include "ui/phrase/say_data_places.h"

namespace loquitor {
namespace {

// A word that is partly in view is followed over so many characters out of view.
constexpr int Reach = 2000;

}  // namespace

SilentMarks::SilentMarks(TextArea* zArea, const SayDataTranslator& zTranslator)
    : QObject(zArea), area_(zArea), translator_(zTranslator) {
  idle_.setSingleShot(true);
  idle_.setInterval(0);
  connect(&idle_, &QTimer::timeout, this, &SilentMarks::Mark);
  connect(area_, &QPlainTextEdit::textChanged, this, &SilentMarks::LookAgain);
  // When the box scrolls by itself, the scroll bar raises no signal.
  connect(area_, &QPlainTextEdit::updateRequest, this, [this](const QRect& zRect, int zScrolled) {
    if (zScrolled != 0 || zRect.contains(area_->viewport()->rect())) {
      LookAgain();
    }
  });
  area_->viewport()->installEventFilter(this);
}

bool SilentMarks::eventFilter(QObject*, QEvent* zEvent) {
  if (zEvent->type() == QEvent::Resize || zEvent->type() == QEvent::FontChange) {
    LookAgain();
  }
  return false;
}

void SilentMarks::Mark() {
  const auto [first, last] = area_->VisibleRange();
  const int from = std::max(0, first - Reach);
  const std::string text = area_->TextBetween(from, last + Reach);
  const TextSpan view{static_cast<std::size_t>(first - from),
                      static_cast<std::size_t>(last - from)};
  const bool isCutAtEnd = last + Reach < area_->document()->characterCount() - 1;
  const TextSpan words = WholeWords(text, view, from > 0, isCutAtEnd);
  const int start = from + static_cast<int>(words.start);
  std::vector<TextArea::Range> marks;
  for (const SilentPart& part : translator_.FindSilentParts(
           std::string_view(text).substr(words.start, words.end - words.start))) {
    marks.emplace_back(start + static_cast<int>(part.start), static_cast<int>(part.length));
  }
  area_->Underline(marks);
}

}  // namespace loquitor
