#include "ui/controls/bar_and_box.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

TEST(BarAndBox, TakesTypedNumbersIntoTheRangeOfTheBar) {
  const Rows<const char*, int, const char*, int> rows = {
      {"300", 127, "127", 127}, {"127.4", 127, "127", 127},  {"127", 127, "127", 127},
      {"-4", 255, "0", 0},      {"-0.4", 255, "0", 0},       {"-0", 255, "-0", 0},
      {"7.5", 15, "8", 8},      {"6.5", 15, "6", 6},         {"14.6", 15, "15", 15},
      {"15.4", 15, "15", 15},   {"abc", 127, "abc", 0},      {" 1 2 ", 127, "12", 12},
      {"1E999", 9, "9", 9},     {"-1E999", 9, "0", 0},       {"12abc", 127, "12", 12},
      {"", 127, "", 0},         {"4500", 3999, "3999", 3999}};
  for (const auto& [typed, maximum, text, value] : rows) {
    QWidget window;
    ScrollBar bar(maximum, 1, 0, &window);
    TextBox box(&window);
    BarAndBox both(&bar, &box, &window);
    box.SetText(typed);
    both.TakeText();
    EXPECT_EQ(box.Text(), text) << typed;
    EXPECT_EQ(both.Value(), value) << typed;
    QSignalSpy changed(&both, &BarAndBox::Changed);
    box.SetText(std::string(typed));
    both.TakeText();
    EXPECT_TRUE(changed.isEmpty()) << typed << " again";
    EXPECT_TRUE(box.Text() == typed || box.Text() == text) << "what needs no change stays as typed";
  }
}

}  // namespace
}  // namespace loquitor::testing
