// Properties: plain assignment that tells its owner.
#include "surface/prop.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "support/errors.h"

using namespace surface;

namespace {

void noNegative(const int& value) {
  if (value < 0) throw RuntimeError(ErrorKind::BadPropertyValue, "negative");
}

class Owner {
 public:
  int told = 0;
  std::vector<int> formers;

 private:
  void tell() { ++told; }
  void tellFormer(const int& former) { formers.push_back(former); }

 public:
  Prop<std::string, &Owner::tell> Caption{*this, "first"};
  Prop<std::string, &Owner::tell> Text{*this, "second"};
  Prop<int, &Owner::tellFormer, noNegative> Value{*this, 3};
};

}  // namespace

TEST(Properties, OneAssignedToAnotherCopiesTheValueAndTellsTheTarget) {
  Owner a, b;
  a.Caption = b.Text;
  EXPECT_EQ(a.Caption, "second");
  EXPECT_EQ(a.told, 1);
  EXPECT_EQ(b.told, 0);
  b.Text = "later";
  EXPECT_EQ(a.Caption, "second") << "the two are bound to each other";
}

TEST(Properties, AnEqualValueTellsTheOwnerToo) {
  Owner owner;
  owner.Caption = "first";
  EXPECT_EQ(owner.told, 1);
}

TEST(Properties, AHookMayLearnTheFormerValue) {
  Owner owner;
  owner.Value = 5;
  owner.Value = 5;
  EXPECT_EQ(owner.formers, (std::vector{3, 5}));
}

TEST(Properties, ARefusedValueLeavesTheFormerOneAndTellsNobody) {
  Owner owner;
  EXPECT_ERROR(BadPropertyValue, owner.Value = -1);
  EXPECT_EQ(owner.Value, 3);
  EXPECT_TRUE(owner.formers.empty());
}

TEST(Properties, TheOwnerChangesItsOwnValueQuietly) {
  Owner owner;
  owner.Caption.setQuietly("quiet");
  EXPECT_EQ(owner.Caption, "quiet");
  EXPECT_EQ(owner.told, 0);
}

// `auto colour = sheet.ForeColor` would else be a second property with the same owner.
TEST(Properties, APropertyCannotBeCopied) {
  using Caption = decltype(Owner::Caption);
  EXPECT_FALSE(std::is_copy_constructible_v<Caption>);
  EXPECT_FALSE(std::is_move_constructible_v<Caption>);
}
