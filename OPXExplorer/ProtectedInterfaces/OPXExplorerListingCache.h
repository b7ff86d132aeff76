// OPXExplorerListingCache: the listings of the directories that were asked for last, each read again once it changed.
// std::shared_ptr<OPXExplorerListing> pListing = cache.GetListing(directory);
#ifndef OPXExplorerListingCache_H
#define OPXExplorerListingCache_H

#include "OPXExplorerListing.h"
#include "ZELSysRootedDirectory.h"

#include <cstdint>
#include <list>
#include <memory>

class OPXExplorerListingCache
{
public:
  // From here on each directory is looked at anew. Until it is called first, each time that one is asked for.
  void StartMessage() noexcept { ++_message; }
  // The listing remembered, while the directory is unchanged, else a new one. A directory that changed within the last
  // moment is read again, since its times may not tell of a change that follows at once. Within one message a directory is
  // looked at once: however often a line asks for it, it costs one reading. Throws as the listing does.
  std::shared_ptr<OPXExplorerListing> GetListing(const ZELSysRootedDirectory& i_directory);

private:
  struct Slot
  {
    ZELSysRootedDirectory::Stamp stamp;
    std::shared_ptr<OPXExplorerListing> pListing;
    // In which it was looked at last.
    std::uint64_t message;
  };

  bool IsLookedAt(const Slot& i_slot) const { return _message != 0 && i_slot.message == _message; }

  void Forget();

  // The one asked for last comes first.
  std::list<Slot> _slots;
  std::uint64_t _message = 0;
};

#endif
