#include "ui/toolkit/font_warm_up.h"

#include <system_error>

#ifdef LOQUITOR_HAS_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace loquitor {

FontWarmUp::FontWarmUp() {
#ifdef LOQUITOR_HAS_FONTCONFIG
  try {
    reading_ = std::thread([] { static_cast<void>(FcInit()); });  // Qt tells of a failure later
  } catch (const std::system_error&) {
    // Without a thread Qt reads it, a little later.
  }
#endif
}

FontWarmUp::~FontWarmUp() {
  Finish();
}

void FontWarmUp::Finish() {
  if (reading_.joinable()) {
    reading_.join();
  }
}

}  // namespace loquitor
