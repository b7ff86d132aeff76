#include "ZELSYPHashMap.h"

#include "AllocationFailures.h"
#include "RecordingFailureHandler.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
typedef ZELSYPHashMap<void*, int> AddressMap;

// A map whose protected operation is open to a test.
class OpenMap : public AddressMap
{
public:
  using AddressMap::DestroyPair;
};

struct Place
{
  int _x;
  int _y;
};
int ZELSYPHashMapHasher(const Place& i_place)
{
  return i_place._x * 31 + i_place._y;
}
int ZELSYPHashMapComparator(const Place& i_place1, const Place& i_place2)
{
  return i_place1._x == i_place2._x && i_place1._y == i_place2._y ? 1 : 0;
}

int HashLastDigit(const int& i_key)
{
  return i_key % 10;
}
int SameLastDigit(const int& i_key1, const int& i_key2)
{
  return i_key1 % 10 == i_key2 % 10 ? 1 : 0;
}

// A copy of one whose number is below 0 throws.
struct Fragile
{
  explicit Fragile(int i_number) : _number(i_number) {}
  Fragile(const Fragile& i_other) : _number(i_other._number)
  {
    if (_number < 0)
      throw std::runtime_error("no copy");
  }
  Fragile& operator=(const Fragile&) = default;
  int _number;
};

// Notes its number where it is told to when it is destroyed.
struct Mortal
{
  Mortal(int i_number, std::vector<int>* i_pDead) : _number(i_number), _pDead(i_pDead) {}
  Mortal(const Mortal&) = default;
  Mortal& operator=(const Mortal&) = default;
  ~Mortal() { _pDead->push_back(_number); }
  int _number;
  std::vector<int>* _pDead;
};

void* Address(std::uintptr_t i_number)
{
  return reinterpret_cast<void*>(i_number * 16);
}

std::vector<int> ValuesOf(const AddressMap& i_map)
{
  std::vector<int> values;
  for (AddressMap::Iterator it(i_map); !it.IsDone(); it.Next())
    values.push_back(*it.GetValue());
  return values;
}
} // namespace

TEST(ZELSYPHashMapTest, NewMapIsEmpty)
{
  AddressMap map;
  EXPECT_EQ(0, map.GetSize());
  EXPECT_EQ(nullptr, map.Locate(nullptr));
  EXPECT_TRUE(AddressMap::Iterator(map).IsDone());
}

TEST(ZELSYPHashMapTest, SetAnswersOneForANewKeyAndZeroForOneWhoseValueItReplaces)
{
  AddressMap map;
  EXPECT_EQ(1, map.Set(Address(1), 10));
  EXPECT_EQ(0, map.Set(Address(1), 20));
  EXPECT_EQ(1, map.GetSize());
  EXPECT_EQ(20, *map.Locate(Address(1)));
}

TEST(ZELSYPHashMapTest, ValueCanBeWrittenWhereItStands)
{
  AddressMap map;
  map.Set(Address(1), 10);
  *map.Locate(Address(1)) = 11;
  const AddressMap& readOnly = map;
  EXPECT_EQ(11, *readOnly.Locate(Address(1)));
  EXPECT_EQ(nullptr, readOnly.Locate(Address(2)));
}

TEST(ZELSYPHashMapTest, NullIsAKeyLikeAnyOther)
{
  AddressMap map;
  EXPECT_EQ(1, map.Set(nullptr, 5));
  EXPECT_EQ(5, *map.Locate(nullptr));
}

TEST(ZELSYPHashMapTest, RemoveTakesOneKeyOut)
{
  AddressMap map;
  map.Set(Address(1), 10);
  map.Set(Address(2), 20);
  map.Set(Address(3), 30);
  EXPECT_EQ(1, map.Remove(Address(1)));
  EXPECT_EQ(0, map.Remove(Address(1)));
  EXPECT_EQ(nullptr, map.Locate(Address(1)));
  EXPECT_THAT(ValuesOf(map), ElementsAre(30, 20));
}

