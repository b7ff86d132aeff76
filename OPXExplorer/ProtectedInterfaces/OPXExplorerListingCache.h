// OPXExplorerListingCache: the listings of the directories that were asked for last, each read again once it changed.
// std::shared_ptr<OPXExplorerListing> pListing = cache.GetListing(directory);
#ifndef OPXExplorerListingCache_H
#define OPXExplorerListingCache_H

#include "OPXExplorerListing.h"
#include "ZELSysRootedDirectory.h"

#include <list>
#include <memory>

class OPXExplorerListingCache
{
public:
  // The listing remembered, while the directory is unchanged, else a new one. A directory that changed within the last
  // moment is read again, since its times may not tell of a change that follows at once. Throws as the listing does.
  std::shared_ptr<OPXExplorerListing> GetListing(const ZELSysRootedDirectory& i_directory);

private:
  struct Slot
  {
    ZELSysRootedDirectory::Stamp stamp;
    std::shared_ptr<OPXExplorerListing> pListing;
  };

  void Forget();

  // The one asked for last comes first.
  std::list<Slot> _slots;
};

#endif
