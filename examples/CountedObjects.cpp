// An object with a class record, an interface that an extension adds to it, and a tree of commands.
#include "ZELBaseUnknown_var.h"
#include "ZELCommand.h"
#include "ZELExtension.h"
#include "ZELSysDynamicCast.h"

#include <cstdio>

inline constexpr ZELIID IID_Priced = ZELClassId::FromText("6B0B5B2E-3D0A-4F61-8C6E-0F4B7C1D2E9A");

class Priced : public ZELBaseUnknown
{
  ZELDeclareInterface;
  virtual int GetPrice() = 0;
};
using Priced_var = ZELHandle<Priced>;

class Part : public ZELBaseUnknown
{
  ZELDeclareClass;
};

ZELImplementInterface(Priced, ZELBaseUnknown, CountedObjects, IID_Priced);
ZELImplementCreatableClass(Part, ZELBaseUnknown, CountedObjects);

class PartPrice : public ZELExtension<Priced>
{
public:
  explicit PartPrice(int i_price) : _price(i_price) {}
  int GetPrice() override { return _price; }

private:
  const int _price;
};

static void PrintTree(const ZELCommand& i_command, int i_depth)
{
  std::printf("%*s%s\n", 2 * i_depth, "", i_command.GetName().GetText());
  for (const ZELCommand* pChild = i_command.GetFirstChild(); pChild; pChild = pChild->GetNextSibling())
    PrintTree(*pChild, i_depth + 1);
}

static bool OffersAPrice()
{
  auto part = ZELBaseUnknown_var::Adopt(ZELMetaClass::Find("Part")->CreateObject());
  const bool before = Priced_var(part) != NULL_var;
  ZELAttachExtension<PartPrice>(part, 12);
  Priced_var priced(part);
  part = NULL_var; // The price holds the part.
  std::printf("a %s costs %d\n", priced->GetImpl(0)->IsA(), priced->GetPrice());
  return !before && ZELSysDynamicCast<Part>(priced->GetImpl(0)) && ZELHandle<Part>(priced)->IsEqual(priced);
}

static bool StandsInATree()
{
  const auto menu = ZELHandle<ZELCommand>::Adopt(new ZELCommand(nullptr, "Menu"));
  const auto file = ZELHandle<ZELCommand>::Adopt(new ZELCommand(menu, "File"));
  (new ZELCommand(file, "Open"))->Release(); // Its father holds it.
  (new ZELCommand(menu, "Edit"))->Release();
  PrintTree(*menu, 0);
  return file->FindChild("Open")->GetFather() == file && !menu->SetFather(file);
}

int main()
{
  return OffersAPrice() && StandsInATree() ? 0 : 1;
}