TEST(ZELSYPHashMapTest, RemoveAllEmptiesTheMapForNewKeys)
{
  AddressMap map;
  for (int key = 0; key < 100; ++key)
    map.Set(Address(static_cast<std::uintptr_t>(key)), key);
  map.RemoveAll();
  EXPECT_EQ(0, map.GetSize());
  EXPECT_EQ(nullptr, map.Locate(Address(5)));
  EXPECT_EQ(1, map.Set(Address(5), 50));
  EXPECT_THAT(ValuesOf(map), ElementsAre(50));
}

TEST(ZELSYPHashMapTest, RemoveAllDestroysThePairsInTheOrderOfTheWalk)
{
  std::vector<int> dead;
  ZELSYPHashMap<void*, Mortal> map;
  for (int key = 0; key < 20; ++key)
    map.Set(Address(static_cast<std::uintptr_t>(key)), Mortal(key, &dead));
  map.Remove(Address(1));
  std::vector<int> walked;
  for (ZELSYPHashMap<void*, Mortal>::Iterator it(map); !it.IsDone(); it.Next())
    walked.push_back(it.GetValue()->_number);
  dead.clear();
  map.RemoveAll();
  EXPECT_EQ(walked, dead);
  EXPECT_THAT(dead, testing::SizeIs(19));
}

TEST(ZELSYPHashMapTest, KeysAndValuesAreCopiedAndDestroyedWithTheirPairs)
{
  const std::shared_ptr<int> value = std::make_shared<int>(1);
  {
    ZELSYPHashMap<ZELString, std::shared_ptr<int>> map;
    map.Set("removed", value);
    map.Set("replaced", value);
    map.Set("kept", value);
    EXPECT_EQ(4, value.use_count());
    map.Remove("removed");
    map.Set("replaced", nullptr);
    EXPECT_EQ(2, value.use_count());
  }
  EXPECT_EQ(1, value.use_count());
}

TEST(ZELSYPHashMapTest, ValuesStayWhereTheyAreWhileTheMapGrows)
{
  AddressMap map;
  map.Set(Address(0), 1);
  const int* const pValue = map.Locate(Address(0));
  for (std::uintptr_t key = 1; key < 10000; ++key)
    map.Set(Address(key), 0);
  EXPECT_EQ(pValue, map.Locate(Address(0)));
}

TEST(ZELSYPHashMapTest, EveryNaNIsOneKeyAndTheTwoZerosAreTwo)
{
  ZELSYPHashMap<double, int> map;
  EXPECT_EQ(1, map.Set(std::numeric_limits<double>::quiet_NaN(), 1));
  EXPECT_EQ(0, map.Set(-std::numeric_limits<double>::signaling_NaN(), 2));
  EXPECT_EQ(1, map.Set(0.0, 3));
  EXPECT_EQ(1, map.Set(-0.0, 4));
  EXPECT_EQ(3, map.GetSize());
  ZELSYPHashMap<float, int> floats;
  EXPECT_EQ(1, floats.Set(0.0f, 3));
  EXPECT_EQ(1, floats.Set(-0.0f, 4));
}

TEST(ZELSYPHashMapTest, TextKeysAreFoundByContent)
{
  const std::string text = "a text key of 23 bytes!";
  ZELSYPHashMap<const char*, int> texts;
  texts.Set("a text key of 23 bytes!", 1);
  EXPECT_EQ(1, *texts.Locate(text.c_str()));
  ZELSYPHashMap<ZELString, int> strings;
  strings.Set(text.c_str(), 2);
  EXPECT_EQ(2, *strings.Locate("a text key of 23 bytes!"));
  ZELSYPHashMap<ZELUnicodeString, int> unicode;
  unicode.Set(text.c_str(), 3);
  EXPECT_EQ(3, *unicode.Locate("a text key of 23 bytes!"));
}

TEST(ZELSYPHashMapTest, KeyFunctionsAreFoundBesideTheKeyType)
{
  ZELSYPHashMap<Place, int> map;
  map.Set(Place{1, 2}, 12);
  EXPECT_EQ(12, *map.Locate(Place{1, 2}));
  EXPECT_EQ(nullptr, map.Locate(Place{2, 1}));
}

