// What the tests of paths say in one word: the text of a path, a path in a test's tree, the texts of a list.
// EXPECT_EQ(TextOf(ZELSYPFilePath("a/b")), "a\\b");
#ifndef PathTexts_H
#define PathTexts_H

#include "TemporaryTree.h"
#include "ZELListValZELSYPFilePath.h"
#include "ZELSYPFilePath.h"

#include <string>
#include <string_view>
#include <vector>

inline std::string TextOf(const ZELSYPFilePath& i_path)
{
  return static_cast<const char*>(i_path);
}

// Given in UTF-8, so that a name the system code page lacks is a name as well.
inline ZELSYPFilePath In(const TemporaryTree& i_tree, std::string_view i_inside = {})
{
  return ZELSYPFilePath(ZELUnicodeString::FromUTF8(i_tree.Path(i_inside)));
}

inline std::vector<std::string> TextsOf(const ZELListValZELSYPFilePath& i_list)
{
  std::vector<std::string> texts;
  for (int position = 1; position <= i_list.Size(); ++position)
    texts.push_back(TextOf(i_list[position]));
  return texts;
}

#endif
