// What a list of paths holds of the memory, which the system tells on Linux only.
#include "../PathTexts.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace
{
class ListMemory : public testing::Test
{
protected:
  static const int Count = 64;
  static constexpr std::size_t TextSize = 10000;

  void SetUp() override
  {
    if (BytesInUse() == 0)
      GTEST_SKIP() << "a sanitizer's runtime counts for itself and finds leaks by itself";
  }

  // As of now, of small and large blocks.
  static std::size_t BytesInUse()
  {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
  }

  // Paths that no one else holds.
  void Fill()
  {
    for (int number = 0; number < Count; ++number)
      _list.Append(ZELSYPFilePath(std::string(TextSize, 'x').c_str()));
  }

  ZELListValZELSYPFilePath _list;
};
} // namespace

TEST_F(ListMemory, GoesWithTheRemovedPosition)
{
  Fill();
  const std::size_t before = BytesInUse();
  for (int number = 0; number < Count; ++number)
    _list.RemovePosition(1);
  EXPECT_LT(BytesInUse() + Count * TextSize, before + TextSize);
}

TEST_F(ListMemory, OfThePathsGoesWithAllOfThem)
{
  for (const auto memory : {ZELRawCollPV::KeepMemory, ZELRawCollPV::ReleaseMemory})
  {
    Fill();
    const std::size_t before = BytesInUse();
    _list.RemoveAll(memory);
    EXPECT_LT(BytesInUse() + Count * TextSize, before + TextSize);
  }
}

TEST_F(ListMemory, OfThePositionsStaysOrGoesAsItIsAskedTo)
{
  const std::size_t positions = 10000;
  const std::size_t before = BytesInUse();
  ZELListValZELSYPFilePath list(positions);
  list.RemoveAll(ZELRawCollPV::KeepMemory);
  EXPECT_GE(BytesInUse(), before + positions * sizeof(void*));
  list.RemoveAll(ZELRawCollPV::ReleaseMemory);
  EXPECT_LT(BytesInUse(), before + positions * sizeof(void*));
}
