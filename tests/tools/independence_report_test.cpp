#include "tools/independence_report.h"

#include <gtest/gtest.h>

#include <string>

#include "command/result_json.h"
#include "tools/independence_run.h"

namespace ovelt {
namespace {

// (3 1 / 1 3), worked by hand: Fisher 17/70 = 0.242857 and 34/70 = 0.485714; chi-square 2 with
// P = erfc(1) = 0.157299, Yates 0.5 with P = erfc(0.5) = 0.479500; G = 12 ln 3 - 16 ln 2 =
// 2.092993 with P = erfc(sqrt(G/2)) = 0.147976; Williams G / 1.1875 = 1.762520 with
// P = 0.184310; Yates' G of (2.5 1.5 / 1.5 2.5) = 0.505343 with P = 0.477162.
const char* const kSymmetricReport =
    " ====== Input Tabla ======\r\n"
    "      3     1\r\n"
    "      1     3\r\n"
    " ======== Output ========\r\n"
    "Fisher's Exact test\r\n"
    "One-tailed test, P-value: 0.242857  (not significant)\r\n"
    "Two-tailed test, P-value: 0.485714  (not significant)\r\n"
    "Chi-Squared test\r\n"
    "Chi-square value: 2.000      P-value: 0.15730  (not significant)\r\n"
    "Chi-square with Yates' correction: 0.500      P-value: 0.47950  (not significant)\r\n"
    "G-test\r\n"
    "G value: 2.093      P-value: 0.14798  (not significant)\r\n"
    "G with Williams' correction: 1.763      P-value: 0.18431  (not significant)\r\n"
    "G with Yates' correction: 0.505      P-value: 0.47716  (not significant)\r\n";

TEST(IndependenceReport, TheReportOfAHandWorkedTable) {
  const TwoByTwoTable t{3, 1, 1, 3};
  EXPECT_EQ(IndependenceReportText(t, ComputeIndependence(t)), kSymmetricReport);
}

TEST(IndependenceReport, MarksFollowThePValues) {
  // (0 5 / 5 0): Fisher 1/252 = 0.003968 and 2/252 = 0.007937 (**); chi-square 10 with
  // P = 0.001565 (**); Yates 10 (25 - 5)^2 / 625 = 6.4 with P = 0.011412 (*); G = 20 ln 2 =
  // 13.863 with P = 0.000197 (***); Williams q = 1.15, 12.055 with P = 0.000517 (***); Yates' G
  // of (0.5 4.5 / 4.5 0.5) = 7.361 with P = 0.006664 (**).
  const TwoByTwoTable t{0, 5, 5, 0};
  const std::string text = IndependenceReportText(t, ComputeIndependence(t));
  EXPECT_NE(text.find("      0     5\r\n      5     0\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("One-tailed test, P-value: 0.003968**\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("Two-tailed test, P-value: 0.007937**\r\n"), std::string::npos);
  EXPECT_NE(text.find("Chi-square value: 10.000      P-value: 0.00157**\r\n"), std::string::npos);
  EXPECT_NE(text.find("Chi-square with Yates' correction: 6.400      P-value: 0.01141*\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("G value: 13.863      P-value: 0.00020***\r\n"), std::string::npos);
  EXPECT_NE(text.find("G with Williams' correction: 12.055      P-value: 0.00052***\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("G with Yates' correction: 7.361      P-value: 0.00666**\r\n"),
            std::string::npos);
}

TEST(IndependenceReport, WideCellsWidenTheirColumns) {
  const TwoByTwoTable t{12345, 1, 1, 12345};
  const std::string text = IndependenceReportText(t, ComputeIndependence(t));
  EXPECT_NE(text.find("\r\n  12345     1\r\n      1 12345\r\n"), std::string::npos) << text;
}

TEST(IndependenceRun, JsonHasEveryTest) {
  const IndependenceRun run{{3, 1, 1, 3}, ComputeIndependence({3, 1, 1, 3})};
  const std::string json = ResultJson("Tests of Independence", run);
  EXPECT_EQ(json.rfind("{\"analysis\":\"Tests of Independence\",\"table\":{\"a\":3,\"b\":1,"
                       "\"c\":1,\"d\":3},\"fisher\":{\"one_tailed\":0.2428571428571",
                       0),
            0u)
      << json;
  EXPECT_NE(json.find("\"chi_square\":{\"value\":2,\"p\":0.157299"), std::string::npos) << json;
  EXPECT_NE(json.find("\"mark\":\"  (not significant)\""), std::string::npos) << json;
  EXPECT_NE(json.find("\"g_yates\":{"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
