// ZELBaseUnknown: the base of all counted objects, which know their class and answer for the interfaces they offer.
// class Part : public ZELBaseUnknown { ZELDeclareClass; ... };     in one source: ZELImplementClass(Part, ZELBaseUnknown, MyModule);
//
// Whoever makes an object holds its first reference and gives it back with Release. An object may also stand on the stack,
// where nobody may release it to 0. Counting may be done on any thread. 16 bytes.
#ifndef ZELBaseUnknown_H
#define ZELBaseUnknown_H

#include "OPXHostRuntimeExport.h"
#include "ZELAtomicCounter.h"
#include "ZELClassId.h"
#include "ZELMetaClass.h"

#include <atomic>
#include <type_traits>

// In the body of a class, which goes on with public members. As with all macros here, a semicolon must follow.
#define ZELDeclareClass                                                                                                                    \
public:                                                                                                                                    \
  [[maybe_unused]] static const char* ClassName();                                                                                         \
  [[maybe_unused]] static const ZELClassId& ClassId();                                                                                     \
  [[maybe_unused]] static ZELMetaClass* MetaObject();                                                                                      \
  [[maybe_unused]] static ZELBaseUnknown* CreateItself();                                                                                  \
  [[maybe_unused]] ZELMetaClass* GetMetaObject() const override

// In the body of an interface: a class of pure operations whose id is given in ZELImplementInterface. Its handle is named
// after it, before the class or after it:     using Shape_var = ZELHandle<Shape>;
#define ZELDeclareInterface ZELDeclareClass
template <class T>
class ZELHandle;

class OPXHOSTRUNTIME_EXPORT ZELBaseUnknown
{
public:
  ZELBaseUnknown() noexcept = default;
  ZELBaseUnknown(const ZELBaseUnknown&) = delete;
  ZELBaseUnknown& operator=(const ZELBaseUnknown&) = delete;
  virtual ~ZELBaseUnknown()
  {
    if (HasExtensions())
      DestroyExtensions();
  }

  // One reference more. Answers the count that stands then.
  int AddRef() { return __builtin_expect(_isExtension, false) ? AddRefOwner() : _count.Increment(); }
  // Gives a reference back; the last one deletes the object. Answers the count that is left.
  int Release()
  {
    if (__builtin_expect(_isExtension, false))
      return ReleaseOwner();
    const int left = _count.Decrement();
    if (left == 0)
      Destroy();
    return left;
  }

  // 1: *o_ppFound is the object as the class or interface of that id, with a reference added, which the caller gives back.
  // 0: it does not offer it, and *o_ppFound is null; also for a null o_ppFound.
  virtual int QueryInterface(const ZELIID& i_id, void** o_ppFound);
  // For 0 the object that this one belongs to: its owner when it is an extension, else itself. No reference is added. Null
  // for every other number.
  virtual ZELBaseUnknown* GetImpl(int i_which = 0);
  // 1 when both belong to the same object, else 0; 0 for null.
  int IsEqual(const ZELBaseUnknown* i_pOther) const;

  // The name of the object's class, its record, and whether it is a kind of another class (1 or 0; 0 for null).
  virtual const char* IsA() const;
  virtual ZELMetaClass* GetMetaObject() const;
  virtual int IsAKindOf(const char* i_pName) const;
  int IsAKindOf(const ZELMetaClass* i_pClass) const { return GetMetaObject()->IsAKindOf(i_pClass); }

  // The same for a class, without an object. CreateItself makes one, and answers null unless the class is creatable.
  static const char* ClassName();
  static const ZELClassId& ClassId();
  static ZELMetaClass* MetaObject();
  static ZELBaseUnknown* CreateItself();

private:
  friend class ZELExtensionTable;
  template <class Interface>
  friend class ZELExtension;
  int AddRefOwner();
  int ReleaseOwner();
  void Destroy();
  bool HasExtensions() const { return __builtin_expect(_hasExtensions.load(std::memory_order_acquire), false); }
  void DestroyExtensions();
  int Offers(const ZELIID& i_id, void** o_ppFound);
  int OffersByClass(const ZELIID& i_id, void** o_ppFound);