TEST(ZELSYPHashMapTest, KeyFunctionsCanBeGiven)
{
  ZELSYPHashMap<int, int, &HashLastDigit, &SameLastDigit> map;
  EXPECT_EQ(1, map.Set(15, 1));
  EXPECT_EQ(0, map.Set(25, 2));
  ZELSYPHashMap<void*, int, &ZELSYPHashMapPointerHasherCompute> addresses;
  addresses.Set(Address(9), 9);
  EXPECT_EQ(9, *addresses.Locate(Address(9)));
}

TEST(ZELSYPHashMapTest, PairHasherReportsANullPairAndAnswersZero)
{
  RecordingFailureHandler failures;
  const AddressMap::Pair pair{Address(7), 0};
  EXPECT_EQ(ZELSYPHashMapPointerHasherCompute(Address(7)), AddressMap::HashPair(&pair));
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
  EXPECT_EQ(0, AddressMap::HashPair(nullptr));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_elem is NULL"));
}

TEST(ZELSYPHashMapTest, PairComparatorReportsANullPairAndAnswersNotEqual)
{
  RecordingFailureHandler failures;
  const AddressMap::Pair pair{Address(7), 0};
  const AddressMap::Pair equal{Address(7), 1};
  const AddressMap::Pair other{Address(8), 0};
  EXPECT_EQ(1, AddressMap::ComparePairs(&pair, &equal));
  EXPECT_EQ(0, AddressMap::ComparePairs(&pair, &other));
  EXPECT_EQ(0, AddressMap::ComparePairs(nullptr, &pair));
  EXPECT_EQ(0, AddressMap::ComparePairs(&pair, nullptr));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_elem1 is NULL", "pointer i_elem2 is NULL"));
}

TEST(ZELSYPHashMapTest, NullPairIsReportedWhenPairsAreDestroyed)
{
  RecordingFailureHandler failures;
  OpenMap::DestroyPair(nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("NULL pair?"));
}

TEST(ZELSYPHashMapTest, SetWithoutMemoryForThePairReportsAndAnswersMinusOne)
{
  RecordingFailureHandler failures;
  AddressMap map;
  {
    AllocationFailures refused;
    EXPECT_EQ(-1, map.Set(Address(1), 1));
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("Failed to add the element"));
  EXPECT_EQ("ZELSYPHashMap.h", failures.GetFailures()[0].file);
  EXPECT_EQ(0, map.GetSize());
  EXPECT_EQ(1, map.Set(Address(1), 1));
}

TEST(ZELSYPHashMapTest, SetWithoutMemoryInTheTableReportsAndFreesThePair)
{
  RecordingFailureHandler failures;
  const std::shared_ptr<int> value = std::make_shared<int>(1);
  ZELSYPHashMap<int*, std::shared_ptr<int>> map;
  int key = 0;
  {
    AllocationFailures refused(1);
    EXPECT_EQ(-1, map.Set(&key, value));
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("Failed to add the element"));
  EXPECT_EQ(1, value.use_count());
  EXPECT_EQ(0, map.GetSize());
  EXPECT_EQ(1, map.Set(&key, value));
  EXPECT_EQ(value, *map.Locate(&key));
}

TEST(ZELSYPHashMapTest, MemoryOfARemovedPairIsTakenAgain)
{
  AddressMap map;
  map.Set(Address(1), 1);
  map.Remove(Address(1));
  const AllocationFailures refused;
  for (int time = 0; time < 1000; ++time)
  {
    ASSERT_EQ(1, map.Set(Address(1), time));
    ASSERT_EQ(1, map.Remove(Address(1)));
  }
}

TEST(ZELSYPHashMapTest, CopyOfAValueThatThrowsLeavesTheMapAndItsMemoryAsTheyWere)
{
  ZELSYPHashMap<void*, Fragile> map;
  map.Set(Address(1), Fragile(1));
  map.Remove(Address(1));
  EXPECT_THROW(map.Set(Address(1), Fragile(-1)), std::runtime_error);
  EXPECT_EQ(0, map.GetSize());
  EXPECT_EQ(nullptr, map.Locate(Address(1)));
  const AllocationFailures refused;
  EXPECT_EQ(1, map.Set(Address(1), Fragile(2)));
}

