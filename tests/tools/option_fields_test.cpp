#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tools/distribution_options.h"
#include "tools/independence_options.h"

namespace ovelt {
namespace {

// Collects what a face would make of each declared box: its flag and its label.
struct FieldCollector {
  std::vector<std::string> keys;
  std::vector<std::string> labels;
  std::vector<std::string*> values;
  void Text(std::string& value, const OptionField& field) {
    keys.push_back(field.key);
    labels.push_back(field.label);
    values.push_back(&value);
  }
};

template <class Options>
FieldCollector Collect(Options& options) {
  FieldCollector collector;
  options.Visit(collector);
  return collector;
}

TEST(OptionFields, TheTableHasFourBoxes) {
  IndependenceOptions options = F12DefectValues();
  const FieldCollector c = Collect(options);
  EXPECT_EQ(c.keys, (std::vector<std::string>{"a", "b", "c", "d"}));
  ASSERT_EQ(c.values.size(), 4u);
  EXPECT_EQ(c.values[0], &options.A);
  EXPECT_EQ(c.values[3], &options.D);
}

TEST(OptionFields, TheDistributionTabsUseTheWindowsLabels) {
  DistributionBoxes boxes = F20DefectValues();
  EXPECT_EQ(Collect(boxes.Binomial).labels,
            (std::vector<std::string>{"Value of  p:", "Value of  n:", "Value of  k:"}));
  EXPECT_EQ(Collect(boxes.Ewens).labels,
            (std::vector<std::string>{"Sample Size:", "NHap, Number of Haplotypes:",
                                      "Value of Theta:"}));
  EXPECT_EQ(Collect(boxes.Poisson).keys, (std::vector<std::string>{"lambda", "k"}));
  EXPECT_EQ(Collect(boxes.Hypergeometric).keys,
            (std::vector<std::string>{"population", "successes", "n", "k"}));
  EXPECT_STREQ(kDistributionTabCaptions[static_cast<size_t>(DistributionTab::kEwens)],
               "Ewens Distribution");
  EXPECT_STREQ(kDistributionTabCaptions[0], "Binomial Distribution");
}

}  // namespace
}  // namespace ovelt
