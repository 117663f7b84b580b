#pragma once

#include <QString>

#include "ui/controls/twips.h"

namespace loquitor {

class Form;

/// The client area of the event configuration window.
extern const TwipSize EventClientSize;

/// Fills the event configuration window with its controls, in their tab order.
void BuildEventForm(Form& zForm);

/// The caption of event row `zRow` (0 to EventCount - 1) as it is shown.
QString EventCaption(int zRow);

}  // namespace loquitor
