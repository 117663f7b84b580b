#include "ui/phrase/sound_command.h"

#include <QStringList>
#include <limits>

#include "core/number_text.h"

namespace loquitor {
namespace {

bool HasValue(const PaletteMember& zMember) {
  return *zMember.valueBox != '\0';
}

}  // namespace

std::int16_t CodeOf(const CodeTable& zCodeTable, const PaletteMember& zMember) {
  return zCodeTable.GetCodeIndex(MnemonicOf(zMember));
}

bool IsNote(std::int16_t zCode) {
  return zCode >= CodeTable::FirstNote;
}

std::optional<std::uint8_t> ValueByte(std::string_view zBoxText) {
  const std::optional<int> number = WholeNumberAtStart(zBoxText);
  if (!number || *number < 0 || *number > std::numeric_limits<std::uint8_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::uint8_t>(*number);
}

std::string TakePrefix(bool& zSkipControlsOnce, bool zIsApplied, std::string_view zControlCodes) {
  if (zSkipControlsOnce) {
    zSkipControlsOnce = false;
    return {};
  }
  return zIsApplied ? std::string(zControlCodes) : std::string();
}

std::optional<std::string> SoundCodes(const CodeTable& zCodeTable, const PaletteMember& zMember,
                                      std::string_view zBoxText) {
  const std::int16_t code = CodeOf(zCodeTable, zMember);
  if (IsNote(code)) {
    return std::string{static_cast<char>(palette_code::Pitch),
                       static_cast<char>(zCodeTable.GetNotePitch(code))};
  }
  std::string codes(1, static_cast<char>(code));
  if (!HasValue(zMember)) {
    return codes;
  }
  const std::optional<std::uint8_t> value = ValueByte(zBoxText);
  if (!value) {
    return std::nullopt;
  }
  return codes + static_cast<char>(*value);
}

std::string InsertedText(const PaletteMember& zMember, std::string_view zBoxText) {
  std::string text = MnemonicOf(zMember);
  if (HasValue(zMember)) {
    text.append(" \\").append(zBoxText);
  }
  return text;
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
