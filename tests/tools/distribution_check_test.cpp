#include "tools/distribution_check.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tools/distribution_messages.h"

namespace ovelt {
namespace {

std::optional<int16_t> Binomial(const std::string& p, const std::string& n, const std::string& k) {
  BinomialInput input;
  return CheckBinomial({p, n, k}, input);
}

std::optional<int16_t> Hypergeometric(const std::string& population, const std::string& successes,
                                      const std::string& n, const std::string& k) {
  HypergeometricInput input;
  return CheckHypergeometric({population, successes, n, k}, input);
}

std::optional<int16_t> Poisson(const std::string& lambda, const std::string& k) {
  PoissonInput input;
  return CheckPoisson({lambda, k}, input);
}

std::optional<int16_t> Ewens(const std::string& n, const std::string& h, const std::string& theta) {
  EwensInput input;
  return CheckEwens({n, h, theta}, input);
}

TEST(DistributionMessages, EveryCodeHasItsWordsUnderTheOveltTitle) {
  const std::pair<int16_t, const char*> table[] = {
      {0, "Missing data"},
      {1, "This table can not be computed"},
      {2, "The minimum number of sequences is two"},
      {3, "The total number of sites must be higher than 0"},
      {4, "The total number of elements must be lower than 32767"},
      {5, "The minimum number of polymorphic sites or differences is 0"},
      {10, "The total number of haplotypes must be equal or lower than the sample size"},
      {11, "The sample size must be lower than 501"},
      {12, "The minimum number of haplotypes is one"},
      {13, "Theta must be higher than 0"},
      {24, "The lambda value must be higher than 0"},
      {25, "The p-value must be higher than 0"},
      {26, "The p-value must be lower than 1"},
      {27, "Invalid number"},
  };
  for (const auto& [code, words] : table) {
    EXPECT_EQ(F20Filtros(code).Text, words) << code;
    EXPECT_EQ(F20Filtros(code).Title, "Ovelt") << code;
  }
  EXPECT_THROW((void)F20Filtros(6), std::invalid_argument);
}

TEST(DistributionCheck, TheDefaultsAreAccepted) {
  const DistributionBoxes boxes = F20DefectValues();
  BinomialInput b;
  HypergeometricInput h;
  PoissonInput p;
  EwensInput e;
  EXPECT_FALSE(CheckBinomial(boxes.Binomial, b));
  EXPECT_FALSE(CheckHypergeometric(boxes.Hypergeometric, h));
  EXPECT_FALSE(CheckPoisson(boxes.Poisson, p));
  EXPECT_FALSE(CheckEwens(boxes.Ewens, e));
}

TEST(DistributionCheck, BinomialBoxes) {
  BinomialInput input;
  EXPECT_FALSE(CheckBinomial({"0,3", "10", "2"}, input));  // a decimal comma is a point
  EXPECT_EQ(input.P, 0.3);
  EXPECT_EQ(input.N, 10);
  EXPECT_EQ(input.K, 2);

  EXPECT_EQ(Binomial("", "10", "2"), 0);
  EXPECT_EQ(Binomial("0.3", "", "2"), 0);
  EXPECT_EQ(Binomial("p", "10", "2"), 27);
  EXPECT_EQ(Binomial("0.3", "10.5", "2"), 27);
  EXPECT_EQ(Binomial("0.3", "10", "two"), 27);
  EXPECT_EQ(Binomial("0.3", "0", "0"), 3);
  EXPECT_EQ(Binomial("0.3", "10", "-1"), 5);
  EXPECT_EQ(Binomial("0.3", "10", "11"), 1);
  EXPECT_FALSE(Binomial("0.3", "10", "10"));
}

TEST(DistributionCheck, POfZeroOrOneIsRefused) {
  EXPECT_EQ(Binomial("0", "10", "2"), 25);
  EXPECT_EQ(Binomial("-0.2", "10", "2"), 25);
  EXPECT_EQ(Binomial("1", "10", "2"), 26);
  EXPECT_EQ(Binomial("1.5", "10", "2"), 26);
  EXPECT_FALSE(Binomial("0.000001", "10", "2"));
  EXPECT_FALSE(Binomial("0.999999", "10", "2"));
}

TEST(DistributionCheck, ThirtyTwoThousandSevenHundredSixtySevenElementsAreRefused) {
  EXPECT_EQ(Binomial("0.5", "32767", "1"), 4);
  EXPECT_FALSE(Binomial("0.5", "32766", "1"));
  EXPECT_EQ(Binomial("0.5", "1e9", "1"), 4);
  EXPECT_EQ(Hypergeometric("32767", "10", "5", "1"), 4);
  EXPECT_FALSE(Hypergeometric("32766", "10", "5", "1"));
  EXPECT_EQ(Poisson("3", "32767"), 4);
  EXPECT_FALSE(Poisson("3", "32766"));
}

TEST(DistributionCheck, HypergeometricBoxes) {
  HypergeometricInput input;
  EXPECT_FALSE(CheckHypergeometric({"10", "4", "3", "1"}, input));
  EXPECT_EQ(input.Population, 10);
  EXPECT_EQ(input.Successes, 4);
  EXPECT_EQ(input.N, 3);
  EXPECT_EQ(input.K, 1);

  EXPECT_EQ(Hypergeometric("", "4", "3", "1"), 0);
  EXPECT_EQ(Hypergeometric("10", "4", "3", ""), 0);
  EXPECT_EQ(Hypergeometric("10", "four", "3", "1"), 27);
  EXPECT_EQ(Hypergeometric("0", "0", "1", "0"), 3);
  EXPECT_EQ(Hypergeometric("10", "-1", "3", "1"), 5);
  EXPECT_EQ(Hypergeometric("10", "11", "3", "1"), 1);
  EXPECT_EQ(Hypergeometric("10", "4", "0", "0"), 3);
  EXPECT_EQ(Hypergeometric("10", "4", "11", "1"), 1);
  EXPECT_EQ(Hypergeometric("10", "4", "3", "-1"), 5);
  EXPECT_EQ(Hypergeometric("10", "4", "3", "4"), 1);  // k above n
  EXPECT_EQ(Hypergeometric("10", "2", "5", "3"), 1);  // k above the successes
  EXPECT_FALSE(Hypergeometric("10", "0", "5", "0"));
}

TEST(DistributionCheck, PoissonBoxes) {
  PoissonInput input;
  EXPECT_FALSE(CheckPoisson({"2,5", "3"}, input));
  EXPECT_EQ(input.Lambda, 2.5);
  EXPECT_EQ(input.K, 3);
  EXPECT_EQ(Poisson("", "3"), 0);
  EXPECT_EQ(Poisson("2.5", ""), 0);
  EXPECT_EQ(Poisson("l", "3"), 27);
  EXPECT_EQ(Poisson("2.5", "3.5"), 27);
  EXPECT_EQ(Poisson("2.5", "-1"), 5);
  EXPECT_FALSE(Poisson("2.5", "0"));
}

TEST(DistributionCheck, LambdaOfZeroIsRefused) {
  EXPECT_EQ(Poisson("0", "3"), 24);
  EXPECT_EQ(Poisson("-1", "3"), 24);
  EXPECT_FALSE(Poisson("1e-9", "3"));
}

TEST(DistributionCheck, EwensBoxes) {
  EwensInput input;
  EXPECT_FALSE(CheckEwens({"10", "3", "2,5"}, input));
  EXPECT_EQ(input.SampleSize, 10);
  EXPECT_EQ(input.NHap, 3);
  EXPECT_EQ(input.Theta, 2.5);
  EXPECT_EQ(Ewens("", "3", "2"), 0);
  EXPECT_EQ(Ewens("10", "3", ""), 0);
  EXPECT_EQ(Ewens("ten", "3", "2"), 27);
  EXPECT_EQ(Ewens("10", "3.5", "2"), 27);
  EXPECT_EQ(Ewens("1", "1", "2"), 2);
  EXPECT_EQ(Ewens("10", "0", "2"), 12);
  EXPECT_FALSE(Ewens("2", "2", "0.1"));
}

TEST(DistributionCheck, ASampleOf500IsAcceptedAnd501Refused) {
  EXPECT_FALSE(Ewens("500", "10", "5"));
  EXPECT_EQ(Ewens("501", "10", "5"), 11);
}

TEST(DistributionCheck, NHapAboveTheSampleSizeIsRefused) {
  EXPECT_FALSE(Ewens("10", "10", "5"));
  EXPECT_EQ(Ewens("10", "11", "5"), 10);
}

TEST(DistributionCheck, ThetaOfZeroIsRefused) {
  EXPECT_EQ(Ewens("10", "3", "0"), 13);
  EXPECT_EQ(Ewens("10", "3", "-2"), 13);
}

TEST(DistributionCheck, BoxesAreCheckedInTheWindowsOrder) {
  // The first box's range is told before a later box's emptiness.
  EXPECT_EQ(Binomial("0", "", ""), 25);
  EXPECT_EQ(Binomial("0.5", "0", ""), 3);
  EXPECT_EQ(Ewens("501", "", ""), 11);
  EXPECT_EQ(Ewens("10", "11", "x"), 10);
}

}  // namespace
}  // namespace ovelt
