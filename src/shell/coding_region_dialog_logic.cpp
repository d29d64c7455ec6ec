#include "shell/coding_region_dialog_logic.h"

#include <limits>

#include "core/coding_map.h"
#include "core/region_check.h"
#include "core/text_case.h"

namespace ovelt {

std::optional<int32_t> ParseSiteField(const std::string& text) {
  const std::string digits = TrimBlanks(text);
  if (digits.empty() || digits.size() > 10) return std::nullopt;
  int64_t value = 0;
  for (const char c : digits) {
    if (!IsAsciiDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  if (value > std::numeric_limits<int32_t>::max()) return std::nullopt;
  return static_cast<int32_t>(value);
}

std::string LastSiteCaption(const ActiveData& ad) {
  return "Last nt. = " + std::to_string(ad.NumSites);
}

CodingRegionSession::CodingRegionSession(const ActiveData& ad) {
  copy_.NumSites = ad.NumSites;
  copy_.IncMatrix = ad.IncMatrix;  // shares the cells: nothing is copied
  copy_.Format = ad.Format;
  copy_.CodonPosition = ad.CodonPosition;
  copy_.CodonPosition.resize(static_cast<size_t>(ad.NumSites) + 1, 0);
  // The dialog starts by finding the last coding site.
  copy_.LastCodingSite = BuscaUltimoCodSitio(copy_);
}

std::optional<std::string> CodingRegionSession::Assign(const std::string& from,
                                                       const std::string& to, bool coding,
                                                       int first_position) {
  const std::optional<int32_t> first = ParseSiteField(from);
  const std::optional<int32_t> last = ParseSiteField(to);
  if (!first || !last || !RegionIsValid(*first, *last, copy_.NumSites)) return kInvalidSelection;
  if (coding) {
    changed_ |= AssignCodingRegion(copy_, *first, *last, first_position);
  } else {
    changed_ |= AssignNonCodingRegion(copy_, *first, *last);
  }
  return std::nullopt;
}

std::optional<StopCodonQuestion> CodingRegionSession::StopQuestion() const {
  return STOPenelFinal(copy_);
}

void CodingRegionSession::AcceptStopQuestion(const StopCodonQuestion& question) {
  changed_ |= ApplyStopAsNonCoding(copy_, question.a, question.b, question.c);
}

void CodingRegionSession::Commit(ActiveData& ad) const {
  ad.CodonPosition = copy_.CodonPosition;
  ad.LastCodingSite = copy_.LastCodingSite;
  LeaveForm14(ad, changed_);
}

}  // namespace ovelt
