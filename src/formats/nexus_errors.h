#pragma once
// The faults of a NEXUS file, each with its code and the sentence of its report. A fault is
// thrown as NexusFault inside the reader and leaves it as a ReadError carrying the whole box.

#include <stdexcept>
#include <string>

namespace ovelt {

enum NexusErrorCode : int {
  kNexusReadError = 0,
  kNexusNoToken = 1,
  kNexusNtax = 2,
  kNexusNchar = 3,
  kNexusMatchInFirst = 4,
  kNexusCodonsBlock = 5,
  kNexusCharLabels = 6,
  kNexusProtein = 9,
  kNexusFormat = 19,
  kNexusSetsBlock = 31,
  kNexusTaxSetNumber = 32,
  kNexusVector = 33,
  kNexusCharSetNumber = 34,
  kNexusInvalidCell = 64,
  kNexusMissingCell = 65,
  kNexusDataBlock = 71,
  kNexusTaxaBlock = 72,
  kNexusCharactersBlock = 73,
  kNexusCapacity = 98,       // more sequences or sites than the program holds
  kNexusErroneousFile = 99,  // any other fault: no matrix at all, for one
};

class NexusFault : public std::runtime_error {
 public:
  // `number`: the site or sequence number that codes 4, 64 and 65 report; `ch`: the
  // character of code 64.
  explicit NexusFault(int code, long number = 0, char ch = '\0');
  // A fault whose sentence is given whole (kNexusCapacity).
  NexusFault(int code, const std::string& sentence);
  [[nodiscard]] int code() const { return code_; }
  [[nodiscard]] long number() const { return number_; }
  [[nodiscard]] char character() const { return ch_; }

 private:
  int code_;
  long number_;
  char ch_;
};

// The sentence of a code: "Error Reading the NTAX command", "Invalid character detected in
// sequence: 3\nCharacter: X", ...
[[nodiscard]] std::string NexusErrorSentence(int code, long number = 0, char ch = '\0');

// The warnings that do not stop a read.
inline constexpr const char* kNexusLabelsTooBig =
    "Information in CHARSTATELABELS or CHARLABELS or STATELABELS commands is too big. Be "
    "careful!!! This information will be lost if you try to save the present data file as a "
    "NEXUS file.";
inline constexpr const char* kNexusBadGeneticCode =
    "Erroneous Genetic Code name. Ovelt will assigne the nuclear Universal.";
inline constexpr const char* kNexusTableCodeDiffers =
    "The Genetic Code defined does not agree with the Codon Preference Table!";
inline constexpr const char* kNexusBadGenome =
    ": erroneous genome type assignation. Ovelt will assume that the genome is diploid.";
inline constexpr const char* kNexusBadLocation =
    ": erroneous chromosomal location. Ovelt will assume that the DNA region is located in an "
    "autosome.";

}  // namespace ovelt
