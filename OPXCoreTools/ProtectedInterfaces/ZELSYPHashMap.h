// ZELSYPHashMap<K, V>: a map from keys to values over the host's hash table.
// ZELSYPHashMap<ZELString, int> ages; ages.Set("Ada", 36); int* pAge = ages.Locate("Ada");
//
// The key functions are chosen by overload on K (ZELSYPHashMapFunctions.h) or given as template arguments. The map owns
// its pairs: copies of keys and values, which stay where they are until they are removed. One thread at a time. Nothing
// throws but what K and V throw; a new key whose copy throws is not there then. A key or value that must
// be aligned to more than 16 bytes does not compile.
#ifndef ZELSYPHashMap_H
#define ZELSYPHashMap_H

#include "ZELSYPCheck.h"
#include "ZELSYPHashMapBaseIterator.h"
#include "ZELSYPHashMapFunctions.h"
#include "ZELSYPHashMapPairs.h"
#include "ZELSysSimpleHashTable.h"

#include <new>

template <class K, class V, auto Hasher = &ZELSYPHashMapDefaultHasher<K>, auto Comparator = &ZELSYPHashMapDefaultComparator<K>>
class ZELSYPHashMap
{
public:
  struct Pair
  {
    K _key;
    V _value;
  };
  class Iterator;

  // Room for i_size pairs before the first growth; not above 0: the table's default.
  explicit ZELSYPHashMap(int i_size = 0) : _table(i_size, &HashPair, &ComparePairs) {}
  ZELSYPHashMap(const ZELSYPHashMap&) = delete;
  ZELSYPHashMap& operator=(const ZELSYPHashMap&) = delete;
  ~ZELSYPHashMap() { RemoveAll(); }

  // 1: the key is new. 0: the key was there, and its value is replaced. -1: "Failed to add the element", for want of
  // memory; the map is as it was.
  int Set(const K& i_key, const V& i_value);
  // The value of the key, valid until the key is removed, or null.
  V* Locate(const K& i_key) { return const_cast<V*>(static_cast<const ZELSYPHashMap*>(this)->Locate(i_key)); }
  const V* Locate(const K& i_key) const;
  // 1: the key is taken out with its value. 0: it was not there. The last pair takes its place in the walk.
  int Remove(const K& i_key);
  void RemoveAll();
  int GetSize() const noexcept { return _table.Size(); }

  // What the table calls: the hash of a pair's key, 0 for a null pair ("i_elem"), and whether two pairs have equal keys,
  // 0 for a null one ("i_elem1", "i_elem2").
  static int HashPair(const void* i_elem);
  static int ComparePairs(const void* i_elem1, const void* i_elem2);

protected:
  // Runs the pair's destructor; a null pair: "NULL pair?".
  static void DestroyPair(void* i_pPair);

private:
  static const Pair* AsPair(const void* i_elem) { return static_cast<const Pair*>(i_elem); }
  // The comparison of a look-up, which the compiler sees through.
  static auto HasKey(const K& i_key)
  {
    return [&i_key](const void* i_elem) { return Comparator(i_key, AsPair(i_elem)->_key) != 0; };
  }
  int Add(int i_hash, const K& i_key, const V& i_value);
  Pair* MakePair(const K& i_key, const V& i_value);

  ZELSysSimpleHashTable _table;
  ZELSYPHashMapPairs<Pair> _pairs;
};

// Walks the pairs, in the order in which their keys came while none was removed. A map whose size changes on the way is
// reported as ZELSYPHashMapBaseIterator says, and no pair is answered while it has another size; the walk is not done
// then, and is to be left. As many removals as new keys are not noticed: the walk goes on over what the map has now, and
// may miss a pair or meet one twice. The map must outlive it.
template <class K, class V, auto Hasher, auto Comparator>
class ZELSYPHashMap<K, V, Hasher, Comparator>::Iterator : public ZELSYPHashMapBaseIterator
{
public:
  explicit Iterator(const ZELSYPHashMap& i_map) : ZELSYPHashMapBaseIterator(i_map._table) {}

