#include "ZELBaseUnknown.h"

#include "ZELExtension.h"

ZELImplementRecord_(OfRoot, ZELBaseUnknown, OPXHostRuntime, ZELClassId::FromName("ZELBaseUnknown"), nullptr, nullptr);

namespace
{
// What the count of an object stands at while it is destroyed: lending it out in its destructor does not end it twice.
constexpr int CountOfTheDying = 1 << 30;
} // namespace

int ZELBaseUnknown::AddRefOwner()
{
  return GetImpl(0)->AddRef();
}

int ZELBaseUnknown::ReleaseOwner()
{
  return GetImpl(0)->Release();
}

void ZELBaseUnknown::Destroy()
{
  _count.Set(CountOfTheDying);
  if (HasExtensions())
    DestroyExtensions();
  delete this;
}

void ZELBaseUnknown::DestroyExtensions()
{
  while (ZELBaseUnknown* const pExtension = ZELExtensionTable::TakeLast(*this))
    delete pExtension;
}

int ZELBaseUnknown::QueryInterface(const ZELIID& i_id, void** o_ppFound)
{
  if (!o_ppFound)
    return 0;
  *o_ppFound = nullptr;
  if (!GetImpl(0)->Offers(i_id, o_ppFound))
    return 0;
  AddRef();
  return 1;
}

int ZELBaseUnknown::Offers(const ZELIID& i_id, void** o_ppFound)
{
  if (OffersByClass(i_id, o_ppFound))
    return 1;
  return HasExtensions() && ZELExtensionTable::Offers(*this, i_id, o_ppFound);
}

int ZELBaseUnknown::OffersByClass(const ZELIID& i_id, void** o_ppFound)
{
  const ZELMetaClass* pClass = GetMetaObject();
  while (pClass && pClass->GetClassId() != i_id)
    pClass = pClass->GetBaseClass();
  if (pClass)
    *o_ppFound = pClass->Cast(this);
  return pClass != nullptr;
}

ZELBaseUnknown* ZELBaseUnknown::GetImpl(int i_which)
{
  return i_which == 0 ? this : nullptr;
}

int ZELBaseUnknown::IsEqual(const ZELBaseUnknown* i_pOther) const
{
  const auto ownerOf = [](const ZELBaseUnknown* i_pObject) { return const_cast<ZELBaseUnknown*>(i_pObject)->GetImpl(0); };
  return i_pOther && ownerOf(this) == ownerOf(i_pOther);
}

const char* ZELBaseUnknown::IsA() const
{
  return GetMetaObject()->GetName();
}

int ZELBaseUnknown::IsAKindOf(const char* i_pName) const
{
  return GetMetaObject()->IsAKindOf(i_pName);
}
