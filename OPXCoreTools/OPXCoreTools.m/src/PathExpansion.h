// PathExpansion: every existing object that a path with stars in its components names, found level by level.
// for (const ZELUnicodeString& found : PathExpansion(path).Run()) ...
#ifndef PathExpansion_H
#define PathExpansion_H

#include "TextPieces.h"
#include "ZELUnicodeString.h"

#include <string>
#include <string_view>
#include <vector>

class WildcardPattern;

class PathExpansion
{
public:
  explicit PathExpansion(const ZELUnicodeString& i_path);

  // Changes the working directory while it runs and puts it back, whatever happens.
  const std::vector<ZELUnicodeString>& Run();

private:
  void ChooseStart();
  bool StartAtDrive();
  bool StartAtShare();
  void StartAtRootOrWorkDir();
  void StartAt(std::string_view i_directory);

  void Descend(std::string_view i_component);
  void AddMatches(const ZELUnicodeString& i_directory, const WildcardPattern& i_upperPattern);
  bool Accepts(const WildcardPattern& i_upperPattern, std::string_view i_name);
  void AddExisting(const ZELUnicodeString& i_directory, std::string_view i_component);

  ZELUnicodeString _path;
  TextPieces _components;
  std::vector<ZELUnicodeString> _level;
  std::vector<ZELUnicodeString> _nextLevel;
  // Given out for one name after the other.
  std::string _upperName;
};

#endif
