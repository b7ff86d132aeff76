// OPXExplorerListing: all entries of one directory as they were when it was read, and the orders asked of them.
// OPXExplorerListing listing(directory); auto first = listing.GetEntry(listing.GetOrder(sort, directory, true)[0]);
#ifndef OPXExplorerListing_H
#define OPXExplorerListing_H

#include "ZELSYPDataSourceParameters.h"
#include "ZELSysRootedDirectory.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class OPXExplorerListing
{
public:
  using SortModel = std::vector<ZELSYPDataSourceParameters::SortAttributeModel>;
  // Positions of entries, in the order asked.
  using Order = std::vector<std::uint32_t>;

  struct Entry
  {
    std::string_view name;
    ZELSysRootedDirectory::Kind kind;
  };

  // Reads names and kinds. Throws std::runtime_error when the directory cannot be read to its end.
  explicit OPXExplorerListing(const ZELSysRootedDirectory& i_directory);

  std::size_t GetCount() const noexcept { return _entries.size(); }
  // Valid while the listing lives.
  Entry GetEntry(std::uint32_t i_position) const;

  // What was asked of the directory so far is to be asked again.
  void Outdate() noexcept { _isOutdated = true; }
  // Directories first; then by the entries of the sort model in turn ("id", "name", "kind", "size", "modified";
  // others do not count), and at last by natural order of the names, which alone holds without a sort model. The last
  // order is remembered and valid until the next call. Sizes and times are asked of the directory, again when
  // i_isRefreshed and they are outdated, so that the blocks of one walk through the rows fit together.
  const Order& GetOrder(const SortModel& i_sortModel, const ZELSysRootedDirectory& i_directory, bool i_isRefreshed);

private:
  struct StoredName
  {
    std::size_t start;
    std::uint16_t length;
    std::uint8_t kind;
  };
  // One number an entry: entries are in order when their numbers are.
  using Column = std::vector<std::uint64_t>;

  using Details = std::vector<ZELSysRootedDirectory::Details>;

  void SortNaturally();
  bool IsDirectory(std::uint32_t i_position) const { return _entries[i_position].kind == ZELSysRootedDirectory::Directory; }
  Details ReadDetails(const ZELSysRootedDirectory& i_directory) const;
  // i_details is read for columns of sizes and times only.
  Column MakeColumn(const ZELSYPDataSourceParameters::SortAttributeModel& i_sort, const Details& i_details) const;
  Column MakeAscendingColumn(const std::string& i_name, const Details& i_details) const;
  Column MakeNameColumn() const;
  Column MakeKindColumn() const;
  Order Sort(const std::vector<Column>& i_columns) const;

  std::string _names;
  std::vector<StoredName> _entries;
  Order _naturalOrder;
  SortModel _sortModel;
  Order _order;
  bool _isOutdated = false;
};

#endif
