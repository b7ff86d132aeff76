// Kitchen: the classes that the tests of the object model work with.
// Thing <- Cup (creatable) <- Mug; Washable and Breakable are interfaces; Plate offers Washable by its class.
#ifndef Kitchen_H
#define Kitchen_H

#include "ZELBaseUnknown.h"
#include "ZELBaseUnknown_var.h"

inline constexpr ZELIID IID_Washable = ZELClassId::FromText("0C9F2E4A-6B1D-4E57-9A3B-5D7711C0FFEE");
inline constexpr ZELIID IID_Breakable = ZELClassId::FromText("24DD46D8-3B23-411E-8D07-05B93DD9E437");

class Thing : public ZELBaseUnknown
{
  ZELDeclareClass;
  // Counts into io_pDeaths, when given, what became of it.
  explicit Thing(int* io_pDeaths = nullptr) : _pDeaths(io_pDeaths) {}
  ~Thing() override
  {
    if (_pDeaths)
      ++*_pDeaths;
  }

private:
  int* const _pDeaths;
};

class Cup : public Thing
{
  ZELDeclareClass;
  using Thing::Thing;
};

class Mug : public Cup
{
  ZELDeclareClass;
};

class Washable : public ZELBaseUnknown
{
  ZELDeclareInterface;
  virtual int Wash() = 0;
};
using Washable_var = ZELHandle<Washable>;

class Breakable : public ZELBaseUnknown
{
  ZELDeclareInterface;
  virtual int Break() = 0;
};
using Breakable_var = ZELHandle<Breakable>;

// What comes first makes an object and its counted part begin at different addresses.
struct Glaze
{
  long _thickness = 3;
};
class Plate : public Glaze, public Washable
{
  ZELDeclareClass;
  int Wash() override { return 1; }
};

// The count that stands, as AddRef and Release tell it.
inline int CountOf(ZELBaseUnknown* i_pObject)
{
  i_pObject->AddRef();
  return i_pObject->Release();
}

#endif
