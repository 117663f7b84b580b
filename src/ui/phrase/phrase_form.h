#pragma once

#include <span>

#include "ui/controls/control_row.h"

namespace loquitor {

/// The controls of the phrase editor in tab order, except the sounds of the palette and the voice
/// settings, which have their own tables. The voice settings come between these two.
extern const std::span<const ControlRow> PhraseRowsBeforeVoice;
extern const std::span<const ControlRow> PhraseRowsAfterVoice;

}  // namespace loquitor
