// The first line of a PHYLIP file: the number of sequences, then the number of sites.

#include <string>
#include <string_view>

#include "formats/phylip_parts.h"
#include "formats/read_file.h"
#include "formats/read_messages.h"

namespace ovelt {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Value of a run of digits, held at `cap` + 1 once it passes `cap`.
int64_t DigitsValue(std::string_view digits, int64_t cap) {
  int64_t value = 0;
  for (char c : digits) {
    value = value * 10 + (c - '0');
    if (value > cap) return cap + 1;
  }
  return value;
}

}  // namespace

PhylipHeader ParsePhylipHeader(std::string_view line, const std::string& path) {
  size_t i = 0;
  while (i < line.size() && line[i] == ' ') ++i;
  size_t end = line.find(' ', i);
  if (end == std::string_view::npos) end = line.size();
  const std::string_view seqs_text = line.substr(i, end - i);
  bool seqs_ok = !seqs_text.empty();
  for (char c : seqs_text) seqs_ok = seqs_ok && IsDigit(c);
  if (!seqs_ok) throw ReadError(PhylipErrorText(path, kPhylipInvalidSequences));

  // The rest of the line holds the number of sites: digits and blanks only. A second number
  // there (such as "10 500 3") is not a number of sites either.
  const std::string_view rest = line.substr(end);
  size_t digits_from = std::string_view::npos;
  size_t digits_to = std::string_view::npos;
  for (size_t k = 0; k < rest.size(); ++k) {
    const char c = rest[k];
    if (c == ' ') continue;
    if (!IsDigit(c)) throw ReadError(PhylipErrorText(path, kPhylipInvalidSites));
    if (digits_from == std::string_view::npos) {
      digits_from = k;
      digits_to = k;
      while (digits_to < rest.size() && IsDigit(rest[digits_to])) ++digits_to;
    } else if (k >= digits_to) {
      throw ReadError(PhylipErrorText(path, kPhylipInvalidSites));
    }
  }

  PhylipHeader header;
  const int64_t seqs = DigitsValue(seqs_text, kMaxSequences);
  if (seqs > kMaxSequences)
    throw ReadError(PhylipErrorText(path, DeclaredSequencesSentence(seqs_text)));
  int64_t sites = 0;
  if (digits_from != std::string_view::npos) {
    const std::string_view sites_text = rest.substr(digits_from, digits_to - digits_from);
    sites = DigitsValue(sites_text, kMaxSites);
    if (sites > kMaxSites)
      throw ReadError(PhylipErrorText(path, DeclaredSitesSentence(sites_text)));
  }
  // A matrix of genetic distances has one number in its first line, so it arrives here.
  if (sites == 0) throw ReadError(PhylipDistancesText(path));
  if (seqs == 0) throw ReadError(PhylipErrorText(path, kPhylipInvalidSequences));
  header.seqs = static_cast<int32_t>(seqs);
  header.sites = static_cast<int32_t>(sites);
  return header;
}

}  // namespace ovelt
