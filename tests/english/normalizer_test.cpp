// English text as it is spoken, before phones are looked up.
#include "english/normalizer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "english/number_words.h"
#include "tests/english/say_data_words_for_tests.h"

namespace loquitor {
namespace {

using testing::WordsWithEntries;

/// Pieces in one line: spelled letters as capitals, entries in angle brackets, pauses as , and .
std::string Spoken(std::string_view zText, const SayDataWords& zWords) {
  std::string line;
  for (const SpokenPiece& piece : NormalizeEnglish(zText, zWords).pieces) {
    std::string text = piece.text;
    switch (piece.kind) {
      case SpokenPiece::Kind::Clause:
        text = ",";
        break;
      case SpokenPiece::Kind::Sentence:
        text = ".";
        break;
      case SpokenPiece::Kind::Entry:
        text = "<" + text + ">";
        break;
      case SpokenPiece::Kind::Letter:
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
        break;
      case SpokenPiece::Kind::Word:
      case SpokenPiece::Kind::Mnemonic:
        break;
    }
    line += (line.empty() ? "" : " ") + text;
  }
  return line;
}

struct SpokenCase {
  const char* text;
  const char* spoken;
};

void PrintTo(const SpokenCase& zCase, std::ostream* zOut) {
  *zOut << zCase.text;
}

class Normalizing : public ::testing::TestWithParam<SpokenCase> {};

TEST_P(Normalizing, SaysTheText) {
  EXPECT_EQ(Spoken(GetParam().text, WordsWithEntries({"robot", "five", "r2d2"})),
            GetParam().spoken);
}

constexpr SpokenCase Numbers[] = {
    {"0", "zero"},
    {"13 85 100 105", "thirteen eighty <five> one hundred one hundred <five>"},
    {"1,234,567", "one million two hundred thirty four thousand <five> hundred sixty seven"},
    {"1000000", "one million"},
    {"999999999999999",
     "nine hundred ninety nine trillion nine hundred ninety nine billion nine hundred ninety nine "
     "million nine hundred ninety nine thousand nine hundred ninety nine"},
    {"1000000000000000",
     "one zero zero zero zero zero zero zero zero zero zero zero zero zero zero zero"},
    {"007", "zero zero seven"},
    {"3.14", "three point one four"},
    {".5", "zero point <five>"},
    {"-3 (-4)", "minus three , minus four ,"},
    {"1984 2005 1905 1900 2024 3000 1,984",
     "nineteen eighty four two thousand <five> nineteen oh <five> nineteen hundred twenty twenty "
     "four three thousand one thousand nine hundred eighty four"},
    {"1st 2nd 3rd 4TH 12th 21st 30th 100th",
     "first second third fourth twelfth twenty first "
     "thirtieth one hundredth"},
    {"1990s 80's two 5's 747's 6's",
     "nineteen nineties eighties two fives seven hundred forty sevens sixes"},
    {"10-20", "ten to twenty"},
    {"1990-1995", "nineteen ninety to nineteen ninety <five>"},
    {"555-1234", "<five> <five> <five> , one two three four"},
    {"1/2 3/4 1 1/2 7/8 3/50",
     "one half three quarters one and one half seven eighths three slash fifty"},
    {"2½", "two and one half"},
    {"192.168.0.1", "one hundred ninety two point one hundred sixty eight point zero point one"},
    {"12/31/2024", "twelve thirty one twenty twenty four"},
    {"2024-01-05", "january fifth twenty twenty four"},
    {"31.12.2024 2024/01/05 1.2.3",
     "thirty one twelve twenty twenty four january fifth twenty twenty four one point two point "
     "three"},
    {"3/16 1/1000 5/4 24/7",
     "three sixteenths one thousandth <five> quarters twenty four slash seven"},
    {"+49 30 123456 +1 (555) 123-4567 +5 +10 20",
     "plus four nine , three zero , one two three four <five> six plus one , <five> <five> <five> "
     ", one two three , four <five> six seven plus <five> plus ten twenty"},
    {"(555) 123-4567 or 555.123.4567",
     "<five> <five> <five> , one two three , four <five> six seven or <five> <five> <five> , one "
     "two three , four <five> six seven"},
    {"0171 2345, 030/123 or 007 1",
     "zero one seven one , two three four <five> , zero three zero , one two three or zero zero "
     "seven one"},
    {"2024-13-05", "two zero two four , one three , zero <five>"},
};
INSTANTIATE_TEST_SUITE_P(Numbers, Normalizing, ::testing::ValuesIn(Numbers));

constexpr SpokenCase Measures[] = {
    {"$5 $1 $5.99 $1.01 $0.50 $2.00",
     "<five> dollars one dollar <five> dollars and ninety nine cents one dollar and one cent fifty "
     "cents two dollars"},
    {"£1.5 million, €3k, 5 € 2.50€ ¥100 50¢",
     "one point <five> million pounds , three thousand euros , <five> euros two euros and fifty "
     "cents one hundred yen fifty cents"},
    {"5,99 € €1.299,00 € 5",
     "<five> euros and ninety nine cents one thousand two hundred ninety nine euros <five> euros"},
    {"1.299 €, 1.000.000 € $1.299 1.5 € .50 €",
     "one thousand two hundred ninety nine euros , one million euros one point two nine nine "
     "dollars one point <five> euros fifty cents"},
    {"1,5 kg, 1,5", "one point <five> kilograms , one , <five>"},
    {"1 000 000 1'000 12 345", "one million one thousand twelve three hundred forty <five>"},
    {"$2bn $3m 5 EUR", "two billion dollars three million dollars <five> euros"},
    {"$5-$10 3V-5V 9:00-17:00 9am-5pm",
     "<five> dollars to ten dollars three volts to <five> volts nine o'clock to seventeen o'clock "
     "nine A M to <five> P M"},
    {"10% 7.5 %", "ten percent seven point <five> percent"},
    {"20°C 1 °F 90°", "twenty degrees celsius one degree fahrenheit ninety degrees"},
    {"5V, 20 mA, 10kΩ, 1 km, 100 µs",
     "<five> volts , twenty milli amps , ten kilo ohms , one kilometer "
     ", one hundred microseconds"},
    {"3x 10k 5 in a row", "three times ten thousand <five> in a row"},
    {"3:30 3:05 3:00 15:30:20",
     "three thirty three oh <five> three o'clock fifteen thirty and "
     "twenty seconds"},
    {"3:30 pm, 9 a.m. today", "three thirty P M , nine A M today"},
    {"At 9 a.m. He left at 10:00 PM.", "at nine A M . he left at ten P M ."},
    {"8.30 pm 8.30", "eight thirty P M eight point three zero"},
    {"2 A 30 s 2 Mbit/s 12VDC",
     "two amps thirty seconds two mega bits per second twelve volts D C"},
    {"3 in. wide, in 3 in. It", "three inches wide , in three in . it"},
    {"5'10\" 3.5\" \"I am 5\"", "<five> feet ten inches three point <five> inches i am <five>"},
    {"3h 20m 3h20 1h 5 m",
     "three hours twenty minutes three hours twenty minutes one hour <five> meters"},
    {"16:9", "sixteen to nine"},
};
INSTANTIATE_TEST_SUITE_P(Measures, Normalizing, ::testing::ValuesIn(Measures));

constexpr SpokenCase Words[] = {
    {"Dr. Smith, Mr Lee and St. Peter in Main St. now",
     "doctor smith , mister lee and saint peter in "
     "main street now"},
    {"No. 5 No. Etc. Then", "number <five> no . et cetera . then"},
    {"J. Smith, J. R. R. Smith, (J.K. Lee), Mr. X. U.S. Army",
     "J smith , J R R smith , J K lee , mister X U S army"},
    {"Plan B. Then A. It J. A. Smith E. coli", "plan B . then A . it J A smith E coli"},
    {"A Ph.D. in M.Sc. Now a.b.", "a P H D in M S C . now A B ."},
    {"robots.co.uk /etc/x etc.", "robots dot co dot uk slash etc slash X et cetera ."},
    {"A $5 kit", "a <five> dollars kit"},
    {"Mon., Wed., 4 Jul WWII Dec. Then ¿Que?",
     "monday , wednesday , four july world war two december . then que ."},
    {"e.g. this, i.e. that", "for example this , that is that"},
    {"U.S.A. is. U.S. Then", "U S A is . U S . then"},
    {"USB TV LEDs PC's NASA pwm", "U S B T V L E Ds P Cs nasa P W M"},
    {"x86-64 H.264 IPv4", "X eighty six sixty four H dot two six four ipv four"},
    {"NE555 RS-232 74HC595 ESP8266 CO2 AT&T T-800 640x480",
     "N E <five> <five> <five> R S two three two seventy four H C <five> nine <five> E S P eight "
     "two six six C O two A T and T T eight hundred six hundred forty by four hundred eighty"},
    {"IT'S IT's HE'S", "it's I Ts he's"},
    {"w/o a w/ b w/c", "without a with B W slash C"},
    {"micro-\ncontroller hyphen- \r\nated A-\nb c -\nd e-\nF",
     "microcontroller hyphenated A B C , D E F"},
    {"World War II, XXI, MMXXIV, IIX X XXX DIV MIX",
     "world war two , twenty one , twenty twenty four , iix X X X X div mix"},
    {"we'll isn't Jack's dogs' 'quoted' rock'n'roll", "we'll isn't jack's dogs quoted rock'n'roll"},
    {"robot Robot's ROBOT", "<robot> robot's <ROBOT>"},
    {"R2D2 b2b mp3", "<R2D2> B two B M P three"},
    {"a I A b vitamin A", "a i a B vitamin A"},
    {"well-known robot-arm", "well known <robot> arm"},
    {"café naïve Łódź straße e\xCC\x81t\xCC\x81 ﬁx", "cafe naive lodz strasse et fix"},
    {"caf\xE9 \x93quote\x94", "cafe quote"},
    {"WiFi YouTube McDonald iPhone", "wi fi you tube mcdonald I phone"},
    {"a != b == c <= -5 -> x && y", "a is not B equals C at most minus <five> arrow X and Y"},
    {"2 * 3, 6 / 2, 5 - 3 = 2, 5-3=2, 5 - 3 in",
     "two times three , six divided by two , <five> minus three equals two , <five> minus three "
     "equals two , <five> , three in"},
    {"2^10 10^-6 1.5e-3 x=-1 ~5 ^",
     "two to the power of ten ten to the power of minus six one point <five> E minus three X "
     "equals minus one about <five> caret"},
    {"2x + 1, 2x² = x^2 + x^3 + x^23, 12/4=3",
     "two X plus one , two X squared equals X squared plus X cubed plus X to the power of twenty "
     "three , twelve divided by four equals three"},
    {"3 x 4 12\" x 18\" 1/4\"", "three by four twelve inches by eighteen inches one quarter inch"},
    {"3 x 4 x 2 = 24", "three times four times two equals twenty four"},
    {"10x15 M3x10 0x1F 4x4 x2", "ten by fifteen M three by ten zero X one F four by four X two"},
    {"**bold** *it.* a * b 5* p*q", "bold it . a star B <five> star P star Q"},
    {"C# G# H# # ", "C sharp G sharp H number number"},
    {".bashrc ../x beta.2 1:23.4", "dot bashrc . slash X beta dot two one twenty three point four"},
    {"H₂O ⅔ √2 →", "H two O two thirds square root of two arrow"},
    {"me@x.org a & b + c", "me at X dot org a and B plus C"},
    {"\\PITCH \\100 robot \\iy\\eh", "\\PITCH \\100 <robot> \\iy\\eh"},
};
INSTANTIATE_TEST_SUITE_P(Words, Normalizing, ::testing::ValuesIn(Words));

constexpr SpokenCase Pauses[] = {
    {"one, two; three: four (five) six", "one , two , three , four , <five> , six"},
    {"One. Two! Three? Four...", "one . two . three . four ."},
    {"one — two – three -- four", "one , two , three , four"},
    {"one,\ntwo\nthree\r\nfour", "one , two three four"},
    {"?!... one ...!?", "one ."},
    {"one,.two", "one . two"},
    {"===== one #####", "one ."},
    {"# One", "one"},
    {"# of robots", "number of robots"},
    {"* one\n * two\n- three *\n‣ four", "one , two , three star , four"},
};
INSTANTIATE_TEST_SUITE_P(Pauses, Normalizing, ::testing::ValuesIn(Pauses));

TEST(Normalizing, LeavesTheEntryOfAnXAsItIs) {
  EXPECT_EQ(Spoken("10x15, 2 x 3", WordsWithEntries({"x"})), "ten <x> fifteen , two <x> three");
}

TEST(Normalizing, TellsANumberedShortFormFromTheWord) {
  EXPECT_EQ(Spoken("No. 5 no. Five. Sat. 5", WordsWithEntries({"no", "sat"})),
            "number five <no> . five . <Sat> . five");
}

TEST(Normalizing, TellsWhatItCannotRead) {
  const SpokenText spoken =
      NormalizeEnglish("one привет two😀🎉 \\XYZZY \a three \\", WordsWithEntries({}));
  EXPECT_THAT(spoken.unread,
              ::testing::UnorderedElementsAre("привет", "😀🎉", "U+0007", "\\XYZZY", "\\"));
  EXPECT_EQ(spoken.pieces.size(), 3U);
}

TEST(Normalizing, CutsWhatNoWordIs) {
  const SpokenText spoken = NormalizeEnglish(std::string(150, 'o'), WordsWithEntries({}));
  ASSERT_EQ(spoken.pieces.size(), 3U);
  EXPECT_EQ(spoken.pieces[0].text, std::string(60, 'o'));
  EXPECT_EQ(spoken.pieces[2].text, std::string(30, 'o'));
}

}  // namespace
}  // namespace loquitor
