#include <gtest/gtest.h>

#include "output/output_channel.h"
#include "support/scripted_platform.h"

namespace ovelt {
namespace {

GraphData OneWindow() {
  GraphData g;
  g.GraphKind = kGraphPolymorphism;
  g.Table = WindowTable(1, 5);
  g.Table.at(1, 1) = 50.0f;
  g.Table.at(1, 2) = 0.01f;
  g.Table.RowsUsed = g.GraphRows = 1;
  return g;
}

TEST(GraphChannelTest, SetGraphKeepsTheChartAndRaisesGraphOn) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  EXPECT_EQ(channel.GraphOn, 0);
  EXPECT_EQ(channel.Graph().GraphKind, 0);
  channel.SetGraph(OneWindow());
  EXPECT_EQ(channel.GraphOn, 1);
  EXPECT_EQ(channel.Graph().GraphKind, kGraphPolymorphism);
  EXPECT_EQ(channel.Graph().GraphRows, 1);
  EXPECT_FLOAT_EQ(channel.Graph().Table.at(1, 2), 0.01f);
}

TEST(GraphChannelTest, ANewRunDropsTheEarlierGraph) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.SetGraph(OneWindow());
  channel.ShowResult(kResultAddGraph);
  channel.ResetOutputs();
  EXPECT_EQ(channel.GraphOn, 0);
  EXPECT_FALSE(channel.Windows().Graph);
  EXPECT_EQ(channel.Graph().GraphKind, 0);
  EXPECT_EQ(channel.Graph().GraphRows, 0);
  EXPECT_EQ(channel.Graph().Table.Capacity(), 0);
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

TEST(GraphChannelTest, SerialTellsANewChartFromTheOneShown) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  const int32_t start = channel.GraphSerial();
  channel.SetGraph(GraphData{});
  const int32_t first = channel.GraphSerial();
  EXPECT_NE(first, start);
  channel.ResetOutputs();
  EXPECT_NE(channel.GraphSerial(), first);
  const int32_t reset = channel.GraphSerial();
  channel.SetGraph(GraphData{});
  EXPECT_NE(channel.GraphSerial(), reset);
}

}  // namespace
}  // namespace ovelt
