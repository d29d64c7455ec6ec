#include "analyses/divergence/gene_flow/distance_matrix.h"

#include <algorithm>
#include <cctype>

#include "core/line_end.h"
#include "formats/writer_names.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

double ValueOf(const Differentiation& s, const std::string& statistic) {
  if (statistic == "Hs") return s.Hs;
  if (statistic == "Ks") return s.Ks;
  if (statistic == "Kxy") return s.Kxy;
  if (statistic == "Gst") return s.Gst.value_or(0.0);
  if (statistic == "DeltaSt") return s.DeltaSt;
  if (statistic == "GammaSt") return s.GammaSt.value_or(0.0);
  if (statistic == "Nst") return s.Nst;
  if (statistic == "Fst") return s.Fst;
  if (statistic == "Dxy") return s.Dxy;
  return s.Da;
}

// A value as the grid shows it, with a point whatever the locale would say.
std::string Cell(double value) {
  std::string text = Format(value, "0.00000");
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

}  // namespace

const std::vector<std::string>& MatrixStatistics() {
  static const std::vector<std::string> names = {"Hs",      "Ks",  "Kxy", "Gst", "DeltaSt",
                                                 "GammaSt", "Nst", "Fst", "Dxy", "Da"};
  return names;
}

std::optional<MatrixFormat> MatrixFormatOf(const std::string& file_name) {
  const size_t dot = file_name.rfind('.');
  if (dot == std::string::npos) return std::nullopt;
  const std::string extension = Lower(file_name.substr(dot + 1));
  if (extension == "phy" || extension == "phylip") return MatrixFormat::kPhylip;
  if (extension == "meg" || extension == "mega") return MatrixFormat::kMega;
  return std::nullopt;
}

std::string DistanceMatrixText(const GeneFlowResult& result, const std::string& statistic,
                               MatrixFormat format, const std::string& file_name) {
  const auto v = static_cast<int32_t>(result.Populations.size());
  // The value of populations a > b (from 0) from the table of pairs, a listed before b there.
  std::vector<std::vector<double>> below(static_cast<size_t>(v));
  for (int32_t a = 0; a < v; ++a) below[static_cast<size_t>(a)].assign(static_cast<size_t>(a), 0.0);
  for (const GeneFlowPair& pair : result.Pairs)
    below[static_cast<size_t>(pair.Second - 1)][static_cast<size_t>(pair.First - 1)] =
        ValueOf(pair.Estimates.Stats, statistic);
  std::string text;
  if (format == MatrixFormat::kPhylip) {
    text += Format(static_cast<int64_t>(v), "@@@@@") + kCrLf;
    for (int32_t a = 0; a < v; ++a) {
      std::string line = PhylipNameField(result.Populations[static_cast<size_t>(a)].Name);
      for (const double value : below[static_cast<size_t>(a)]) line += "  " + Cell(value);
      text += line + kCrLf;
    }
    return text;
  }
  text += std::string("#mega") + kCrLf;
  text += "!Title: " + statistic + " values exported by Ovelt Workbench (Ovelt); " + file_name +
          ";" + kCrLf;
  for (const FlowPopulationSummary& p : result.Populations)
    text += "#" + CleanName(p.Name, NameMode::kNexusMega) + kCrLf;
  text += kCrLf;
  for (int32_t a = 1; a < v; ++a) {
    std::string line;
    for (const double value : below[static_cast<size_t>(a)])
      line += (line.empty() ? "" : " ") + Cell(value);
    text += line + kCrLf;
  }
  return text;
}

}  // namespace ovelt