TEST(ZELSYPHashMapTest, SetThatFindsNoMemoryAtAnySizeLeavesTheMapAsItWas)
{
  RecordingFailureHandler failures;
  const std::shared_ptr<int> value = std::make_shared<int>(1);
  ZELSYPHashMap<int*, std::shared_ptr<int>> map;
  std::vector<int> keys(100);
  int refusals = 0;
  for (int& key : keys)
    for (int granted = 0; !map.Locate(&key); ++granted)
    {
      const int size = map.GetSize();
      const AllocationFailures refused(granted);
      if (map.Set(&key, value) == 1)
        continue;
      ++refusals;
      ASSERT_EQ(size, map.GetSize());
      ASSERT_EQ(size + 1, value.use_count());
      for (int index = 0; index < size; ++index)
        ASSERT_EQ(value, *map.Locate(&keys[static_cast<std::size_t>(index)]));
    }
  EXPECT_EQ(100, map.GetSize());
  EXPECT_EQ(refusals, static_cast<int>(failures.GetMessages().size()));
  EXPECT_GE(refusals, 8) << "pairs and table grow several times each";
}

TEST(ZELSYPHashMapTest, EmptyMapAsksForNoMemory)
{
  RecordingFailureHandler failures;
  const AllocationFailures refused;
  const AddressMap map(1000);
  EXPECT_EQ(nullptr, map.Locate(Address(1)));
  EXPECT_TRUE(AddressMap::Iterator(map).IsDone());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
  EXPECT_LE(sizeof(AddressMap), 8 * sizeof(void*));
}

TEST(ZELSYPHashMapTest, KeysComeAndGoAtEverySmallSize)
{
  for (std::uintptr_t size = 1; size <= 40; ++size)
  {
    AddressMap map;
    for (std::uintptr_t key = 0; key < size; ++key)
      ASSERT_EQ(1, map.Set(Address(key), static_cast<int>(key)));
    for (std::uintptr_t removed = 0; removed < size; ++removed)
    {
      ASSERT_EQ(nullptr, map.Locate(Address(size)));
      ASSERT_EQ(1, map.Remove(Address(removed)));
      ASSERT_EQ(0, map.Remove(Address(removed)));
      for (std::uintptr_t key = removed + 1; key < size; ++key)
        ASSERT_EQ(static_cast<int>(key), *map.Locate(Address(key)));
    }
    ASSERT_EQ(0, map.GetSize());
    ASSERT_EQ(1, map.Set(Address(size), 5));
    ASSERT_THAT(ValuesOf(map), ElementsAre(5));
  }
}

TEST(ZELSYPHashMapTest, WalkAnswersEveryPairInTheOrderItCame)
{
  AddressMap map;
  map.Set(Address(3), 30);
  map.Set(Address(1), 10);
  AddressMap::Iterator it(map);
  EXPECT_EQ(Address(3), *it.GetKey());
  EXPECT_EQ(30, *it.GetValue());
  EXPECT_EQ(30, it.CurrentItem()->_value);
  it.Next();
  EXPECT_EQ(Address(1), it.CurrentItem()->_key);
  *it.GetValue() = 11;
  it.Next();
  EXPECT_TRUE(it.IsDone());
  EXPECT_EQ(11, *map.Locate(Address(1)));
}

TEST(ZELSYPHashMapTest, WalkAfterAnInsertionReportsAndYieldsNothing)
{
  RecordingFailureHandler failures;
  AddressMap map;
  map.Set(Address(1), 10);
  AddressMap::Iterator it(map);
  EXPECT_NE(nullptr, it.CurrentItem());
  map.Set(Address(2), 20);
  EXPECT_EQ(nullptr, it.CurrentItem());
  EXPECT_EQ(nullptr, it.GetKey());
  EXPECT_EQ(nullptr, it.GetValue());
  it.Next();
  EXPECT_FALSE(it.IsDone());
  EXPECT_THAT(failures.GetMessages(), testing::AllOf(testing::SizeIs(4), testing::Each("boolean _pHashTable->Size() == _size is FALSE")));
  EXPECT_EQ("Hash table size has changed!", failures.GetFailures()[3].details);
}

