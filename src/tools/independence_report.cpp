#include "tools/independence_report.h"

#include "output/format_mask.h"
#include "output/report_text.h"
#include "stats/marks.h"

namespace ovelt {
namespace {

// A statistic, its P value and the mark, on one line.
std::string TestLine(const std::string& label, float value, double p) {
  return label + Format(value, "0.000") + "      P-value: " + Format(p, "0.00000") + PMarkText(p) +
         kCrLf;
}

std::string TestLine(const std::string& label, double value, double p) {
  return label + Format(value, "0.000") + "      P-value: " + Format(p, "0.00000") + PMarkText(p) +
         kCrLf;
}

}  // namespace

std::string IndependenceReportText(const TwoByTwoTable& t, const IndependenceResult& r) {
  std::string text;
  text += std::string(" ====== Input Tabla ======") + kCrLf;
  text += Format(t.a, "@@@@@@@") + Format(t.b, "@@@@@@") + kCrLf;
  text += Format(t.c, "@@@@@@@") + Format(t.d, "@@@@@@") + kCrLf;
  text += std::string(" ======== Output ========") + kCrLf;

  text += std::string("Fisher's Exact test") + kCrLf;
  text += "One-tailed test, P-value: " + Format(r.FisherOneTail, "0.000000") +
          PMarkText(r.FisherOneTail) + kCrLf;
  text += "Two-tailed test, P-value: " + Format(r.FisherTwoTail, "0.000000") +
          PMarkText(r.FisherTwoTail) + kCrLf;

  text += std::string("Chi-Squared test") + kCrLf;
  text += TestLine("Chi-square value: ", r.ChiSquare, r.ChiSquareP);
  text += TestLine("Chi-square with Yates' correction: ", r.ChiSquareYates, r.ChiSquareYatesP);

  text += std::string("G-test") + kCrLf;
  text += TestLine("G value: ", r.G, r.GP);
  text += TestLine("G with Williams' correction: ", r.GWilliams, r.GWilliamsP);
  text += TestLine("G with Yates' correction: ", r.GYates, r.GYatesP);
  return text;
}

}  // namespace ovelt
