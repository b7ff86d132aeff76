#include "OPXExplorerListing.h"

#include "OPXExplorerNaturalOrder.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace
{
// Sorts texts by their bytes, eight at a time: most comparisons are of two numbers that lie side by side.
class TextSorter
{
public:
  using Order = OPXExplorerListing::Order;

  void Add(std::size_t i_start) { _starts.push_back(i_start); }
  std::string& GetTexts() { return _texts; }

  // i_isBefore decides between equal texts.
  template <class IsBefore>
  Order Sort(IsBefore i_isBefore)
  {
    std::vector<Item> items(_starts.size());
    for (std::size_t i = 0; i < items.size(); ++i)
      items[i].position = static_cast<std::uint32_t>(i);
    _starts.push_back(_texts.size());
    SortFrom(items.data(), items.data() + items.size(), 0, i_isBefore);
    Order order(items.size());
    std::transform(items.begin(), items.end(), order.begin(), [](const Item& i_item) { return i_item.position; });
    return order;
  }

private:
  struct Item
  {
    std::uint64_t part;
    std::uint32_t position;
  };

  // Eight bytes of the text as a number that compares as they do; zeros after its end.
  std::uint64_t GetPart(std::uint32_t i_position, std::size_t i_offset) const
  {
    const std::size_t start = std::min(_starts[i_position] + i_offset, _starts[i_position + 1]);
    const std::size_t count = std::min<std::size_t>(8, _starts[i_position + 1] - start);
    std::uint64_t part = 0;
    for (std::size_t i = 0; i < count; ++i)
      part |= static_cast<std::uint64_t>(static_cast<unsigned char>(_texts[start + i])) << (56 - 8 * i);
    return part;
  }

  template <class IsBefore>
  void SortFrom(Item* i_pBegin, Item* i_pEnd, std::size_t i_offset, IsBefore i_isBefore)
  {
    for (Item* pItem = i_pBegin; pItem != i_pEnd; ++pItem)
      pItem->part = GetPart(pItem->position, i_offset);
    std::sort(i_pBegin, i_pEnd, [](const Item& i_left, const Item& i_right) { return i_left.part < i_right.part; });
    while (i_pBegin != i_pEnd)
    {
      Item* const pRunEnd = std::find_if(i_pBegin, i_pEnd, [i_pBegin](const Item& i_item) { return i_item.part != i_pBegin->part; });
      if (pRunEnd - i_pBegin > 1)
        SortRun(i_pBegin, pRunEnd, i_offset, i_isBefore);
      i_pBegin = pRunEnd;
    }
  }

  // Texts hold no zero: equal parts that end with one are equal texts, the others go on.
  template <class IsBefore>
  void SortRun(Item* i_pBegin, Item* i_pEnd, std::size_t i_offset, IsBefore i_isBefore)
  {
    if ((i_pBegin->part & 0xFF) != 0)
      return SortFrom(i_pBegin, i_pEnd, i_offset + 8, i_isBefore);
    std::sort(i_pBegin, i_pEnd, [&](const Item& i_left, const Item& i_right) { return i_isBefore(i_left.position, i_right.position); });
  }

  std::string _texts;
  std::vector<std::size_t> _starts;
};

using SortEntry = ZELSYPDataSourceParameters::SortAttributeModel;

// The id is the name as far as order goes.
std::string GetColumnName(const SortEntry& i_sort)
{
  return i_sort.GetAttribute() == "id" ? "name" : i_sort.GetAttribute();
}

bool NeedsDetails(const SortEntry& i_sort)
{
  return i_sort.GetAttribute() == "size" || i_sort.GetAttribute() == "modified";
}

bool IsKnown(const SortEntry& i_sort)
{
  return NeedsDetails(i_sort) || i_sort.GetAttribute() == "kind" || GetColumnName(i_sort) == "name";
}

// Only the first entry of a column can tell rows apart, and unknown ones cannot: a long model costs no more than a short one.
OPXExplorerListing::SortModel Reduce(const OPXExplorerListing::SortModel& i_sortModel)
{
  OPXExplorerListing::SortModel reduced;
  for (const SortEntry& sort : i_sortModel)
  {
    const auto isSame = [&sort](const SortEntry& i_other) { return GetColumnName(i_other) == GetColumnName(sort); };
    if (IsKnown(sort) && std::none_of(reduced.begin(), reduced.end(), isSame))
      reduced.push_back(sort);
  }
  return reduced;
}
} // namespace

