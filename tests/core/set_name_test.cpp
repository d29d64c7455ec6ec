#include "core/set_name.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

const std::vector<std::string> kNoNames;

TEST(SetName, BeginIsRefusedInAnyCase) {
  for (const char* name : {"Begin", "begin", "BEGIN", "bEgIn"}) {
    const auto refusal = ValidateSetName(name, kNoNames);
    ASSERT_TRUE(refusal.has_value()) << name;
    EXPECT_EQ(*refusal, "Invalid sequence set name\nInvalid name, please enter another name");
  }
}

TEST(SetName, EveryReservedNexusWordIsRefused) {
  for (const char* name : {"charset", "standard", "vector", "stateset", "changeset", "taxset",
                           "treeset", "charpartition", "tokens", "taxpartition", "treepartition",
                           "begin", "END", "TaxSet"}) {
    EXPECT_EQ(ValidateSetName(name, kNoNames), kInvalidSetName) << name;
  }
  // A reserved word inside a longer name is fine.
  EXPECT_FALSE(ValidateSetName("Beginners", kNoNames).has_value());
}

TEST(SetName, NameBeginningWithADigitIsRefused) {
  EXPECT_EQ(ValidateSetName("1pop", kNoNames), kInvalidSetName);
  EXPECT_EQ(ValidateSetName("_pop", kNoNames), kInvalidSetName);
  EXPECT_FALSE(ValidateSetName("pop1", kNoNames).has_value());
  EXPECT_FALSE(ValidateSetName("Z9", kNoNames).has_value());
}

TEST(SetName, DuplicateNameIsRefused) {
  const std::vector<std::string> names{"Africa", "Europe"};
  EXPECT_EQ(ValidateSetName("Europe", names),
            "Can not create two Sequence Sets with the same name");
  EXPECT_EQ(ValidateSetName("EUROPE", names), kDuplicateSetName);
  EXPECT_FALSE(ValidateSetName("Asia", names).has_value());
}

TEST(SetName, DuplicateAgainstAStore) {
  std::vector<PoblacionSecuencias> sets(2);
  sets[1].nombrePop("Africa");
  EXPECT_EQ(ValidateSetName("africa", sets), kDuplicateSetName);
  EXPECT_FALSE(ValidateSetName("Asia", sets).has_value());
}

TEST(SetName, EmptyNameIsRefusedWithoutAMessage) {
  const auto refusal = ValidateSetName("", kNoNames);
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(*refusal, "");
}

TEST(SetName, TypedKeys) {
  EXPECT_EQ(FilterTypedKey(' '), '_');
  EXPECT_EQ(FilterTypedKey('a'), 'a');
  EXPECT_EQ(FilterTypedKey('Z'), 'Z');
  EXPECT_EQ(FilterTypedKey('7'), '7');
  // The characters between "Z" and "a" are dropped, "_" among them.
  for (const char key : {'[', '\\', ']', '^', '_', '`', '-', '.', '{', '#'}) {
    EXPECT_FALSE(FilterTypedKey(key).has_value()) << key;
  }
  EXPECT_EQ(FilterTypedName("Dros mel. [2]"), "Dros_mel_2");  // ".", "[" and "]" dropped
}

}  // namespace
}  // namespace ovelt
