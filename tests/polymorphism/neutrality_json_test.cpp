// The JSON of Fu and Li's tests, made from the results' declared fields: the README's keys,
// integers for counts, null for a statistic that is not determined.
#include <gtest/gtest.h>

#include <string>

#include "analyses/polymorphism/neutrality/fu_li_compute.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "analyses/polymorphism/neutrality/tajima_compute.h"
#include "command/result_json.h"
#include "neutrality_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;
using test::OutgroupRow;

bool Has(const std::string& json, const std::string& member) {
  return json.find(member) != std::string::npos;
}

SlidingWindowSpec Window(int32_t length, int32_t step) {
  SlidingWindowSpec geometry;
  geometry.WindowLength = length;
  geometry.StepSize = step;
  return geometry;
}

TEST(FuLiJson, KeysIntegersAndMarks) {
  const auto sel = test::SelectedAlignment(NeutralityRows());
  const FuLiTestResult r = ComputeFuLiTest(sel, 1, 10, true, Window(5, 5));
  const std::string json = ResultJson("Fu and Li's Tests", r);
  EXPECT_EQ(json.rfind("{\"analysis\":\"Fu and Li's Tests\",\"region_from\":1,", 0), 0U) << json;
  for (const char* member :
       {"\"sequences\":5,", "\"use_mutations\":true,", "\"net_sites\":10,",
        "\"segregating_sites\":6,", "\"mutations\":7,", "\"eta\":7,", "\"eta_s\":6,",
        "\"d_star\":-0.74", "\"d_star_significance\":\"", "\"f_star\":-0.82", "\"haplotypes\":5,",
        "\"hd\":0.99", "\"fs\":-2.30", "\"strobeck_s\":1,",
        "\"sliding_window\":{\"window_length\":5,\"step_size\":5,", "\"windows\":[{\"start\":1,"})
    EXPECT_TRUE(Has(json, member)) << member << " in " << json;
}

TEST(FuLiJson, MonomorphicIsNull) {
  const auto sel =
      test::SelectedAlignment({"ACGTACGTAC", "ACGTACGTAC", "ACGTACGTAC", "ACGTACGTAC"});
  const std::string json = ResultJson("Fu and Li's Tests", ComputeFuLiTest(sel, 1, 10, false, {}));
  for (const char* member :
       {"\"segregating_sites\":0,", "\"d_star\":null,", "\"d_star_significance\":\"n.d.\",",
        "\"f_star\":null,", "\"haplotypes\":null,", "\"hd\":null,", "\"fs\":null,"})
    EXPECT_TRUE(Has(json, member)) << member << " in " << json;
  EXPECT_FALSE(Has(json, "sliding_window")) << json;
}

TEST(FuLiOutgroupJson, KeysAndIntegers) {
  const auto sel = test::WithOutgroup(NeutralityRows(), OutgroupRow());
  const FuLiOutgroupResult r = ComputeFuLiOutgroupTest(sel, 1, 10, true, Window(5, 5));
  const std::string json = ResultJson("Fu and Li's Tests with an Outgroup", r);
  for (const char* member :
       {"\"sequences\":5,", "\"outgroup_sequences\":1,", "\"net_sites\":9,",
        "\"segregating_sites\":5,", "\"ambiguous_sites\":[", "\"eta\":6,", "\"eta_e\":5,",
        "\"eta_s\":6,", "\"fu_li_d\":-1.29", "\"fu_li_f\":-1.54", "\"fu_li_d_significance\":\"",
        "\"fay_wu_h\":0.", "\"sliding_window\":{", "\"windows\":[{\"start\":"})
    EXPECT_TRUE(Has(json, member)) << member << " in " << json;
}

TEST(FuLiOutgroupJson, NoMutationIsNull) {
  const auto sel = test::WithOutgroup({"ACGT", "ACGT", "ACGT"}, "ACGA");
  const std::string json = ResultJson("Fu and Li's Tests with an Outgroup",
                                      ComputeFuLiOutgroupTest(sel, 1, 4, true, {}));
  for (const char* member : {"\"eta\":0,", "\"fu_li_d\":null,", "\"fu_li_f\":null,",
                             "\"fu_li_d_significance\":\"n.d.\","})
    EXPECT_TRUE(Has(json, member)) << member << " in " << json;
}

TEST(PerSiteJson, NoNetSiteLeavesPiAndThetaPerSiteNull) {
  // Every site has a gap: L = 0, so Pi = k / L and theta / L are not determined; the reports
  // print 0 for them.
  const auto sel = test::SelectedAlignment({"A-", "-C", "AC", "AC"});
  const TajimaTestResult tajima = ComputeTajimaTest(sel, 1, 2, false, {});
  EXPECT_EQ(tajima.Stats.NetSites, 0);
  const std::string t = ResultJson("Tajima's Test", tajima);
  for (const char* member : {"\"net_sites\":0,", "\"pi\":null,", "\"theta_site\":null,"})
    EXPECT_TRUE(Has(t, member)) << member << " in " << t;
  const std::string f = ResultJson("Fu and Li's Tests", ComputeFuLiTest(sel, 1, 2, false, {}));
  EXPECT_TRUE(Has(f, "\"pi\":null,")) << f;
  // With net sites Pi is a number.
  const auto poly = test::SelectedAlignment(NeutralityRows());
  EXPECT_FALSE(Has(ResultJson("Tajima's Test", ComputeTajimaTest(poly, 1, 10, false, {})),
                   "null"));
}

}  // namespace
}  // namespace ovelt