  ZELAtomicCounter _count{1};
  bool _isExtension = false;
  std::atomic<bool> _hasExtensions{false};
};

// Whether the class is declared with ZELDeclareClass itself, and not its base only.
template <class Class>
inline constexpr bool ZELHasRecord_ = std::is_same_v<decltype(&Class::GetMetaObject), ZELMetaClass* (Class::*)() const>;

// For the macros below: what must hold for a class to have a record. Answers true, or does not compile.
template <class Class, class Base>
constexpr bool ZELCheckClass_()
{
  static_assert(std::is_base_of_v<Base, Class>, "the class does not derive from the base that is named for it");
  static_assert(ZELHasRecord_<Base>, "the base of the class is not declared with ZELDeclareClass");
  static_assert(std::is_convertible_v<Class*, ZELBaseUnknown*>,
                "the class derives from ZELBaseUnknown twice: offer the second interface by an extension");
  return true;
}

// The arguments below are names, which stand in no parentheses. NOLINTBEGIN(bugprone-macro-parentheses)

// The record is a constant that needs no initialiser, so that it is there before main() begins and after it has ended. The
// registrar comes last, without its semicolon: a use that forgets it does not compile.
#define ZELImplementRecord_(Name, Class, Module, Id, BaseRecord, Create)                                                                   \
  static ZELMetaClass ZELRecord##Name(                                                                                                     \
      #Class, #Module, Id, BaseRecord, [](ZELBaseUnknown* i_pObject) -> void* { return static_cast<Class*>(i_pObject); },                  \
      []() -> ZELBaseUnknown* { return Class::CreateItself(); });                                                                          \
  const char* Class::ClassName()                                                                                                           \
  {                                                                                                                                        \
    return #Class;                                                                                                                         \
  }                                                                                                                                        \
  const ZELClassId& Class::ClassId()                                                                                                       \
  {                                                                                                                                        \
    return ZELRecord##Name.GetClassId();                                                                                                   \
  }                                                                                                                                        \
  ZELMetaClass* Class::MetaObject()                                                                                                        \
  {                                                                                                                                        \
    return &ZELRecord##Name;                                                                                                               \
  }                                                                                                                                        \
  ZELMetaClass* Class::GetMetaObject() const                                                                                               \
  {                                                                                                                                        \
    return &ZELRecord##Name;                                                                                                               \
  }                                                                                                                                        \
  ZELBaseUnknown* Class::CreateItself()                                                                                                    \
  {                                                                                                                                        \
    return Create;                                                                                                                         \
  }                                                                                                                                        \
  __attribute__((init_priority(101))) static ZELMetaClassRegistrar ZELRegistrar##Name(ZELRecord##Name)
#define ZELImplementDerived_(Line, Class, Base, Module, Id, Create)                                                                        \
  static_assert(ZELCheckClass_<Class, Base>());                                                                                            \
  ZELImplementRecord_(                                                                                                                     \
      Line, Class, Module, Id, []() -> ZELMetaClass* { return Base::MetaObject(); }, Create)

// In one source of the class's library, Module being its name without quotes: the class is never made by its name,
#define ZELImplementClass(Class, Base, Module) ZELImplementDerived_(__LINE__, Class, Base, Module, ZELClassId::FromName(#Class), nullptr)
// or it is, with its default constructor,
#define ZELImplementCreatableClass(Class, Base, Module)                                                                                    \
  ZELImplementDerived_(__LINE__, Class, Base, Module, ZELClassId::FromName(#Class), new Class)
// or it is an interface, with the id that names it (a ZELIID that is no null id) and the handle that is named after it.
#define ZELImplementInterface(Class, Base, Module, Id)                                                                                     \
  static_assert(!(Id).IsNull(), "the id of the interface is no id");                                                                       \
  static_assert(std::is_same_v<Class##_var, ZELHandle<Class>>, "the name that ends in _var is not the handle of the interface");           \
  ZELImplementDerived_(__LINE__, Class, Base, Module, Id, nullptr)

// NOLINTEND(bugprone-macro-parentheses)

#endif
