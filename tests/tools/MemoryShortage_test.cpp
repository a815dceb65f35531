// What a copy does when there is no memory for all of it. A program of its own, since it replaces
// the allocation of the whole process.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "tools/XmlDocument.h"

namespace {

int blocks = 0;    // allocated and not freed
int allowed = -1;  // allocations until there is no memory; below 0 there always is

}  // namespace

void* operator new(std::size_t size) {
  if (allowed == 0) {
    throw std::bad_alloc();
  }
  allowed -= allowed > 0 ? 1 : 0;
  void* block = std::malloc(size > 0 ? size : 1);
  if (!block) {
    throw std::bad_alloc();
  }
  ++blocks;
  return block;
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* block) noexcept {
  blocks -= block ? 1 : 0;
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
void operator delete[](void* block) noexcept { operator delete(block); }
void operator delete[](void* block, std::size_t) noexcept { operator delete(block); }

namespace {

/// Runs `copy` with memory for `most` allocations; whether that was enough.
template <class Copy>
bool Fits(int most, const Copy& copy) {
  allowed = most;
  bool fits = true;
  try {
    copy();
  } catch (const std::bad_alloc&) {
    fits = false;
  }
  allowed = -1;
  return fits;
}

/// Runs `copy` with memory for one more allocation each time until it succeeds, and demands that
/// nothing is left behind by what failed.
template <class Copy>
void NothingIsLeftBehind(const Copy& copy) {
  constexpr int enough = 1000;
  int most = 0;
  for (bool fits = false; !fits && most < enough; ++most) {
    const int before = blocks;
    fits = Fits(most, copy);
    ASSERT_EQ(blocks, before) << most;
  }
  EXPECT_GT(most, 10);
  EXPECT_LT(most, enough);
}

class MemoryShortage : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(
        source.Parse("<day><name>Working day</name>"
                     "<slot><id>peak</id><from>08:00</from></slot><slot/></day>"));
  }

  XmlDocument source;
};

TEST_F(MemoryShortage, ACopyOfANodeFreesWhatItHasCopied) {
  NothingIsLeftBehind([&] { const qv::XmlNode copy(*source.Root()); });
}

TEST_F(MemoryShortage, ANodeThatCantBeAssignedStaysAsItWas) {
  const qv::XmlNode before(L"day");
  for (int most = 0; most < 10; ++most) {
    qv::XmlNode target(before);
    EXPECT_FALSE(Fits(most, [&] { target = *source.Root(); })) << most;
    EXPECT_EQ(target, before);
  }
}

}  // namespace
