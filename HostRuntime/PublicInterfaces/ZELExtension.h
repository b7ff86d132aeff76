// ZELExtension<Interface>: the base of an object that offers Interface on behalf of another object, its owner.
// class PartDump : public ZELExtension<Dump> { ... };     ZELAttachExtension<PartDump>(pPart, "what its constructor takes");
//
// Owner and extension are one object for everyone else: they share one count of references, a query on either finds what
// the other offers, and IsEqual holds between them. So whoever holds a reference on the extension keeps the owner alive; the
// owner keeps its extensions, and takes them along when it goes.
#ifndef ZELExtension_H
#define ZELExtension_H

#include "ZELHandle.h"

#include <utility>

template <class Interface>
class ZELExtension : public Interface
{
public:
  using Interface::Interface;

  // What is left, the interface, counts alone.
  ~ZELExtension() override { ZELBaseUnknown::_isExtension = false; }

  ZELBaseUnknown* GetImpl(int i_which = 0) override { return i_which == 0 && _pOwner ? _pOwner : Interface::GetImpl(i_which); }

private:
  template <class Extension, class... Arguments>
  friend Extension* ZELAttachExtension(ZELBaseUnknown* i_pOwner, Arguments&&... i_arguments);

  ZELBaseUnknown* _pOwner = nullptr;
};

// Which objects extend which. For ZELAttachExtension only.
class OPXHOSTRUNTIME_EXPORT ZELExtensionTable
{
public:
  // io_owner takes over the maker's reference on io_extension; further ones become references on io_owner.
  static void Attach(ZELBaseUnknown& io_owner, ZELBaseUnknown& io_extension);

private:
  friend class ZELBaseUnknown;
  static ZELBaseUnknown* TakeLast(ZELBaseUnknown& io_owner);
  static int Offers(ZELBaseUnknown& i_owner, const ZELIID& i_id, void** o_ppFound);
};

// A new Extension, made with i_arguments, that extends i_pOwner (or the owner of that, when it is an extension itself). What
// the object offers already by its class or by an earlier extension is found first. Answers the extension with no reference
// added; null for a null owner. The extension is destroyed before its owner, the last one attached first; an owner that is
// not counted, on the stack, has lost its derived parts by then. Any thread that holds a reference on the owner.
template <class Extension, class... Arguments>
Extension* ZELAttachExtension(ZELBaseUnknown* i_pOwner, Arguments&&... i_arguments)
{
  if (!i_pOwner)
    return nullptr;
  ZELBaseUnknown* const pOwner = i_pOwner->GetImpl(0);
  auto extension = ZELHandle<Extension>::Adopt(new Extension(std::forward<Arguments>(i_arguments)...));
  extension->_pOwner = pOwner;
  ZELExtensionTable::Attach(*pOwner, *extension);
  return extension.Detach();
}

#endif
