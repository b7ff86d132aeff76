#include "PathExpansion.h"

#include "CaseFolding.h"
#include "WildcardPattern.h"
#include "ZELSYPFilePath.h"
#include "ZELSysDirectory.h"
#include "ZELSysFiles.h"
#include "ZELSysWorkingDirectory.h"

#include <utility>

static void ChangeDirectory(std::string_view i_utf8)
{
  // Kept: a failed change is ignored; the names that follow do not depend on it unless the start does.
  ZELSysChangeDirectory(ZELUnicodeString::FromUTF8(i_utf8).GetNarrow());
}

PathExpansion::PathExpansion(const ZELUnicodeString& i_path) : _path(i_path), _components(_path.GetUTF8(), '\\') {}

const std::vector<ZELUnicodeString>& PathExpansion::Run()
{
  const ZELSysWorkingDirectory restored;
  ChooseStart();
  for (std::string_view component; _components.Next(component);)
    Descend(component);
  return _level;
}

void PathExpansion::ChooseStart()
{
  if (!StartAtDrive() && !StartAtShare())
    StartAtRootOrWorkDir();
}

void PathExpansion::StartAt(std::string_view i_directory)
{
  _level.push_back(ZELUnicodeString::FromUTF8(i_directory));
}

bool PathExpansion::StartAtDrive()
{
  const ZELUnicodeString drive = _path.SubString(0, 2);
  if (_path.GetLength() <= 2 || drive.GetUTF8().back() != ':')
    return false;
  StartAt(drive.GetUTF8());
  ChangeDirectory(std::string(drive.GetUTF8()) + '\\');
  std::string_view first;
  _components.Next(first);
  return true;
}

bool PathExpansion::StartAtShare()
{
  TextPieces components = _components;
  std::string_view server, share;
  if (_path.GetUTF8().substr(0, 2) != "\\\\" || !components.Next(server) || !components.Next(share))
    return false;
  const std::string root = "\\\\" + std::string(server) + '\\' + std::string(share);
  StartAt(root);
  ChangeDirectory(root + '\\');
  _components = components;
  return true;
}

void PathExpansion::StartAtRootOrWorkDir()
{
  const bool isFromRoot = ZELSysHasOneRoot() && _path.GetUTF8().substr(0, 1) == "\\";
  const ZELUnicodeString start(isFromRoot ? "\\" : static_cast<const char*>(ZELSYPFilePath::GetWorkDir()));
  std::string_view text = start.GetUTF8();
  // Only a root ends with a separator; joining puts one in.
  if (!_components.IsDone() && text.back() == '\\')
    text.remove_suffix(1);
  StartAt(text);
}

void PathExpansion::Descend(std::string_view i_component)
{
  ChangeDirectory(i_component);
  std::string upperPattern;
  UpperCaseNarrow(i_component, upperPattern);
  const WildcardPattern pattern(upperPattern);
  const bool isPattern = i_component.find('*') != std::string_view::npos;
  _nextLevel.clear();
  for (const ZELUnicodeString& directory : _level)
    if (isPattern)
      AddMatches(directory, pattern);
    else
      AddExisting(directory, i_component);
  _level.swap(_nextLevel);
}

bool PathExpansion::Accepts(const WildcardPattern& i_upperPattern, std::string_view i_name)
{
  if (i_upperPattern.IsEverything())
    return true;
  UpperCaseNarrow(i_name, _upperName);
  return i_upperPattern.Matches(_upperName);
}

void PathExpansion::AddMatches(const ZELUnicodeString& i_directory, const WildcardPattern& i_upperPattern)
{
  ZELSysDirectory entries(i_directory);
  for (std::string_view name; entries.Next(name);)
  {
    if (Accepts(i_upperPattern, name))
      _nextLevel.push_back(ZELUnicodeString::Join(i_directory.GetUTF8(), "\\", name));
  }
}

void PathExpansion::AddExisting(const ZELUnicodeString& i_directory, std::string_view i_component)
{
  ZELUnicodeString path = ZELUnicodeString::Join(i_directory.GetUTF8(), "\\", i_component);
  if (ZELSysGetFileAttributes(path.GetNarrow()) != -1)
    _nextLevel.push_back(std::move(path));
}
