#include "OPXExplorerListingCache.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace
{
// A view shows a few directories at a time; what it holds stays small beside one large directory.
constexpr std::size_t maxSlots = 16;
constexpr std::size_t maxEntries = 1000000;
} // namespace

std::shared_ptr<OPXExplorerListing> OPXExplorerListingCache::GetListing(const ZELSysRootedDirectory& i_directory)
{
  // Before the reading: what changes meanwhile makes the listing outdated at once.
  const ZELSysRootedDirectory::Stamp stamp = i_directory.GetStamp();
  const auto known =
      std::find_if(_slots.begin(), _slots.end(), [&stamp](const Slot& i_slot) { return i_slot.stamp.IsSameDirectory(stamp); });
  if (known != _slots.end() && (IsLookedAt(*known) || (known->stamp.isSettled && known->stamp.IsSameContent(stamp))))
  {
    _slots.splice(_slots.begin(), _slots, known);
    if (!IsLookedAt(*known))
      known->pListing->Outdate();
    known->message = _message;
    return known->pListing;
  }
  if (known != _slots.end())
    _slots.erase(known);
  _slots.push_front({stamp, std::make_shared<OPXExplorerListing>(i_directory), _message});
  Forget();
  return _slots.front().pListing;
}

void OPXExplorerListingCache::Forget()
{
  std::size_t slots = 0;
  std::size_t entries = 0;
  const auto isKept = [&](const Slot& i_slot)
  {
    entries += i_slot.pListing->GetCount();
    return ++slots == 1 || (slots <= maxSlots && entries <= maxEntries);
  };
  _slots.erase(std::find_if_not(_slots.begin(), _slots.end(), isKept), _slots.end());
}
