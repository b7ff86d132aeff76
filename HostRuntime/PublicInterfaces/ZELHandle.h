// ZELHandle<T>: a pointer to a counted object that holds one reference on it.
// ZELHandle<Part> part = ZELHandle<Part>::Adopt(new Part); ZELHandle<Shape> shape(part);     null unless a part offers Shape
//
// The handle of an interface has a name: using Shape_var = ZELHandle<Shape>;
// One pointer in size. One thread at a time a handle; the object may be held by handles of many threads.
#ifndef ZELHandle_H
#define ZELHandle_H

#include "ZELBaseUnknown.h"
#include "ZELTravelsAsBytes.h"

#include <cstddef>
#include <type_traits>
#include <utility>

template <class T>
class ZELHandle
{
public:
  ZELHandle() noexcept = default;
  ZELHandle(std::nullptr_t) noexcept {}
  // Adds a reference; null gives a null handle.
  ZELHandle(T* i_pObject) noexcept : _pObject(i_pObject)
  {
    if (_pObject)
      _pObject->AddRef();
  }
  ZELHandle(const ZELHandle& i_other) noexcept : ZELHandle(i_other._pObject) {}
  ZELHandle(ZELHandle&& io_other) noexcept : _pObject(io_other.Detach()) {}
  // What i_pObject offers as T, null when it does not: asks QueryInterface. T must have a record of its own.
  template <class U, std::enable_if_t<!std::is_convertible_v<U*, T*> && std::is_convertible_v<U*, ZELBaseUnknown*>, int> = 0>
  explicit ZELHandle(U* i_pObject) : _pObject(Query(i_pObject))
  {
  }
  // From a handle of another class: the same object when every U is a T, else what it offers as T.
  template <class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
  ZELHandle(const ZELHandle<U>& i_other) noexcept : ZELHandle(static_cast<T*>(i_other.Get()))
  {
  }
  template <class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
  ZELHandle(ZELHandle<U>&& io_other) noexcept : _pObject(io_other.Detach())
  {
  }
  template <class U, std::enable_if_t<!std::is_convertible_v<U*, T*>, int> = 0>
  explicit ZELHandle(const ZELHandle<U>& i_other) : _pObject(Query(i_other.Get()))
  {
  }
  // The reference held before is given back last.
  ZELHandle& operator=(ZELHandle i_other) noexcept
  {
    std::swap(_pObject, i_other._pObject);
    return *this;
  }
  ~ZELHandle()
  {
    if (_pObject)
      _pObject->Release();
  }

  // Takes over a reference that the caller holds.
  static ZELHandle Adopt(T* i_pObject) noexcept
  {
    ZELHandle handle;
    handle._pObject = i_pObject;
    return handle;
  }
  // Hands the reference over to the caller, who must give it back; the handle is null then.
  T* Detach() noexcept { return std::exchange(_pObject, nullptr); }

  // The object, with no reference added.
  T* Get() const noexcept { return _pObject; }
  operator T*() const noexcept { return _pObject; }
  T* operator->() const noexcept { return _pObject; }
  T& operator*() const noexcept { return *_pObject; }
  explicit operator bool() const noexcept { return _pObject != nullptr; }

private:
  static T* Query(ZELBaseUnknown* i_pObject)
  {
    static_assert(ZELHasRecord_<T>, "the class that is asked for is not declared with ZELDeclareClass");
    void* pFound = nullptr;
    if (i_pObject)
      i_pObject->QueryInterface(T::ClassId(), &pFound);
    return static_cast<T*>(pFound);
  }

  T* _pObject = nullptr;
};

template <class T>
struct ZELTravelsAsBytes<ZELHandle<T>> : std::true_type
{
};

#endif
