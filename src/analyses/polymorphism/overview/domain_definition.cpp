#include "analyses/polymorphism/overview/domain_definition.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace ovelt {

namespace {

std::string Trim(const std::string& text) {
  size_t first = 0, last = text.size();
  while (first < last && std::isspace(static_cast<unsigned char>(text[first]))) ++first;
  while (last > first && std::isspace(static_cast<unsigned char>(text[last - 1]))) --last;
  return text.substr(first, last - first);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  size_t start = 0;
  while (true) {
    const size_t end = text.find(separator, start);
    parts.push_back(text.substr(start, end == std::string::npos ? std::string::npos : end - start));
    if (end == std::string::npos) break;
    start = end + 1;
  }
  return parts;
}

std::optional<int32_t> Number(const std::string& text) {
  const std::string t = Trim(text);
  int32_t value = 0;
  const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(), value);
  if (error != std::errc() || end != t.data() + t.size() || t.empty()) return std::nullopt;
  return value;
}

// Copies the columns `sites` of `matrix` into a matrix of their own.
SeqMatrix Columns(const SeqMatrix& matrix, const std::vector<int32_t>& sites) {
  SeqMatrix columns;
  columns.set_sites(static_cast<int32_t>(sites.size()));
  columns.reserve_sequences(matrix.seqs());
  std::vector<char> row(sites.size());
  for (int32_t seq = 1; seq <= matrix.seqs(); ++seq) {
    const char* cells = matrix.sequence(seq);
    for (size_t i = 0; i < sites.size(); ++i) row[i] = cells[sites[i] - 1];
    columns.append_sequence(row.data());
  }
  return columns;
}

template <class T>
std::vector<T> Pick(const std::vector<T>& per_site, const std::vector<int32_t>& sites, T fill) {
  std::vector<T> picked{per_site.empty() ? fill : per_site[0]};
  for (const int32_t site : sites)
    picked.push_back(
        static_cast<size_t>(site) < per_site.size() ? per_site[static_cast<size_t>(site)] : fill);
  return picked;
}

}  // namespace

std::optional<std::vector<DomainSet>> ParseDomains(const std::string& text, int32_t num_sites) {
  std::vector<DomainSet> domains;
  for (const std::string& item : Split(text, ';')) {
    if (Trim(item).empty()) continue;
    const size_t equals = item.find('=');
    if (equals == std::string::npos) return std::nullopt;
    DomainSet domain;
    domain.Name = Trim(item.substr(0, equals));
    if (domain.Name.empty()) return std::nullopt;
    for (const std::string& range : Split(item.substr(equals + 1), ',')) {
      const size_t dash = range.find('-');
      const auto first = Number(range.substr(0, dash));
      const auto last = dash == std::string::npos ? first : Number(range.substr(dash + 1));
      if (!first || !last || *first < 1 || *last < *first || *last > num_sites) return std::nullopt;
      for (int32_t site = *first; site <= *last; ++site) domain.Sites.push_back(site);
    }
    std::sort(domain.Sites.begin(), domain.Sites.end());
    domain.Sites.erase(std::unique(domain.Sites.begin(), domain.Sites.end()), domain.Sites.end());
    domains.push_back(std::move(domain));
  }
  return domains;
}

ActiveData DomainData(const ActiveData& ad, const std::vector<int32_t>& sites) {
  ActiveData d = ad;
  d.NumSites = static_cast<int32_t>(sites.size());
  d.RawMatrix = Columns(ad.RawMatrix, sites);
  d.IncMatrix = Columns(ad.IncMatrix, sites);
  d.RawSiteClass = Pick<int16_t>(ad.RawSiteClass, sites, 0);
  d.SiteClass = Pick<int16_t>(ad.SiteClass, sites, 0);
  d.SiteDiversity = Pick<double>(ad.SiteDiversity, sites, 0.0);
  d.CodonPosition = Pick<int16_t>(ad.CodonPosition, sites, 0);
  d.CodingFlag = Pick<std::string>(ad.CodingFlag, sites, "");
  d.Region = {1, d.NumSites};
  d.Domains.clear();
  return d;
}

}  // namespace ovelt
