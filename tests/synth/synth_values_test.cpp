#include "ui/synth/synth_values.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

TEST(SynthValues, HarmoniseFindsTheNearestMultipleThatFits) {
  const double infinity = std::numeric_limits<double>::infinity();
  const Rows<int, double, int> rows = {{54, 110, 0},       {55, 110, 110},    {3999, 110, 3960},
                                       {0, 110, 0},        {3999, 1, 3999},   {7, 2.5, 8},
                                       {6, 2.5, 5},        {9, 2.5, 10},      {3600, 1000, 3000},
                                       {2500, 4000, 0},    {1999, 3999, 0},   {2000, 3999, 3999},
                                       {3999, 3999.5, 0},  {3999, 0.3, 3999}, {440, 1e-300, 440},
                                       {440, 5e-324, 440}, {3999, 1e300, 0},  {3999, infinity, 0}};
  for (const auto& [frequency, base, expected] : rows) {
    EXPECT_EQ(HarmonisedFrequency(frequency, base), expected) << frequency << " by " << base;
  }
}

}  // namespace
}  // namespace loquitor::testing
