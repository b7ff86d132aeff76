// What the hash map costs by operation, key type and number of entries, beside maps whose values stay put as well.
//
// Keys are the addresses of objects of 16 bytes, looked up in an order of their own (shuffled). Insert fills an empty map
// and destroys it. Text keys have 23 bytes; those looked up are texts of their own, which share nothing with the stored.
//
// Tried and dropped: a home group from the middle bits of the product. A third of a million addresses at regular
// distances found no room in their home group, and one miss in ten met a tag of its own by chance; from the highest bits
// there are none of either. Tags in an array of their own, sixteen a group, with the slots elsewhere: a miss among a million
// took 0.15 x the peer's time in place of 0.75 x, but a hit, which touched one line more, 1.0 x in place of 0.7 x. An index
// for few elements, too: the first entry of a map took 350 bytes for it. An iterator made by a function of the library: its
// members were written and read in memory for each element, 1.6 x the peer's time at ten entries in place of 0.4 x.
#include "ZELSYPHashMap.h"
#include "ZELString.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#if OPX_PEER_ABSL
#include <absl/container/node_hash_map.h>
#endif

namespace
{
struct alignas(16) Object
{
  int _content;
};

// Twice as many objects as entries: the first half are keys, the second half are not.
// Keys are stored by one list and looked up by another.
struct PointerKeys
{
  typedef const Object* Key;
  explicit PointerKeys(std::size_t i_count) : _objects(2 * i_count)
  {
    for (const Object& object : _objects)
      _all.push_back(&object);
    std::shuffle(_all.begin(), _all.end(), std::mt19937(1));
    _present.assign(_all.begin(), _all.begin() + static_cast<std::ptrdiff_t>(i_count));
    _absent.assign(_all.begin() + static_cast<std::ptrdiff_t>(i_count), _all.end());
    _stored = _present;
  }

  std::vector<Object> _objects;
  std::vector<Key> _all;
  std::vector<Key> _stored;
  std::vector<Key> _present;
  std::vector<Key> _absent;
};

template <class Text>
struct TextKeys
{
  typedef Text Key;
  explicit TextKeys(std::size_t i_count)
  {
    for (std::size_t index = 0; index < 2 * i_count; ++index)
    {
      std::string text = std::to_string(index);
      text.insert(0, 23 - text.size(), 'k');
      (index < i_count ? _present : _absent).push_back(Text(text.c_str()));
      if (index < i_count)
        _stored.push_back(Text(text.c_str()));
    }
  }

  std::vector<Key> _stored;
  std::vector<Key> _present;
  std::vector<Key> _absent;
};

template <class K>
struct Project
{
  typedef ZELSYPHashMap<K, long> Map;
  static void Insert(Map& io_map, const K& i_key) { io_map.Set(i_key, 1); }
  static bool Has(Map& io_map, const K& i_key) { return io_map.Locate(i_key) != nullptr; }
  static long Sum(Map& io_map)
  {
    long sum = 0;
    for (typename Map::Iterator it(io_map); !it.IsDone(); it.Next())
      sum += *it.GetValue();
    return sum;
  }
};

template <class AnyMap>
struct Standard
{
  typedef AnyMap Map;
  typedef typename Map::key_type K;
  static void Insert(Map& io_map, const K& i_key) { io_map.insert_or_assign(i_key, 1); }
  static bool Has(Map& io_map, const K& i_key) { return io_map.find(i_key) != io_map.end(); }
  static long Sum(Map& io_map)
  {
    long sum = 0;
    for (const auto& pair : io_map)
      sum += pair.second;
    return sum;
  }
};

template <class Kind, class Keys>
void Fill(typename Kind::Map& io_map, const Keys& i_keys)
{
  for (const auto& key : i_keys._stored)
    Kind::Insert(io_map, key);
}

template <class Key>
void Shuffle(std::vector<Key>& io_keys)
{
  std::shuffle(io_keys.begin(), io_keys.end(), std::mt19937(2));
}

template <class Kind, class Keys>
void Insert(benchmark::State& io_state)
{
  const Keys keys(static_cast<std::size_t>(io_state.range(0)));
  for (auto _ : io_state)
  {
    typename Kind::Map map;
    Fill<Kind>(map, keys);
    benchmark::DoNotOptimize(&map);
  }
  io_state.SetItemsProcessed(io_state.iterations() * io_state.range(0));
}

template <class Kind, class Keys>
void LookUp(benchmark::State& io_state, std::vector<typename Keys::Key> Keys::*i_which)
{
  Keys keys(static_cast<std::size_t>(io_state.range(0)));
  typename Kind::Map map;
  Fill<Kind>(map, keys);
  Shuffle(keys.*i_which);
  for (auto _ : io_state)
  {
    long found = 0;
    for (const auto& key : keys.*i_which)
      found += Kind::Has(map, key);
    benchmark::DoNotOptimize(found);
  }
  io_state.SetItemsProcessed(io_state.iterations() * io_state.range(0));
}

template <class Kind, class Keys>
void Hit(benchmark::State& io_state)
{
  LookUp<Kind, Keys>(io_state, &Keys::_present);
}

template <class Kind, class Keys>
void Miss(benchmark::State& io_state)
{
  LookUp<Kind, Keys>(io_state, &Keys::_absent);
}

template <class Kind, class Keys>
void Iterate(benchmark::State& io_state)
{
  const Keys keys(static_cast<std::size_t>(io_state.range(0)));
  typename Kind::Map map;
  Fill<Kind>(map, keys);
  for (auto _ : io_state)
    benchmark::DoNotOptimize(Kind::Sum(map));
  io_state.SetItemsProcessed(io_state.iterations() * io_state.range(0));
}

typedef void (*Operation)(benchmark::State&);

void Register(const char* i_keys, const char* i_operation, const char* i_map, Operation i_run)
{
  benchmark::RegisterBenchmark((std::string(i_keys) + i_operation + "/" + i_map).c_str(), i_run)
      ->Arg(1)
      ->Arg(5)
      ->Arg(10)
      ->Arg(1000)
      ->Arg(1000000);
}

template <class Kind, class Keys>
bool RegisterAll(const char* i_keys, const char* i_map)
{
  Register(i_keys, "Insert", i_map, &Insert<Kind, Keys>);
  Register(i_keys, "Hit", i_map, &Hit<Kind, Keys>);
  Register(i_keys, "Miss", i_map, &Miss<Kind, Keys>);
  Register(i_keys, "Iterate", i_map, &Iterate<Kind, Keys>);
  return true;
}

const bool g_registered = RegisterAll<Project<const Object*>, PointerKeys>("Pointer", "Project") &&
#if OPX_PEER_ABSL
                          RegisterAll<Standard<absl::node_hash_map<const Object*, long>>, PointerKeys>("Pointer", "absl::node_hash_map") &&
#endif
                          RegisterAll<Project<ZELString>, TextKeys<ZELString>>("Text", "Project") &&
                          RegisterAll<Standard<std::unordered_map<std::string, long>>, TextKeys<std::string>>("Text", "std::unordered_map");
} // namespace
