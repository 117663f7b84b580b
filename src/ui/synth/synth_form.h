#pragma once

#include "ui/controls/twips.h"

namespace loquitor {

class Form;

/// The client area of the synth control window.
inline constexpr TwipSize SynthClientSize{9375, 7860};

/// Fills the synth control window with its controls, in their tab order.
void BuildSynthForm(Form& zForm);

}  // namespace loquitor
