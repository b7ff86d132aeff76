#include "OPXTreeReply.h"

#include <utility>

std::shared_ptr<OPXTreeAnswer> OPXTreeReply::Add(std::string i_id, bool i_isNotification)
{
  _entries.push_back({std::move(i_id), i_isNotification, false, std::string()});
  ++_missing;
  return std::make_shared<OPXTreeAnswer>(shared_from_this(), _entries.size() - 1);
}

void OPXTreeReply::Set(std::size_t i_place, const char* i_key, const std::string& i_value)
{
  Entry& entry = _entries[i_place];
  if (std::exchange(entry.isSet, true))
    return;
  if (!entry.isNotification)
    entry.text = "{\"jsonrpc\":\"2.0\",\"id\":" + entry.id + ",\"" + i_key + "\":" + i_value + "}";
  _size += entry.text.size();
  if (--_missing == 0 && _sendLater)
    _sendLater(Compose());
}

void OPXTreeReply::SetMissing(std::size_t i_place)
{
  if (!_entries[i_place].isSet)
    Set(i_place, "error", OPXTreeError(OPXTreeError::InternalError, {{"reason", "the source gave no answer"}}).ToJSON());
}

std::string OPXTreeReply::Close(std::function<void(std::string)> i_sendLater)
{
  for (std::size_t i = 0; !i_sendLater && i < _entries.size(); ++i)
    SetMissing(i);
  if (_missing == 0)
    return Compose();
  _sendLater = std::move(i_sendLater);
  return std::string();
}

std::string OPXTreeReply::Compose()
{
  if (!_isBatch)
    return std::move(_entries.front().text);
  std::string answers;
  for (const Entry& entry : _entries)
    if (!entry.text.empty())
      answers += (answers.empty() ? "[" : ",") + entry.text;
  return answers.empty() ? answers : answers + "]";
}
