#include "ZELMetaClass.h"

#include "LoadedLibrary.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <mutex>
#include <string_view>
#include <unordered_map>

namespace
{
struct Registry
{
  std::mutex _lock;
  std::unordered_map<std::string_view, ZELMetaClass*> _byName;
  std::map<ZELClassId, ZELMetaClass*> _byId;
};

// Never destroyed: classes are looked up until the process has ended.
Registry& GetRegistry()
{
  static Registry& registry = *new Registry;
  return registry;
}

template <class Map, class Key>
ZELMetaClass* FindIn(Map Registry::*i_map, const Key& i_key)
{
  Registry& registry = GetRegistry();
  const std::lock_guard<std::mutex> lock(registry._lock);
  const auto found = (registry.*i_map).find(i_key);
  return found == (registry.*i_map).end() ? nullptr : found->second;
}

void ReportSecond(const ZELMetaClass& i_second, const ZELMetaClass& i_first, const char* i_pWhat)
{
  std::fprintf(stderr, "** Class %s of module %s has the %s of class %s of module %s, which is registered already and stays\n",
               i_second.GetName(), i_second.GetModule(), i_pWhat, i_first.GetName(), i_first.GetModule());
}
} // namespace

ZELMetaClass* ZELMetaClass::Find(const char* i_pName)
{
  return i_pName ? FindIn(&Registry::_byName, std::string_view(i_pName)) : nullptr;
}

ZELMetaClass* ZELMetaClass::Find(const ZELClassId& i_id)
{
  return FindIn(&Registry::_byId, i_id);
}

int ZELMetaClass::IsAKindOf(const char* i_pName) const
{
  const ZELMetaClass* pClass = i_pName ? this : nullptr;
  while (pClass && std::strcmp(pClass->_pName, i_pName) != 0)
    pClass = pClass->GetBaseClass();
  return pClass != nullptr;
}

void ZELMetaClass::Link() const
{
  ZELMetaClass* const pBase = _base ? _base() : nullptr;
  if (pBase)
    pBase->EnsureLinked();
  const int depth = pBase ? pBase->_depth + 1 : 0;
  const auto count = static_cast<std::size_t>(depth);
  const ZELMetaClass** const pAncestors = new const ZELMetaClass*[count + 1];
  if (pBase)
    std::copy_n(pBase->_pAncestors, count, pAncestors);
  pAncestors[count] = this;
  _pBase = pBase;
  _pAncestors = pAncestors;
  _depth = depth;
}

void ZELMetaClass::Register()
{
  Registry& registry = GetRegistry();
  const std::lock_guard<std::mutex> lock(registry._lock);
  const auto [named, isNewName] = registry._byName.emplace(_pName, this);
  if (!isNewName)
    return ReportSecond(*this, *named->second, "name");
  const auto [identified, isNewId] = registry._byId.emplace(_id, this);
  if (!isNewId)
    ReportSecond(*this, *identified->second, "id");
}

ZELMetaClassRegistrar::ZELMetaClassRegistrar(ZELMetaClass& io_record)
{
  LoadedLibrary::KeepWhatHolds(&io_record);
  io_record.EnsureLinked();
  io_record.Register();
}
