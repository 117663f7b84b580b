// The virtual chip: the same bytes give the same events in portions of any size, and no byte is
// lost. An input is the size of the portions in one byte, then the bytes of the line.

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "sim/virtual_chip.h"

namespace {

using namespace loquitor;

void Require(bool zHolds, const char* zWhat) {
  if (!zHolds) {
    std::cerr << "does not hold: " << zWhat << '\n';
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize) {
  const std::string input(zData, zData + zSize);
  const std::size_t portion = zSize == 0 || zData[0] == 0 ? 1 : zData[0];
  std::string bytes = input.substr(std::min<std::size_t>(1, zSize));
  static const VirtualChip fresh;
  VirtualChip whole = fresh;
  VirtualChip inPortions = fresh;
  const std::vector<ChipEvent> expected = whole.Receive(bytes);
  std::vector<ChipEvent> events;
  for (std::size_t at = 0; at < bytes.size(); at += portion) {
    for (ChipEvent& event : inPortions.Receive(bytes.substr(at, portion))) {
      events.push_back(std::move(event));
    }
    Require(!inPortions.Pending() || inPortions.Pending()->bytes.size() < 32, "bounded waiting");
  }
  Require(events == expected, "same events in portions");
  Require(whole.Pending() == inPortions.Pending(), "same rest in portions");

  std::string shown;
  for (const ChipEvent& event : events) {
    Require(!inPortions.Describe(event).empty(), "every event has its line");
    shown += event.bytes;
  }
  shown += whole.Pending() ? whole.Pending()->bytes : "";
  std::erase(shown, 'X');  // an X that ends a sequence belongs to no event
  std::erase(bytes, 'X');
  Require(shown == bytes, "no byte is lost");
  return 0;
}
