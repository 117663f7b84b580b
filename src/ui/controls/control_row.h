#pragma once

#include "ui/controls/twips.h"

namespace loquitor {

/// The kinds of control in a form, and the class of each.
enum class ControlKind {
  Frame,           ///< Frame
  Button,          ///< PushButton, never the default button; the caption may take two lines
  Label,           ///< QLabel, left-aligned
  RightLabel,      ///< QLabel, right-aligned
  CentredLabel,    ///< QLabel, centred
  ClickLabel,      ///< ClickLabel
  TextBox,         ///< TextBox; the caption is its starting text
  TextArea,        ///< TextArea; the caption is its starting text
  CheckBox,        ///< CheckBox, not ticked
  OptionButton,    ///< OptionButton, not chosen
  ScrollBar,       ///< ScrollBar; uses `bar`
  HorizontalLine,  ///< a thin line
  VerticalLine,
};

/// The range of a scroll bar.
struct BarRange {
  int maximum = 0;  ///< the minimum is 0
  int page = 1;     ///< the page step
  int value = 0;    ///< at the start
};

/// One control of a form. Texts are UTF-8; Form::Add copies them. A table of rows reads best when
/// it is made with the functions below.
struct ControlRow {
  ControlKind kind;
  const char* name;     ///< becomes the objectName, for example "bntSayIt"
  const char* parent;   ///< objectName of the frame that holds it; "" for the window itself
  const char* caption;  ///< "&&" shows as one "&"
  TwipRect place;
  const char* tooltip = "";
  const char* accessibleName = "";  ///< if empty, the caption; a box then has none
  BarRange bar = {};
  int index = NoIndex;  ///< in an indexed group, whose objectName is Indexed(name, index)

  static constexpr int NoIndex = -1;
};

/// A control with a caption only.
constexpr ControlRow PlainRow(ControlKind zKind, const char* zName, const char* zParent,
                              const char* zCaption, TwipRect zPlace,
                              int zIndex = ControlRow::NoIndex) {
  return {zKind, zName, zParent, zCaption, zPlace, "", "", {}, zIndex};
}

/// A button. `zAccessibleName` is for a caption that says too little when it is read out.
constexpr ControlRow ButtonRow(const char* zName, const char* zParent, const char* zCaption,
                               TwipRect zPlace, const char* zTooltip = "",
                               const char* zAccessibleName = "") {
  return {ControlKind::Button, zName, zParent, zCaption, zPlace, zTooltip, zAccessibleName, {},
          ControlRow::NoIndex};
}

/// A one-line text box that starts with `zText`.
constexpr ControlRow BoxRow(const char* zName, const char* zParent, const char* zText,
                            TwipRect zPlace, const char* zAccessibleName,
                            int zIndex = ControlRow::NoIndex) {
  return {ControlKind::TextBox, zName, zParent, zText, zPlace, "", zAccessibleName, {}, zIndex};
}

/// A scroll bar.
constexpr ControlRow BarRow(const char* zName, const char* zParent, TwipRect zPlace,
                            BarRange zRange, const char* zAccessibleName,
                            int zIndex = ControlRow::NoIndex) {
  return {ControlKind::ScrollBar, zName, zParent, "", zPlace, "", zAccessibleName, zRange, zIndex};
}

}  // namespace loquitor