OPXExplorerListing::OPXExplorerListing(const ZELSysRootedDirectory& i_directory)
{
  const auto store = [this](std::string_view i_name, ZELSysRootedDirectory::Kind i_kind)
  {
    _entries.push_back({_names.size(), static_cast<std::uint16_t>(i_name.size()), static_cast<std::uint8_t>(i_kind)});
    _names += i_name;
  };
  if (!i_directory.ForEachEntry(store))
    throw std::runtime_error("a directory could not be read to its end");
  SortNaturally();
}

OPXExplorerListing::Entry OPXExplorerListing::GetEntry(std::uint32_t i_position) const
{
  const StoredName& entry = _entries[i_position];
  return {std::string_view(_names).substr(entry.start, entry.length), static_cast<ZELSysRootedDirectory::Kind>(entry.kind)};
}

void OPXExplorerListing::SortNaturally()
{
  TextSorter sorter;
  for (std::uint32_t i = 0; i < _entries.size(); ++i)
  {
    sorter.Add(sorter.GetTexts().size());
    sorter.GetTexts() += IsDirectory(i) ? '\1' : '\2';
    OPXExplorerNaturalOrder::AppendKey(GetEntry(i).name, sorter.GetTexts());
  }
  _naturalOrder =
      sorter.Sort([this](std::uint32_t i_left, std::uint32_t i_right) { return GetEntry(i_left).name < GetEntry(i_right).name; });
}

const OPXExplorerListing::Order& OPXExplorerListing::GetOrder(const SortModel& i_sortModel, const ZELSysRootedDirectory& i_directory,
                                                              bool i_isRefreshed)
{
  const SortModel sortModel = Reduce(i_sortModel);
  if (sortModel.empty())
    return _naturalOrder;
  const bool needsDetails = std::any_of(sortModel.begin(), sortModel.end(), NeedsDetails);
  if (sortModel == _sortModel && !(i_isRefreshed && _isOutdated && needsDetails))
    return _order;
  // Asked once for all columns: this is what an order takes its time for.
  const Details details = needsDetails ? ReadDetails(i_directory) : Details();
  std::vector<Column> columns;
  for (const SortEntry& sort : sortModel)
    columns.push_back(MakeColumn(sort, details));
  _order = Sort(columns);
  _sortModel = sortModel;
  _isOutdated = false;
  return _order;
}

// What has gone since it was listed counts as empty and old.
OPXExplorerListing::Details OPXExplorerListing::ReadDetails(const ZELSysRootedDirectory& i_directory) const
{
  Details details(_entries.size());
  for (std::uint32_t i = 0; i < details.size(); ++i)
    i_directory.GetDetails(GetEntry(i).name, details[i]);
  return details;
}

OPXExplorerListing::Column OPXExplorerListing::MakeColumn(const SortEntry& i_sort, const Details& i_details) const
{
  Column column = MakeAscendingColumn(GetColumnName(i_sort), i_details);
  if (i_sort.GetOrder() == SortEntry::Descending)
    for (std::uint64_t& number : column)
      number = ~number;
  return column;
}

OPXExplorerListing::Column OPXExplorerListing::MakeAscendingColumn(const std::string& i_name, const Details& i_details) const
{
  if (i_name == "name")
    return MakeNameColumn();
  if (i_name == "kind")
    return MakeKindColumn();
  Column column(i_details.size());
  const auto pDetail = i_name == "size" ? &ZELSysRootedDirectory::Details::size : &ZELSysRootedDirectory::Details::lastWriteTime;
  std::transform(i_details.begin(), i_details.end(), column.begin(), std::mem_fn(pDetail));
  return column;
}

OPXExplorerListing::Column OPXExplorerListing::MakeNameColumn() const
{
  Column column(_entries.size());
  for (std::size_t i = 0; i < column.size(); ++i)
    column[_naturalOrder[i]] = i;
  return column;
}

OPXExplorerListing::Column OPXExplorerListing::MakeKindColumn() const
{
  Column column(_entries.size());
  std::transform(_entries.begin(), _entries.end(), column.begin(), [](const StoredName& i_entry) { return i_entry.kind; });
  return column;
}

OPXExplorerListing::Order OPXExplorerListing::Sort(const std::vector<Column>& i_columns) const
{
  Order order = _naturalOrder;
  std::stable_sort(order.begin(), order.end(),
                   [&](std::uint32_t i_left, std::uint32_t i_right)
                   {
                     if (IsDirectory(i_left) != IsDirectory(i_right))
                       return IsDirectory(i_left);
                     for (const Column& column : i_columns)
                       if (column[i_left] != column[i_right])
                         return column[i_left] < column[i_right];
                     return false;
                   });
  return order;
}
