#pragma once

#include "ui/controls/twips.h"

namespace loquitor {

/// The kinds of control that a form row can ask for, and the class that each becomes.
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

/// What a scroll bar runs over: from 0 to `maximum`, `page` at a time, and where it starts.
struct BarRange {
  int maximum = 0;
  int page = 1;
  int value = 0;
};

/// One control of a form. Texts are UTF-8 literals of the program's own. A table of rows reads best
/// when it is made with the functions below.
struct ControlRow {
  ControlKind kind;
  const char* name;     ///< becomes the objectName, for example "bntSayIt"
  const char* parent;   ///< name of the frame that holds it; "" for the window itself
  const char* caption;  ///< "&&" shows as one "&"
  TwipRect place;
  const char* tooltip = "";
  const char* accessibleName = "";  ///< where empty, the caption
  BarRange bar = {};
  int index = NoIndex;  ///< in an indexed group, whose objectName is Indexed(name, index)

  static constexpr int NoIndex = -1;
};

/// A control with nothing but its caption.
constexpr ControlRow PlainRow(ControlKind zKind, const char* zName, const char* zParent,
                              const char* zCaption, TwipRect zPlace,
                              int zIndex = ControlRow::NoIndex) {
  return {zKind, zName, zParent, zCaption, zPlace, "", "", {}, zIndex};
}

/// A button. `zAccessibleName` is for captions that say too little when they are read out.
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
