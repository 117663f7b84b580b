#include "english/abbreviations.h"

#include <algorithm>
#include <iterator>

#include "text/letters.h"

namespace loquitor {

namespace {

using enum Abbreviation::Needs;

// The first one whose needs are met counts.
constexpr Abbreviation Abbreviations[] = {
    {"mr", Nothing, "mister"},
    {"mrs", Nothing, "missus"},
    {"ms", Nothing, "miz"},
    {"dr", Nothing, "doctor"},
    {"prof", Period, "professor"},
    {"st", PeriodAndCapital, "saint"},
    {"st", Period, "street"},
    {"jr", Nothing, "junior", true},
    {"sr", Period, "senior", true},
    {"gen", PeriodAndCapital, "general"},
    {"gov", PeriodAndCapital, "governor"},
    {"sen", PeriodAndCapital, "senator"},
    {"col", PeriodAndCapital, "colonel"},
    {"ft", PeriodAndCapital, "fort"},
    {"capt", Period, "captain"},
    {"lt", PeriodAndCapital, "lieutenant"},
    {"sgt", Period, "sergeant"},
    {"vs", Nothing, "versus"},
    {"etc", Nothing, "et cetera", true},
    {"eg", Period, "for example"},
    {"ie", Period, "that is"},
    {"wwi", Nothing, "world war one"},
    {"wwii", Nothing, "world war two"},
    {"apt", PeriodAndNumber, "apartment"},
    {"eur", Nothing, "euro"},
    {"approx", Period, "approximately"},
    {"dept", Period, "department", true},
    {"no", PeriodAndNumber, "number"},
    {"nos", PeriodAndNumber, "numbers"},
    {"nr", PeriodAndNumber, "number"},
    {"fig", PeriodAndNumber, "figure"},
    {"figs", PeriodAndNumber, "figures"},
    {"eq", PeriodAndNumber, "equation"},
    {"tab", PeriodAndNumber, "table"},
    {"ex", PeriodAndNumber, "exercise"},
    {"ver", PeriodAndNumber, "version"},
    {"rev", PeriodAndNumber, "revision"},
    {"ext", PeriodAndNumber, "extension"},
    {"ca", PeriodAndNumber, "about"},
    {"cf", Period, "compare"},
    {"viz", Nothing, "namely"},
    {"al", Period, "al", true},
    {"incl", Period, "including"},
    {"excl", Period, "excluding"},
    {"vol", PeriodAndNumber, "volume"},
    {"ch", PeriodAndNumber, "chapter"},
    {"pp", PeriodAndNumber, "pages"},
    {"p", PeriodAndNumber, "page"},
    {"sec", PeriodAndNumber, "section"},
    {"inc", Period, "incorporated", true},
    {"ltd", Period, "limited", true},
    {"corp", Period, "corporation", true},
    {"co", Period, "company", true},
    {"mt", Period, "mount"},
    {"ave", Period, "avenue", true},
    {"rd", Period, "road", true},
    {"blvd", Nothing, "boulevard", true},
    {"max", Period, "maximum"},
    {"min", Period, "minimum"},
    {"temp", Period, "temperature"},
    {"tel", Period, "telephone"},
    {"jan", Period, "january", true},
    {"feb", Nothing, "february", true},
    {"mar", PeriodAndNumber, "march", true},
    {"apr", Period, "april", true},
    {"jun", Period, "june", true},
    {"jul", Nothing, "july", true},
    {"aug", Nothing, "august", true},
    {"sep", Period, "september", true},
    {"sept", Nothing, "september", true},
    {"oct", Nothing, "october", true},
    {"nov", Nothing, "november", true},
    {"dec", Nothing, "december", true},
    {"mon", Period, "monday"},
    {"tue", Period, "tuesday"},
    {"tues", Period, "tuesday"},
    {"wed", PeriodAndCapital, "wednesday"},
    {"thu", Nothing, "thursday"},
    {"thurs", Period, "thursday"},
    {"fri", Nothing, "friday"},
    {"sat", PeriodAndCapital, "saturday"},
    {"sun", PeriodAndCapital, "sunday"},
};

bool IsMet(Abbreviation::Needs zNeeds, const AfterShortForm& zAfter) {
  switch (zNeeds) {
    case Nothing:
      return true;
    case Period:
      return zAfter.hasPeriod;
    case PeriodAndNumber:
      return zAfter.hasPeriod && zAfter.isBeforeNumber;
    case PeriodAndCapital:
      return zAfter.hasPeriod && zAfter.isBeforeCapital;
  }
  return false;
}

constexpr Unit Units[] = {
    {"%", "percent", "percent"},
    {"\xB0", "degree", "degrees"},
    {"\xB0"
     "C",
     "degree celsius", "degrees celsius"},
    {"\xB0"
     "F",
     "degree fahrenheit", "degrees fahrenheit"},
    {"V", "volt", "volts"},
    {"mV", "millivolt", "millivolts"},
    {"kV", "kilovolt", "kilovolts"},
    {"VDC", "volt D C", "volts D C"},
    {"VAC", "volt A C", "volts A C"},
    {"A", "amp", "amps"},
    {"mA", "milli amp", "milli amps"},
    {"mAh", "milli amp hour", "milli amp hours"},
    {"uA", "micro amp", "micro amps"},
    {"\xB5"
     "A",
     "micro amp", "micro amps"},
    {"W", "watt", "watts"},
    {"mW", "milliwatt", "milliwatts"},
    {"kW", "kilowatt", "kilowatts"},
    {"kWh", "kilowatt hour", "kilowatt hours"},
    {"Ah", "amp hour", "amp hours"},
    {"Wh", "watt hour", "watt hours"},
    {"Hz", "hertz", "hertz"},
    {"kHz", "kilohertz", "kilohertz"},
    {"KHz", "kilohertz", "kilohertz"},
    {"MHz", "megahertz", "megahertz"},
    {"GHz", "gigahertz", "gigahertz"},
    {"Ohm", "ohm", "ohms"},
    {"kOhm", "kilo ohm", "kilo ohms"},
    {"MOhm", "mega ohm", "mega ohms"},
    {"uF", "micro farad", "micro farads"},
    {"\xB5"
     "F",
     "micro farad", "micro farads"},
    {"nF", "nano farad", "nano farads"},
    {"pF", "pico farad", "pico farads"},
    {"m", "meter", "meters"},
    {"um", "micro meter", "micro meters", true},
    {"\xB5"
     "m",
     "micro meter", "micro meters"},
    {"nm", "nano meter", "nano meters"},
    {"mm", "millimeter", "millimeters"},
    {"cm", "centimeter", "centimeters"},
    {"km", "kilometer", "kilometers"},
    {"km/h", "kilometer per hour", "kilometers per hour"},
    {"m/s", "meter per second", "meters per second"},
    {"in", "inch", "inches", true},
    {"ft", "foot", "feet"},
    {"yd", "yard", "yards"},
    {"mi", "mile", "miles"},
    {"mph", "mile per hour", "miles per hour"},
    {"g", "gram", "grams"},
    {"mg", "milligram", "milligrams"},
    {"kg", "kilogram", "kilograms"},
    {"Kg", "kilogram", "kilograms"},
    {"N", "newton", "newtons", true},
    {"Nm", "newton meter", "newton meters"},
    {"Pa", "pascal", "pascals"},
    {"hPa", "hectopascal", "hectopascals"},
    {"kPa", "kilo pascal", "kilo pascals"},
    {"psi", "P S I", "P S I"},
    {"J", "joule", "joules", true},
    {"lm", "lumen", "lumens"},
    {"hp", "horsepower", "horsepower"},
    {"deg", "degree", "degrees"},
    {"degs", "degree", "degrees"},
    {"oz", "ounce", "ounces"},
    {"lb", "pound", "pounds"},
    {"lbs", "pound", "pounds"},
    {"l", "liter", "liters"},
    {"L", "liter", "liters"},
    {"ml", "milliliter", "milliliters"},
    {"mL", "milliliter", "milliliters"},
    {"gal", "gallon", "gallons"},
    {"tbsp", "tablespoon", "tablespoons"},
    {"tsp", "teaspoon", "teaspoons"},
    {"s", "second", "seconds"},
    {"sec", "second", "seconds"},
    {"secs", "second", "seconds"},
    {"ms", "millisecond", "milliseconds"},
    {"us", "microsecond", "microseconds", true},
    {"\xB5"
     "s",
     "microsecond", "microseconds"},
    {"ns", "nanosecond", "nanoseconds"},
    {"min", "minute", "minutes"},
    {"mins", "minute", "minutes"},
    {"h", "hour", "hours"},
    {"hr", "hour", "hours"},
    {"hrs", "hour", "hours"},
    {"kB", "kilobyte", "kilobytes"},
    {"KB", "kilobyte", "kilobytes"},
    {"MB", "megabyte", "megabytes"},
    {"GB", "gigabyte", "gigabytes"},
    {"TB", "terabyte", "terabytes"},
    {"KiB", "kibibyte", "kibibytes"},
    {"MiB", "mebibyte", "mebibytes"},
    {"GiB", "gibibyte", "gibibytes"},
    {"MB/s", "megabyte per second", "megabytes per second"},
    {"bps", "bit per second", "bits per second"},
    {"kbps", "kilobit per second", "kilobits per second"},
    {"Mbps", "mega bit per second", "mega bits per second"},
    {"Gbps", "giga bit per second", "giga bits per second"},
    {"kbit/s", "kilobit per second", "kilobits per second"},
    {"Mbit/s", "mega bit per second", "mega bits per second"},
    {"kbit", "kilobit", "kilobits"},
    {"Mbit", "mega bit", "mega bits"},
    {"px", "pixel", "pixels"},
    {"pcs", "piece", "pieces"},
    {"ppm", "part per million", "parts per million"},
    {"fps", "frame per second", "frames per second"},
    {"bpm", "beat per minute", "beats per minute"},
    {"dpi", "D P I", "D P I"},
    {"dBm", "D B M", "D B M"},
    {"dB", "decibel", "decibels"},
    {"rpm", "revolution per minute", "revolutions per minute"},
    {"RPM", "revolution per minute", "revolutions per minute"},
    {"k", "thousand", "thousand", true},
    {"K", "thousand", "thousand", true},
    {"M", "million", "million", true},
    {"x", "times", "times", true},
    {"USD", "dollar", "dollars"},
    {"EUR", "euro", "euros"},
    {"GBP", "pound", "pounds"},
};

/// Words in capitals that are spelled although they have a vowel letter.
constexpr std::string_view SpelledCapitals[] = {
    "AA",   "AAA", "ABC", "ABS",  "AC",   "AD",  "ADC", "ADHD", "AI",  "AKA",  "AM",   "AMD", "AOL",
    "API",  "ATM", "ATX", "AUV",  "AVR",  "AWG", "CAE", "CEO",  "CFO", "CIA",  "CPU",  "CTO", "DAC",
    "DIY",  "DNA", "DOA", "ECG",  "EEG",  "EGR", "EKG", "EMC",  "EMF", "EMI",  "EOL",  "EPA", "ESC",
    "ESD",  "ESP", "EST", "ETA",  "EU",   "FAQ", "FBI", "FPGA", "FYI", "GPA",  "GPIO", "GPU", "GUI",
    "HDMI", "HIV", "IBM", "IC",   "ICSP", "ICU", "ID",  "IDE",  "IEC", "IEEE", "IMHO", "IMU", "IO",
    "IOT",  "IOU", "IP",  "IPO",  "IQ",   "IR",  "IRC", "IRS",  "ISP", "ISS",  "IT",   "ITU", "LED",
    "LTE",  "MBA", "MIT", "NBA",  "NE",   "NEC", "NGO", "NSA",  "NYC", "OCR",  "ODM",  "OEM", "OMG",
    "OS",   "OTA", "PA",  "PCIE", "PDA",  "PIR", "POE", "PSU",  "QA",  "RIP",  "RNA",  "RPI", "SE",
    "SOS",  "SPI", "SUV", "UAE",  "UART", "UAV", "UDP", "UEFI", "UFO", "UHD",  "UHF",  "UI",  "UK",
    "UL",   "UN",  "URL", "US",   "USA",  "USB", "USD", "USPS", "UTC", "UTF",  "UUID", "UV",  "UX",
    "VFO",  "VGA", "VIN", "VIP",  "VOIP", "YMCA"};

/// Words without a vowel letter that are not spelled.
constexpr std::string_view VowellessWords[] = {"brr",  "grr", "hm", "hmm", "mm",  "nth",
                                               "psst", "pst", "sh", "shh", "tsk", "zzz"};

/// Words that begin sentences more often than names, in lower case.
constexpr std::string_view SentenceOpeners[] = {
    "a",     "after",   "all",    "also",    "an",      "and",    "another", "any",    "are",
    "as",    "at",      "be",     "because", "before",  "both",   "but",     "by",     "can",
    "did",   "do",      "does",   "don",     "each",    "either", "even",    "every",  "for",
    "from",  "go",      "had",    "has",     "have",    "he",     "her",     "here",   "his",
    "how",   "however", "i",      "if",      "in",      "is",     "isn",     "it",     "its",
    "just",  "last",    "let",    "many",    "maybe",   "more",   "most",    "my",     "never",
    "next",  "no",      "nobody", "not",     "nothing", "now",    "of",      "on",     "once",
    "one",   "only",    "or",     "our",     "perhaps", "please", "she",     "should", "since",
    "so",    "some",    "soon",   "still",   "that",    "the",    "their",   "then",   "there",
    "these", "they",    "this",   "those",   "to",      "today",  "too",     "turn",   "two",
    "use",   "was",     "we",     "were",    "what",    "when",   "where",   "which",  "while",
    "who",   "why",     "will",   "with",    "would",   "yes",    "yet",     "you",    "your"};

template <typename Table>
bool Holds(const Table& zTable, std::string_view zWord) {
  return std::find(std::begin(zTable), std::end(zTable), zWord) != std::end(zTable);
}

}  // namespace

const Abbreviation* FindAbbreviation(std::string_view zShortForm, const AfterShortForm& zAfter) {
  constexpr std::size_t Longest = 6;
  if (zShortForm.size() > Longest) {
    return nullptr;
  }
  const std::string shortForm = ToLower(zShortForm);
  const auto* const found = std::find_if(
      std::begin(Abbreviations), std::end(Abbreviations),
      [&](const Abbreviation& a) { return a.shortForm == shortForm && IsMet(a.needs, zAfter); });
  return found == std::end(Abbreviations) ? nullptr : found;
}

const Unit* FindUnit(std::string_view zSymbol) {
  const auto* const found =
      std::find_if(std::begin(Units), std::end(Units),
                   [zSymbol](const Unit& zUnit) { return zUnit.symbol == zSymbol; });
  return found == std::end(Units) ? nullptr : found;
}

bool IsSpelledOut(std::string_view zWord) {
  const bool isInCapitals = std::all_of(zWord.begin(), zWord.end(), IsCapital);
  if (isInCapitals && Holds(SpelledCapitals, zWord)) {
    return true;
  }
  const bool hasVowel = zWord.find_first_of("aeiouyAEIOUY") != std::string_view::npos;
  return !hasVowel && !Holds(VowellessWords, ToLower(zWord));
}

bool OftenBeginsSentence(std::string_view zWord) {
  return Holds(SentenceOpeners, ToLower(zWord));
}

}  // namespace loquitor
