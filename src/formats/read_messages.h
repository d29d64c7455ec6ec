#pragma once
// The texts of the boxes that report a file that cannot be read. Each function returns the whole
// text of one box, lines joined by "\n".

#include <cstdint>
#include <string>
#include <string_view>

namespace ovelt {

// Sentences of the data file reports shared by the readers.
inline constexpr const char* kDotInFirstSequence =
    "The character '.' is not allowed in the first sequence";
inline constexpr const char* kMegaDistances =
    "Bad or unknown file format. Ovelt can not read MEGA Data Files with Genetic Distances "
    "Information.";
inline constexpr const char* kBlocksOfUnequalLengths =
    "Blocks of sequences (interleaved format) are of unequal lengths.";
inline constexpr const char* kIllegalSequenceName = "Illegal sequence name (interleaved format).";
inline constexpr const char* kUnequalLengths = "Sequences are of unequal lengths";

// Sentences of the PHYLIP reports.
inline constexpr const char* kPhylipInvalidSites = "Invalid number of sites";
inline constexpr const char* kPhylipFormatError = "PHYLIP file format Error !";
inline constexpr const char* kPhylipDotInFirst =
    "The dot '.' character is not allowed in the first sequence";
inline constexpr const char* kPhylipInvalidSequences = "Invalid number of sequences";

inline constexpr const char* kAmbiguityNote = "NOTE: Ovelt does not accept DNA ambiguity codes!";
inline constexpr const char* kOutOfMemoryText =
    "        Out of memory !!!\nTry to reduce the number of programs running, or try to "
    "increase the RAM or virtual memory.";

// The most sequences and sites a file may hold: the counts are 16- and 32-bit numbers.
inline constexpr int32_t kMaxSequences = 32767;
inline constexpr int64_t kMaxSites = 2147483647;

// "The file holds more than 32767 sequences. The maximum number of sequences is 32767."
[[nodiscard]] std::string TooManySequencesSentence();
// "The file declares N sequences. The maximum number of sequences is 32767.", N the digits of
// the file without their leading zeros; the same for sites.
[[nodiscard]] std::string DeclaredSequencesSentence(std::string_view digits);
[[nodiscard]] std::string DeclaredSitesSentence(std::string_view digits);

// "Invalid character detected:  'c'", with the note when `c` is an ambiguity code.
[[nodiscard]] std::string InvalidCharacterSentence(char c);
// "Invalid character 'c' detected in sequence n", with the note for an ambiguity code.
[[nodiscard]] std::string PhylipInvalidCharacterSentence(char c, int sequence);

// A report of FASTA, NBRF/PIR and MEGA: head, file lines and sentence.
[[nodiscard]] std::string DataFileErrorText(const std::string& path, const std::string& sentence);
// A report of PHYLIP; `about_layout` adds the line that heads reports about the layout.
[[nodiscard]] std::string PhylipErrorText(const std::string& path, const std::string& sentence,
                                          bool about_layout = false);
// A file no reader takes.
[[nodiscard]] std::string BadFormatText(const std::string& path);
// A PHYLIP file of genetic distances.
[[nodiscard]] std::string PhylipDistancesText(const std::string& path);
// A file that could not be opened.
[[nodiscard]] std::string FileNotOpenedText(const std::string& path);

}  // namespace ovelt