  // The pair at the current position, its key, its value; null where there is none.
  Pair* CurrentItem() { return static_cast<Pair*>(const_cast<void*>(InternalCurrentItem())); }
  const K* GetKey()
  {
    Pair* const pPair = CurrentItem();
    return pPair ? &pPair->_key : nullptr;
  }
  V* GetValue()
  {
    Pair* const pPair = CurrentItem();
    return pPair ? &pPair->_value : nullptr;
  }
};

template <class K, class V, auto Hasher, auto Comparator>
int ZELSYPHashMap<K, V, Hasher, Comparator>::Set(const K& i_key, const V& i_value)
{
  const int hash = Hasher(i_key);
  void* const pPresent = _table.LocateHashed(hash, HasKey(i_key));
  if (!pPresent)
    return Add(hash, i_key, i_value);
  static_cast<Pair*>(pPresent)->_value = i_value;
  return 0;
}

template <class K, class V, auto Hasher, auto Comparator>
int ZELSYPHashMap<K, V, Hasher, Comparator>::Add(int i_hash, const K& i_key, const V& i_value)
{
  Pair* const pPair = MakePair(i_key, i_value);
  if (pPair && _table.InsertHashed(i_hash, pPair))
    return 1;
  if (pPair)
  {
    DestroyPair(pPair);
    _pairs.GiveBack(pPair);
  }
  CheckFailure__("Failed to add the element", __FILE_NAME__, __LINE__, nullptr);
  return -1;
}

// Null: no memory.
template <class K, class V, auto Hasher, auto Comparator>
typename ZELSYPHashMap<K, V, Hasher, Comparator>::Pair* ZELSYPHashMap<K, V, Hasher, Comparator>::MakePair(const K& i_key, const V& i_value)
{
  void* const pMemory = _pairs.Take(static_cast<std::size_t>(GetSize()));
  try
  {
    return pMemory ? ::new (pMemory) Pair{i_key, i_value} : nullptr;
  }
  catch (...)
  {
    _pairs.GiveBack(pMemory);
    throw;
  }
}

template <class K, class V, auto Hasher, auto Comparator>
inline const V* ZELSYPHashMap<K, V, Hasher, Comparator>::Locate(const K& i_key) const
{
  const void* const pPair = _table.LocateHashed(Hasher(i_key), HasKey(i_key));
  return pPair ? &AsPair(pPair)->_value : nullptr;
}

template <class K, class V, auto Hasher, auto Comparator>
int ZELSYPHashMap<K, V, Hasher, Comparator>::Remove(const K& i_key)
{
  void* const pPair = _table.RemoveHashed(Hasher(i_key), HasKey(i_key));
  if (!pPair)
    return 0;
  DestroyPair(pPair);
  _pairs.GiveBack(pPair);
  return 1;
}

template <class K, class V, auto Hasher, auto Comparator>
void ZELSYPHashMap<K, V, Hasher, Comparator>::RemoveAll()
{
  for (int position = 0; position < _table.Size(); ++position)
    DestroyPair(_table.Get(position));
  _table.RemoveAll();
  _pairs.ReleaseAll();
}

template <class K, class V, auto Hasher, auto Comparator>
int ZELSYPHashMap<K, V, Hasher, Comparator>::HashPair(const void* i_elem)
{
  return ZELSYP_CHECK_POINTER(i_elem) ? Hasher(AsPair(i_elem)->_key) : 0;
}

template <class K, class V, auto Hasher, auto Comparator>
int ZELSYPHashMap<K, V, Hasher, Comparator>::ComparePairs(const void* i_elem1, const void* i_elem2)
{
  if (!ZELSYP_CHECK_POINTER(i_elem1) || !ZELSYP_CHECK_POINTER(i_elem2))
    return 0;
  return Comparator(AsPair(i_elem1)->_key, AsPair(i_elem2)->_key);
}

template <class K, class V, auto Hasher, auto Comparator>
void ZELSYPHashMap<K, V, Hasher, Comparator>::DestroyPair(void* i_pPair)
{
  if (i_pPair)
    static_cast<Pair*>(i_pPair)->~Pair();
  else
    CheckFailure__("NULL pair?", __FILE_NAME__, __LINE__, nullptr);
}

#endif
