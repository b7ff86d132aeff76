#include "ZELSysRootedDirectory.h"

#include "EntryNames.h"
#include "FileTimes.h"
#include "SettledTime.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

#include <winternl.h>

namespace
{
constexpr ACCESS_MASK directoryAccess = FILE_LIST_DIRECTORY | FILE_TRAVERSE | FILE_READ_ATTRIBUTES | SYNCHRONIZE;
// A colon would name a drive or a stream inside a file.
constexpr std::string_view separators("/\\:\0", 4);
// In UTF-16 units, far more than any name has: the system counts a text's bytes in 16 bits.
constexpr std::size_t maxName = 0x7FFF;
constexpr ULONG shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE AsHandle(std::intptr_t i_handle)
{
  return reinterpret_cast<HANDLE>(i_handle);
}

ZELSysRootedDirectory::Kind GetKind(DWORD i_attributes)
{
  if (i_attributes & FILE_ATTRIBUTE_REPARSE_POINT)
    return ZELSysRootedDirectory::Link;
  if (i_attributes & FILE_ATTRIBUTE_DIRECTORY)
    return ZELSysRootedDirectory::Directory;
  return i_attributes & FILE_ATTRIBUTE_DEVICE ? ZELSysRootedDirectory::Other : ZELSysRootedDirectory::File;
}

// Opens an entry of an open directory by its bare name, itself and not what it leads to. The usual calls take a path
// only, every part of which may be exchanged for a link meanwhile.
std::intptr_t OpenEntry(std::intptr_t i_directory, std::string_view i_name, ACCESS_MASK i_access, ULONG i_options)
{
  std::u16string name = ZELUnicodeString::FromUTF8(i_name).ToUTF16();
  if (name.size() > maxName)
    return reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE);
  UNICODE_STRING text;
  text.Buffer = reinterpret_cast<wchar_t*>(name.data());
  text.Length = text.MaximumLength = static_cast<USHORT>(name.size() * sizeof(char16_t));
  OBJECT_ATTRIBUTES object;
  InitializeObjectAttributes(&object, &text, OBJ_CASE_INSENSITIVE, AsHandle(i_directory), nullptr);
  HANDLE handle = INVALID_HANDLE_VALUE;
  IO_STATUS_BLOCK status;
  const ULONG options = i_options | FILE_OPEN_REPARSE_POINT | FILE_SYNCHRONOUS_IO_NONALERT;
  const NTSTATUS result = NtCreateFile(&handle, i_access, &object, &status, nullptr, 0, shareAll, FILE_OPEN, options, nullptr, 0);
  return reinterpret_cast<std::intptr_t>(result >= 0 ? handle : INVALID_HANDLE_VALUE);
}

bool GetInformation(std::intptr_t i_handle, BY_HANDLE_FILE_INFORMATION& o_information)
{
  return GetFileInformationByHandle(AsHandle(i_handle), &o_information);
}

// The FAT file systems leave a directory's time alone when its entries change; of others nothing is known.
bool TellsChanges(std::intptr_t i_handle)
{
  wchar_t system[MAX_PATH + 1] = {};
  return GetVolumeInformationByHandleW(AsHandle(i_handle), nullptr, 0, nullptr, nullptr, nullptr, system, MAX_PATH + 1) &&
         (std::wstring_view(system) == L"NTFS" || std::wstring_view(system) == L"ReFS");
}

void VisitEntry(const FILE_ID_BOTH_DIR_INFO& i_entry, const ZELSysRootedDirectory::Visitor& i_visitor)
{
  const std::u16string_view wide(reinterpret_cast<const char16_t*>(i_entry.FileName), i_entry.FileNameLength / sizeof(char16_t));
  if (IsDots(wide))
    return;
  const ZELUnicodeString name = ZELUnicodeString::FromUTF16(wide);
  i_visitor(name.GetUTF8(), GetKind(i_entry.FileAttributes));
}

void VisitBlock(const char* i_block, const ZELSysRootedDirectory::Visitor& i_visitor)
{
  const auto* pEntry = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(i_block);
  VisitEntry(*pEntry, i_visitor);
  while (pEntry->NextEntryOffset != 0)
  {
    i_block += pEntry->NextEntryOffset;
    pEntry = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(i_block);
    VisitEntry(*pEntry, i_visitor);
  }
}
} // namespace

