#include "formats/nexus_errors.h"

namespace ovelt {

NexusFault::NexusFault(int code, long number, char ch)
    : std::runtime_error(NexusErrorSentence(code, number, ch)),
      code_(code),
      number_(number),
      ch_(ch) {}

NexusFault::NexusFault(int code, const std::string& sentence)
    : std::runtime_error(sentence), code_(code), number_(0), ch_('\0') {}

std::string NexusErrorSentence(int code, long number, char ch) {
  switch (code) {
    case kNexusReadError:
      return "Error Reading Nexus File";
    case kNexusNoToken:
      return "Error Reading the #NEXUS token";
    case kNexusNtax:
      return "Error Reading the NTAX command";
    case kNexusNchar:
      return "Error Reading the NCHAR command";
    case kNexusMatchInFirst:
      return "Invalid character detected at position: " + std::to_string(number);
    case kNexusCodonsBlock:
      return "Error Reading the CODONS block";
    case kNexusCharLabels:
      return "Error Reading the CHARLABELS command";
    case kNexusProtein:
      return "Ovelt can not read NEXUS files with PROTEIN sequence data";
    case kNexusFormat:
      return "Error Reading the FORMAT command";
    case kNexusSetsBlock:
      return "Error Reading the SETS block";
    case kNexusTaxSetNumber:
      return "Error in the sequence number in TAXSET command of SETS block";
    case kNexusVector:
      return "Ovelt does not accept the VECTOR format in the TAXSET or CHARSET command of SETS "
             "block";
    case kNexusCharSetNumber:
      return "Error in the position number in CHARSET command of SETS block";
    case kNexusInvalidCell:
      return "Invalid character detected in sequence: " + std::to_string(number) +
             "\nCharacter: " + std::string(1, ch);
    case kNexusMissingCell:
      return "Missing character in sequence: " + std::to_string(number);
    case kNexusDataBlock:
      return "Error Reading the DATA block";
    case kNexusTaxaBlock:
      return "Error Reading the TAXA block";
    case kNexusCharactersBlock:
      return "Error Reading the CHARACTERS block";
    default:
      return "Invalid or Erroneous Nexus File";
  }
}

}  // namespace ovelt
