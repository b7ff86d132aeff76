#include "ZELSYPHashMapFunctions.h"

#include "ZELString.h"
#include "ZELUnicodeString.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace
{
const double NaN = std::numeric_limits<double>::quiet_NaN();
const float NaNFloat = std::numeric_limits<float>::quiet_NaN();

double DoubleOf(std::uint64_t i_bits)
{
  double number;
  std::memcpy(&number, &i_bits, sizeof(number));
  return number;
}

float FloatOf(std::uint32_t i_bits)
{
  float number;
  std::memcpy(&number, &i_bits, sizeof(number));
  return number;
}

unsigned HashOfAddress(std::uint64_t i_address)
{
  return static_cast<unsigned>(ZELSYPHashMapPointerHasherCompute(reinterpret_cast<void*>(i_address)));
}
} // namespace

TEST(ZELSYPHashMapFunctionsTest, TextHashIsTheHashOfTheHostString)
{
  const char* const text = "Tree/Node";
  EXPECT_EQ(ZELString(text).ComputeHashKey(), ZELSYPHashMapHasherCString(text));
  EXPECT_EQ(ZELString(text).ComputeHashKey(), ZELSYPHashMapHasherZELString(ZELString(text)));
  EXPECT_EQ(ZELUnicodeString(text).ComputeHashKey(), ZELSYPHashMapHasherZELUnicodeString(ZELUnicodeString(text)));
}

TEST(ZELSYPHashMapFunctionsTest, TextsAreEqualByteForByte)
{
  const char first[] = "node";
  const char second[] = "node";
  EXPECT_EQ(1, ZELSYPHashMapComparatorCString(first, second));
  EXPECT_EQ(0, ZELSYPHashMapComparatorCString(first, "Node"));
  EXPECT_EQ(0, ZELSYPHashMapComparatorCString(first, "nodes"));
  EXPECT_EQ(1, ZELSYPHashMapComparatorCString("", ""));
}

TEST(ZELSYPHashMapFunctionsTest, DoubleHashIsItsHighHalfXorItsLowHalf)
{
  EXPECT_EQ(0, ZELSYPHashMapHasherDouble(0.0));
  EXPECT_EQ(0x80000000u, static_cast<unsigned>(ZELSYPHashMapHasherDouble(-0.0)));
  EXPECT_EQ(0x3FF80000, ZELSYPHashMapHasherDouble(1.5));
  EXPECT_EQ(0xA6200003u, static_cast<unsigned>(ZELSYPHashMapHasherDouble(0.1)));
}

TEST(ZELSYPHashMapFunctionsTest, EveryNaNHashesAlike)
{
  EXPECT_EQ(0x7FF80000, ZELSYPHashMapHasherDouble(NaN));
  EXPECT_EQ(0x7FF80000, ZELSYPHashMapHasherDouble(DoubleOf(0xFFF8000000000123)));
  EXPECT_EQ(0x7FC00000, ZELSYPHashMapHasherFloat(NaNFloat));
  EXPECT_EQ(0x7FC00000, ZELSYPHashMapHasherFloat(FloatOf(0xFFC00123)));
}

TEST(ZELSYPHashMapFunctionsTest, FloatHashIsItsPattern)
{
  EXPECT_EQ(0x3FC00000, ZELSYPHashMapHasherFloat(1.5f));
  EXPECT_EQ(0x80000000u, static_cast<unsigned>(ZELSYPHashMapHasherFloat(-0.0f)));
}

TEST(ZELSYPHashMapFunctionsTest, EveryNaNEqualsEveryOtherAndNothingElse)
{
  EXPECT_EQ(1, ZELSYPHashMapComparatorDouble(NaN, DoubleOf(0xFFF8000000000123)));
  EXPECT_EQ(0, ZELSYPHashMapComparatorDouble(NaN, 1.0));
  EXPECT_EQ(0, ZELSYPHashMapComparatorDouble(1.0, NaN));
  EXPECT_EQ(1, ZELSYPHashMapComparatorFloat(NaNFloat, FloatOf(0xFFC00123)));
  EXPECT_EQ(0, ZELSYPHashMapComparatorFloat(NaNFloat, 1.0f));
  EXPECT_EQ(0, ZELSYPHashMapComparatorFloat(1.0f, NaNFloat));
}

TEST(ZELSYPHashMapFunctionsTest, NumbersAreEqualWhenTheirPatternsAre)
{
  EXPECT_EQ(1, ZELSYPHashMapComparatorDouble(1.5, 1.5));
  EXPECT_EQ(0, ZELSYPHashMapComparatorDouble(0.0, -0.0));
  EXPECT_EQ(0, ZELSYPHashMapComparatorDouble(1.5, 1.25));
  EXPECT_EQ(1, ZELSYPHashMapComparatorFloat(1.5f, 1.5f));
  EXPECT_EQ(0, ZELSYPHashMapComparatorFloat(0.0f, -0.0f));
}

TEST(ZELSYPHashMapFunctionsTest, PointerHashFoldsTheAddressWithoutItsFourLowestBits)
{
  EXPECT_EQ(0u, HashOfAddress(0));
  EXPECT_EQ(0u, HashOfAddress(0xF));
  EXPECT_EQ(1u, HashOfAddress(0x10));
  EXPECT_EQ(0x88888888u, HashOfAddress(0x123456789ABCDEF0));
}

TEST(ZELSYPHashMapFunctionsTest, PointerHashShiftsTheSignAlong)
{
  EXPECT_EQ(0xF8000000u, HashOfAddress(0x8000000000000000));
}

TEST(ZELSYPHashMapFunctionsTest, InlineAddressHashAgreesWithTheExportedOne)
{
  for (std::uint64_t address = 1; address != 0; address <<= 1)
  {
    void* const pKey = reinterpret_cast<void*>(address | 0x1230);
    ASSERT_EQ(ZELSYPHashMapPointerHasherCompute(pKey), ZELSYPHashMapHashOfAddress(pKey));
  }
}
