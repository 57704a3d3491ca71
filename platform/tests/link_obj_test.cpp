#include "platform/link_obj.h"

#include <gtest/gtest.h>

#include <vector>

namespace plenovia {
namespace {

class Numbered : public TLinkObj {
 public:
  Numbered(int number, std::vector<int>& destroyed) : number_(number), destroyed_(destroyed) {}
  ~Numbered() override { destroyed_.push_back(number_); }

 private:
  int number_;
  std::vector<int>& destroyed_;
};

TEST(LinkObj, DeleteRestDestroysTheLastFirst) {
  std::vector<int> destroyed;
  Numbered first(0, destroyed);
  TLinkObj* node = &first;
  for (int i = 1; i <= 200000; ++i) {  // deep enough to break a recursion
    auto* next = new Numbered(i, destroyed);
    node->SetNext(next);  // prev links are left unset on purpose
    node = next;
  }
  EXPECT_EQ(first.GetLast(), node);
  first.DeleteRest();
  EXPECT_EQ(first.GetLast(), &first);
  ASSERT_EQ(destroyed.size(), 200000u);
  for (int i = 0; i < 200000; ++i) ASSERT_EQ(destroyed[static_cast<std::size_t>(i)], 200000 - i);
}

TEST(LinkObj, UnlinkJoinsTheNeighboursAndKeepsItsOwnLinks) {
  std::vector<int> destroyed;
  Numbered a(0, destroyed), b(1, destroyed), c(2, destroyed);
  a.SetNext(&b);
  b.SetPrev(&a);
  b.SetNext(&c);
  c.SetPrev(&b);
  b.Unlink();
  EXPECT_EQ(a.GetNext(), &c);
  EXPECT_EQ(c.GetPrev(), &a);
  EXPECT_EQ(b.GetNext(), &c);
  EXPECT_EQ(b.GetPrev(), &a);
  Numbered alone(3, destroyed);
  alone.Unlink();
  EXPECT_EQ(alone.GetLast(), &alone);
}

}  // namespace
}  // namespace plenovia
