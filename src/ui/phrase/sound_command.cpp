#include "ui/phrase/sound_command.h"

#include <QStringList>
#include <limits>

#include "core/code_table.h"
#include "text/number_text.h"
#include "ui/phrase/palette_table.h"

namespace loquitor {

bool IsNote(std::int16_t zCode) {
  return zCode >= CodeTable::CodeCount;
}

std::optional<std::uint8_t> ValueByte(std::string_view zBoxText) {
  const std::optional<int> number = WholeNumberAtStart(zBoxText);
  if (!number || *number < 0 || *number > std::numeric_limits<std::uint8_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::uint8_t>(*number);
}

std::string SoundCodes(std::int16_t zCode, std::optional<std::uint8_t> zValue) {
  std::string codes(1, static_cast<char>(zCode));
  if (zValue) {
    codes += static_cast<char>(*zValue);
  }
  return codes;
}

QString WaitNotice() {
  return QStringList{
      "This control code will cause set the Orvatone to stop until restarted.",
      "To restart the Orvatone you must do one of the following;",
      "",
      " 1. Activate an event that has been tied to the Restart function.",
      " 2. Send an SCP Restart command.",
      " 3. Reset the Orvatone with the Reset line. ",
      " 4. Reset the Orvatone with the SCP Reset command.",
      "       Note that the \"Shut Up\" Button in the phrase editor",
      "       sends the SCP Reset command.",
      "",
      "-OR-",
      "",
      " Press the Cancel button to not send this command to the Orvatone.",
  }
      .join("\r\n");
}

QString ValueNotice(const PaletteMember& zMember) {
  return QString(
             "The value of %1 must be a number from 0 to 255. Nothing was sent.\r\n"
             "Correct the box beside %1 and try again.")
      .arg(QString::fromLatin1(zMember.caption.CString()));
}

}  // namespace loquitor
