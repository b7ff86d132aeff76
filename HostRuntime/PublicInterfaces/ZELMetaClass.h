// ZELMetaClass: what is known at run time about a class of objects: its name, its id, its base.
// ZELMetaClass* pClass = ZELMetaClass::Find("ZELCommand"); if (pObject->IsAKindOf(pClass)) ...
//
// A record is made by ZELImplementClass (ZELBaseUnknown.h), is registered when its library is loaded, and lives for ever:
// a library that holds one is never unloaded. Every operation may be called on any thread, at any time, also before main()
// and after it. Nothing throws but for want of memory.
#ifndef ZELMetaClass_H
#define ZELMetaClass_H

#include "OPXHostRuntimeExport.h"
#include "ZELClassId.h"

class ZELBaseUnknown;

class OPXHOSTRUNTIME_EXPORT ZELMetaClass
{
public:
  // For ZELImplementClass only. The texts must live for ever; i_base is null for the root class.
  constexpr ZELMetaClass(const char* i_pName, const char* i_pModule, const ZELClassId& i_id, ZELMetaClass* (*i_base)(),
                         void* (*i_cast)(ZELBaseUnknown*), ZELBaseUnknown* (*i_create)())
      : _pName(i_pName), _pModule(i_pModule), _id(i_id), _base(i_base), _cast(i_cast), _create(i_create)
  {
  }
  ZELMetaClass(const ZELMetaClass&) = delete;
  ZELMetaClass& operator=(const ZELMetaClass&) = delete;

  // The registered class of that name or id; null when there is none, and for a null name.
  static ZELMetaClass* Find(const char* i_pName);
  static ZELMetaClass* Find(const ZELClassId& i_id);

  const char* GetName() const { return _pName; }
  const char* GetModule() const { return _pModule; }
  const ZELClassId& GetClassId() const { return _id; }
  // Null for the root class.
  ZELMetaClass* GetBaseClass() const
  {
    EnsureLinked();
    return _pBase;
  }

  // 1 when this class is i_pOther or comes from it, else 0; 0 for null. Constant time.
  int IsAKindOf(const ZELMetaClass* i_pOther) const
  {
    if (!i_pOther)
      return 0;
    EnsureLinked();
    i_pOther->EnsureLinked();
    return i_pOther->_depth <= _depth && _pAncestors[i_pOther->_depth] == i_pOther;
  }
  // The same by name, for classes that the caller cannot name otherwise; the time grows with the depth.
  int IsAKindOf(const char* i_pName) const;

  // A new object, whose first reference the caller holds; null unless the class is creatable.
  ZELBaseUnknown* CreateObject() const { return _create(); }
  // i_pObject, which must be a kind of this class, as a pointer to this class.
  void* Cast(ZELBaseUnknown* i_pObject) const { return _cast(i_pObject); }

private:
  friend class ZELMetaClassRegistrar;
  // Registrars run before every other initialiser of their library, so this is false but for code that runs before them.
  void EnsureLinked() const
  {
    if (__builtin_expect(_depth < 0, false))
      Link();
  }
  void Link() const;
  void Register();

  const char* _pName;
  const char* _pModule;
  ZELClassId _id;
  ZELMetaClass* (*_base)();
  void* (*_cast)(ZELBaseUnknown*);
  ZELBaseUnknown* (*_create)();
  // Known once linked: the base, the classes from the root to this one, and how far this one stands from the root.
  mutable ZELMetaClass* _pBase = nullptr;
  mutable const ZELMetaClass** _pAncestors = nullptr;
  mutable int _depth = -1;
};

// Registers a record when the library that holds it is loaded. For ZELImplementClass only.
class OPXHOSTRUNTIME_EXPORT ZELMetaClassRegistrar
{
public:
  explicit ZELMetaClassRegistrar(ZELMetaClass& io_record);
};

#endif
