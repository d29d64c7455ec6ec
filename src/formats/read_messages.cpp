#include "formats/read_messages.h"

#include "formats/cell_rules.h"

namespace ovelt {
namespace {

std::string FileLines(const std::string& path) { return "Input data file: " + path + "\n\n"; }

std::string WithAmbiguityNote(std::string sentence, char c) {
  if (IsAmbiguityCode(c)) sentence += std::string("\n") + kAmbiguityNote;
  return sentence;
}

std::string WithoutLeadingZeros(std::string_view digits) {
  const size_t first = digits.find_first_not_of('0');
  return first == std::string_view::npos ? "0" : std::string(digits.substr(first));
}

}  // namespace

std::string TooManySequencesSentence() {
  return "The file holds more than " + std::to_string(kMaxSequences) +
         " sequences. The maximum number of sequences is " + std::to_string(kMaxSequences) + ".";
}

std::string DeclaredSequencesSentence(std::string_view digits) {
  return "The file declares " + WithoutLeadingZeros(digits) +
         " sequences. The maximum number of sequences is " + std::to_string(kMaxSequences) + ".";
}

std::string DeclaredSitesSentence(std::string_view digits) {
  return "The file declares " + WithoutLeadingZeros(digits) +
         " sites. The maximum number of sites is " + std::to_string(kMaxSites) + ".";
}

std::string InvalidCharacterSentence(char c) {
  return WithAmbiguityNote(std::string("Invalid character detected:  '") + c + "'", c);
}

std::string PhylipInvalidCharacterSentence(char c, int sequence) {
  return WithAmbiguityNote(std::string("Invalid character '") + c + "' detected in sequence " +
                               std::to_string(sequence),
                           c);
}

std::string DataFileErrorText(const std::string& path, const std::string& sentence) {
  return "        Data File Error !\n\n" + FileLines(path) + sentence;
}

std::string PhylipErrorText(const std::string& path, const std::string& sentence,
                            bool about_layout) {
  std::string text = "     Data File Error !\n\n" + FileLines(path);
  if (about_layout && sentence != kPhylipFormatError) text += std::string(kPhylipFormatError) + "\n";
  return text + sentence;
}

std::string BadFormatText(const std::string& path) {
  return FileLines(path) + "Bad or unknown file format";
}

std::string PhylipDistancesText(const std::string& path) {
  return FileLines(path) +
         "Bad or unknown file format. Ovelt can not read PHYLIP Data Files with Genetic "
         "Distances Information.";
}

std::string FileNotOpenedText(const std::string& path) {
  return "Input data file:  " + path + " File not found or already open";
}

}  // namespace ovelt
