#include "english/phone_source.h"

namespace loquitor {

std::unique_ptr<PhoneSource> CreatePhoneSource() {
  return nullptr;
}

}  // namespace loquitor
