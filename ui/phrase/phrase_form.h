#pragma once

#include <span>

#include "ui/toolkit/form.h"

namespace loquitor {

/// The controls of the phrase editor but for the palette members and the voice settings, which have
/// tables of their own. In tab order: the voice settings come between the two.
extern const std::span<const ControlRow> PhraseRowsBeforeVoice;
extern const std::span<const ControlRow> PhraseRowsAfterVoice;

}  // namespace loquitor
