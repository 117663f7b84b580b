#pragma once

#include <QString>

#include "ui/chip/event_configuration.h"
#include "ui/controls/form.h"

namespace loquitor {

/// The client area of the event configuration window.
extern const TwipSize EventClientSize;

/// Fills the event configuration window with its controls, in their tab order.
void BuildEventForm(Form& zForm);

/// The caption of event row `zRow` (0 to EventCount - 1) as it is shown.
QString EventCaption(int zRow);

}  // namespace loquitor