TEST(ZELSYPHashMapTest, WalkNeverAnswersARemovedPair)
{
  RecordingFailureHandler failures;
  AddressMap map;
  map.Set(Address(1), 10);
  AddressMap::Iterator it(map);
  EXPECT_NE(nullptr, it.CurrentItem());
  map.RemoveAll();
  EXPECT_EQ(nullptr, it.CurrentItem());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean _pHashTable->Size() == _size is FALSE"));
}

TEST(ZELSYPHashMapTest, WalkOverAMapOfTheSameSizeAnswersThePairThatStandsThereNow)
{
  RecordingFailureHandler failures;
  AddressMap map;
  map.Set(Address(1), 10);
  AddressMap::Iterator it(map);
  EXPECT_EQ(Address(1), *it.GetKey());
  map.Remove(Address(1));
  map.Set(Address(2), 20);
  EXPECT_EQ(Address(2), *it.GetKey());
  EXPECT_EQ(20, *it.GetValue());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPHashMapTest, WalkOverRemainingPairsNeverAnswersOneThatIsGone)
{
  AddressMap map;
  for (std::uintptr_t key = 0; key < 3; ++key)
    map.Set(Address(key), 0);
  AddressMap::Iterator it(map);
  EXPECT_EQ(Address(0), *it.GetKey());
  map.Remove(Address(0));
  map.Set(Address(9), 9);
  std::vector<void*> keys;
  for (; !it.IsDone(); it.Next())
    keys.push_back(*it.GetKey());
  EXPECT_THAT(keys, ElementsAre(Address(2), Address(1), Address(9)));
}

TEST(ZELSYPHashMapTest, WalkOverAMapThatWasFilledAnewAnswersTheNewPairs)
{
  ZELSYPHashMap<ZELString, std::string> map;
  map.Set("old", "a value that is long enough for the heap");
  ZELSYPHashMap<ZELString, std::string>::Iterator it(map);
  EXPECT_STREQ("old", it.GetKey()->GetText());
  map.RemoveAll();
  map.Set("new", "another value that is long enough for the heap");
  EXPECT_STREQ("new", it.GetKey()->GetText());
  EXPECT_EQ("another value that is long enough for the heap", *it.GetValue());
}

TEST(ZELSYPHashMapTest, ReplacingAValueDoesNotDisturbTheWalk)
{
  RecordingFailureHandler failures;
  AddressMap map;
  map.Set(Address(1), 10);
  AddressMap::Iterator it(map);
  EXPECT_EQ(10, *it.GetValue());
  map.Set(Address(1), 11);
  EXPECT_EQ(11, *it.GetValue());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPHashMapTest, RandomOperationsAgreeWithAModel)
{
  std::mt19937 random(99);
  ZELSYPHashMap<ZELString, std::string> map;
  std::unordered_map<std::string, std::string> model;
  for (int step = 0; step < 60000; ++step)
  {
    const std::string key = "key " + std::to_string(random() % 4000);
    const bool present = model.count(key) != 0;
    if (random() % 100 < (step / 10000 % 2 == 0 ? 70U : 30U))
    {
      const std::string value = "a value that is long enough for the heap " + std::to_string(step);
      ASSERT_EQ(present ? 0 : 1, map.Set(key.c_str(), value));
      model[key] = value;
    }
    else
    {
      ASSERT_EQ(present ? 1 : 0, map.Remove(key.c_str()));
      model.erase(key);
    }
    ASSERT_EQ(static_cast<int>(model.size()), map.GetSize());
  }
  std::unordered_map<std::string, std::string> walked;
  for (ZELSYPHashMap<ZELString, std::string>::Iterator it(map); !it.IsDone(); it.Next())
    walked[it.GetKey()->GetText()] = *it.GetValue();
  EXPECT_EQ(model, walked);
}
