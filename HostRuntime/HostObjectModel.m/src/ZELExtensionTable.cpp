#include "ZELExtension.h"

#include <mutex>
#include <unordered_map>
#include <vector>

namespace
{
// Beside the objects, so that an object without extensions pays one byte for them.
struct Table
{
  std::mutex _lock;
  std::unordered_map<const ZELBaseUnknown*, std::vector<ZELBaseUnknown*>> _extensions;
};

// Never destroyed: objects may go after everything else.
Table& GetTable()
{
  static Table& table = *new Table;
  return table;
}
} // namespace

void ZELExtensionTable::Attach(ZELBaseUnknown& io_owner, ZELBaseUnknown& io_extension)
{
  Table& table = GetTable();
  const std::lock_guard<std::mutex> lock(table._lock);
  table._extensions[&io_owner].push_back(&io_extension);
  for (int further = io_extension._count.Get(); further > 1; --further)
    io_owner.AddRef();
  io_extension._isExtension = true;
  io_owner._hasExtensions.store(true, std::memory_order_release);
}

// Null when there is none left.
ZELBaseUnknown* ZELExtensionTable::TakeLast(ZELBaseUnknown& io_owner)
{
  Table& table = GetTable();
  const std::lock_guard<std::mutex> lock(table._lock);
  const auto found = table._extensions.find(&io_owner);
  if (found == table._extensions.end() || found->second.empty())
    return nullptr;
  ZELBaseUnknown* const pLast = found->second.back();
  found->second.pop_back();
  if (found->second.empty())
    table._extensions.erase(found);
  return pLast;
}

int ZELExtensionTable::Offers(ZELBaseUnknown& i_owner, const ZELIID& i_id, void** o_ppFound)
{
  Table& table = GetTable();
  const std::lock_guard<std::mutex> lock(table._lock);
  const auto found = table._extensions.find(&i_owner);
  if (found == table._extensions.end())
    return 0;
  for (ZELBaseUnknown* pExtension : found->second)
    if (pExtension->OffersByClass(i_id, o_ppFound))
      return 1;
  return 0;
}
