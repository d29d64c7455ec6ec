#pragma once
// Form2, "Nexus File Format. Options": how the NEXUS writer lays out the file of the open data
// (version, line ends, symbols, interleaving). The dialog and the command line both walk the
// one declaration in `Visit`; OK validates and then writes the fields into the format
// attributes of the open file.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "core/active_data.h"
#include "core/command_options.h"

namespace ovelt {

inline constexpr const char* kNexusOptionsTitle = "Nexus File Format. Options";
inline constexpr const char* kBlankSymbolText = "Missing data";
inline constexpr const char* kBlankSymbolTitle = "Invalid Selection ";
inline constexpr const char* kBlockTooShort = "The minimum number of nucleotides per block is 1";

struct NexusSaveOptions {
  int16_t NexusVersion = 2;   // 1 "NEXUS old version", 2 "NEXUS v. 1"
  int16_t LineDelimiter = 1;  // 1 CR + LF, 2 CR, 3 LF
  bool MatchSymbolOn = true;
  std::string MatchSymbol = ".";
  std::string MissingSymbol = "?";
  std::string GapSymbol = "-";
  bool Interleaved = true;
  int32_t BlockLength = 60;

  template <class V>
  void Visit(V& v) {
    v.Choice(NexusVersion, {"nexus-version", "Nexus File Format", "NEXUS version"},
             {"NEXUS old version", "NEXUS v. 1"}, 1);
    v.Choice(LineDelimiter, {"line-delimiter", "Line Delimiter", "Line ends of the NEXUS file"},
             {"CR + LF  ( PC )", "CR  ( MAC )", "LF  ( UNIX )"}, 1);
    v.Flag(MatchSymbolOn, {"use-matching-symbol", "Use Matching Symbol:",
                           "Write a cell equal to the first sequence's as the matching symbol "
                           "(=false to write every cell)"});
    v.Text(MatchSymbol, {"matching-symbol", "Use Matching Symbol:", "Matching symbol"});
    v.Text(MissingSymbol, {"missing-symbol", "Missing Symbol:", "Symbol of missing data"});
    v.Text(GapSymbol, {"gap-symbol", "Gap Symbol:", "Symbol of alignment gaps"});
    v.Flag(Interleaved,
           {"interleave", "Interleaved", "Write the matrix in blocks (=false for whole rows)"});
    v.Integer(BlockLength,
              {"block-length", "Nucleotides per block",
               "Nucleotides per block of an interleaved "
               "matrix",
               kBlockTooShort},
              1, std::numeric_limits<int32_t>::max());
  }
};

// What the dialog shows for the open file; a version not yet chosen (0) shows as "NEXUS v. 1".
[[nodiscard]] NexusSaveOptions NexusSaveOptionsFrom(const FormatAttributes& format);
// The "Default" button: the defaults of a freshly opened file.
[[nodiscard]] NexusSaveOptions DefaultNexusSaveOptions();

// A character no symbol field takes: one that NEXUS reserves ("(", ")", "[", "]", "{", "}",
// "/", "\", ",", ";", ":", "=", "*", "'", "`", "<", ">") or a nucleotide letter A, U, T, C, G
// in either case.
[[nodiscard]] bool BlockedInSymbol(char c);

// A symbol field as typing leaves it: the characters that NEXUS reserves ("(", ")", "[", "]",
// "{", "}", "/", "\", ",", ";", ":", "=", "*", "'", "`", "<", ">") and the nucleotide letters
// A, U, T, C, G in either case are blocked, and the field holds one character.
[[nodiscard]] std::string TypedSymbol(const std::string& typed);

struct OptionRefusal {
  std::string Text;
  std::string Title = "Ovelt";
};

// The checks of OK: an empty or blank symbol gives "Missing data" under the title
// "Invalid Selection "; a block below 1 nucleotide gives its own message.
[[nodiscard]] std::optional<OptionRefusal> ValidateNexusSaveOptions(
    const NexusSaveOptions& options);

// Writes validated options into the format attributes.
void ApplyNexusSaveOptions(const NexusSaveOptions& options, FormatAttributes& format);

}  // namespace ovelt
