#pragma once
// What the dialog of protein coding regions holds while it is open. Regions are assigned one
// at a time to a copy of the coding map; leaving with OK (or with No to "assign more regions?")
// runs the stop-codon check and writes the copy back in one step, so that a Cancel leaves the
// data as they were.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/stop_codon.h"

namespace ovelt {

inline const std::string kAssignDoneQuestion =
    "The assignation has been successful done.\nDo you want to assign more regions?";
inline const std::string kCodonsModuleError = " Error in Codons Module ";
inline const std::string kNonCodingChoice = "Assigne the selected region as a non-coding region";
inline const std::string kCodingChoice = "Assigne the selected region as a protein coding region";
inline const std::string kFirstPositionFrame = "Set the codon position of the first site";

// A site number typed into a box: digits, with blanks around them. nullopt for anything else,
// an empty box included.
[[nodiscard]] std::optional<int32_t> ParseSiteField(const std::string& text);

// "Last nt. = " and the number of sites.
[[nodiscard]] std::string LastSiteCaption(const ActiveData& ad);

class CodingRegionSession {
 public:
  explicit CodingRegionSession(const ActiveData& ad);

  // "Assign": the region `from`..`to` (as typed) becomes noncoding, or coding with the first
  // site at codon position `first_position` (1, 2 or 3). nullopt when assigned; the refusal
  // (" Invalid Selection ") for an empty or non-numeric box or a region outside 1..NumSites.
  std::optional<std::string> Assign(const std::string& from, const std::string& to, bool coding,
                                    int first_position);

  [[nodiscard]] bool Changed() const { return changed_; }
  [[nodiscard]] const std::vector<int16_t>& CodonPositions() const { return copy_.CodonPosition; }
  [[nodiscard]] int32_t LastCodingSite() const { return copy_.LastCodingSite; }

  // On leaving: the question about a stop codon closing the coding region of the copy, if any.
  [[nodiscard]] std::optional<StopCodonQuestion> StopQuestion() const;
  // Yes to it: the stop codon's sites become noncoding in the copy.
  void AcceptStopQuestion(const StopCodonQuestion& question);

  // Writes the copy into `ad`: codon positions, last coding site, the region back to
  // 1..NumSites, a genetic code index of 0 made 1, and when something changed a coding region
  // counts as assigned and the coding tables are rebuilt.
  void Commit(ActiveData& ad) const;

 private:
  ActiveData copy_;  // only the fields the coding map needs: sizes, first sequence, code
  bool changed_ = false;
};

}  // namespace ovelt