ZELSysRootedDirectory::ZELSysRootedDirectory(const ZELUnicodeString& i_path, std::error_code* o_pError)
{
  const std::u16string path = i_path.ToUTF16();
  _handle = reinterpret_cast<std::intptr_t>(CreateFileW(reinterpret_cast<const wchar_t*>(path.c_str()), directoryAccess, shareAll, nullptr,
                                                        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  const DWORD error = IsOpen() ? ERROR_DIRECTORY : GetLastError();
  BY_HANDLE_FILE_INFORMATION information;
  if (GetInformation(_handle, information) && information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
    return;
  *this = ZELSysRootedDirectory(NotOpen);
  if (o_pError)
    *o_pError = {static_cast<int>(error), std::system_category()};
}

ZELSysRootedDirectory::~ZELSysRootedDirectory()
{
  if (IsOpen())
    CloseHandle(AsHandle(_handle));
}

ZELSysRootedDirectory ZELSysRootedDirectory::OpenDirectory(std::string_view i_name) const
{
  if (!IsOpen() || !IsEntryName(i_name, separators))
    return ZELSysRootedDirectory(NotOpen);
  ZELSysRootedDirectory directory(OpenEntry(_handle, i_name, directoryAccess, FILE_DIRECTORY_FILE));
  BY_HANDLE_FILE_INFORMATION information;
  const bool isServed = GetInformation(directory._handle, information) && GetKind(information.dwFileAttributes) == Directory;
  return isServed ? std::move(directory) : ZELSysRootedDirectory(NotOpen);
}

ZELSysRootedDirectory ZELSysRootedDirectory::Duplicate() const
{
  HANDLE copy = INVALID_HANDLE_VALUE;
  const HANDLE process = GetCurrentProcess();
  // The value of a handle that is not open means the process itself here.
  if (IsOpen())
    DuplicateHandle(process, AsHandle(_handle), process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS);
  return ZELSysRootedDirectory(reinterpret_cast<std::intptr_t>(copy));
}

ZELSysRootedDirectory::Stamp ZELSysRootedDirectory::GetStamp() const
{
  Stamp stamp;
  BY_HANDLE_FILE_INFORMATION information;
  if (!GetInformation(_handle, information))
    return stamp;
  stamp.volume = information.dwVolumeSerialNumber;
  stamp.object = static_cast<std::uint64_t>(information.nFileIndexHigh) << 32 | information.nFileIndexLow;
  stamp.lastWrite = stamp.lastChange = FileTimes::FromSystem(information.ftLastWriteTime);
  stamp.isSettled = IsSettled(stamp.lastWrite) && TellsChanges(_handle);
  return stamp;
}

// A handle remembers how far it was read, and not every system forgets that when it is asked to: each listing has a
// handle of its own.
bool ZELSysRootedDirectory::ForEachEntry(const Visitor& i_visitor) const
{
  const ZELSysRootedDirectory listed(OpenEntry(_handle, std::string_view(), directoryAccess, FILE_DIRECTORY_FILE));
  std::vector<char> block(65536);
  while (GetFileInformationByHandleEx(AsHandle(listed._handle), FileIdBothDirectoryInfo, block.data(), static_cast<DWORD>(block.size())))
    VisitBlock(block.data(), i_visitor);
  return GetLastError() == ERROR_NO_MORE_FILES;
}

bool ZELSysRootedDirectory::GetDetails(std::string_view i_name, Details& o_details) const
{
  if (!IsOpen() || !IsEntryName(i_name, separators))
    return false;
  const ZELSysRootedDirectory entry(OpenEntry(_handle, i_name, FILE_READ_ATTRIBUTES | SYNCHRONIZE, 0));
  BY_HANDLE_FILE_INFORMATION information;
  if (!GetInformation(entry._handle, information))
    return false;
  const bool isFile = GetKind(information.dwFileAttributes) == File;
  o_details.size = isFile ? static_cast<std::uint64_t>(information.nFileSizeHigh) << 32 | information.nFileSizeLow : 0;
  o_details.lastWriteTime = FileTimes::FromSystem(information.ftLastWriteTime);
  return true;
}
