// OPXTreeReply: what is sent back for one message, put together from the answers to its requests, at once or later.
// auto pReply = std::make_shared<OPXTreeReply>(false); auto pAnswer = pReply->Add("1", false); pAnswer->SetResult("null");
#ifndef OPXTreeReply_H
#define OPXTreeReply_H

#include "OPXTreeError.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class OPXTreeAnswer;

class OPXTreeReply : public std::enable_shared_from_this<OPXTreeReply>
{
public:
  explicit OPXTreeReply(bool i_isBatch) : _isBatch(i_isBatch) {}

  // One request more. i_id: as JSON text.
  std::shared_ptr<OPXTreeAnswer> Add(std::string i_id, bool i_isNotification);
  // In bytes, of the answers so far.
  std::size_t GetSize() const noexcept { return _size; }
  // After the last Add: the whole reply (empty when nothing is to be sent), or empty while answers are missing:
  // i_sendLater is given the reply then, once. Without i_sendLater what is missing is an error.
  std::string Close(std::function<void(std::string)> i_sendLater);

private:
  friend class OPXTreeAnswer;

  struct Entry
  {
    std::string id;
    bool isNotification;
    bool isSet;
    std::string text;
  };

  // i_key: "result" or "error". Only the first value of an entry counts.
  void Set(std::size_t i_place, const char* i_key, const std::string& i_value);
  void SetMissing(std::size_t i_place);
  // Takes the answers: there may be megabytes of them.
  std::string Compose();

  const bool _isBatch;
  std::vector<Entry> _entries;
  std::size_t _missing = 0;
  std::size_t _size = 0;
  std::function<void(std::string)> _sendLater;
};

// The answer to one request. It may be set at any time, also when the session has gone; a second time does nothing. When it
// goes without having been set, it is an error.
class OPXTreeAnswer
{
public:
  OPXTreeAnswer(std::shared_ptr<OPXTreeReply> i_pReply, std::size_t i_place) : _pReply(std::move(i_pReply)), _place(i_place) {}
  OPXTreeAnswer(const OPXTreeAnswer&) = delete;
  OPXTreeAnswer& operator=(const OPXTreeAnswer&) = delete;
  ~OPXTreeAnswer() { _pReply->SetMissing(_place); }

  // As JSON text.
  void SetResult(const std::string& i_result) { _pReply->Set(_place, "result", i_result); }
  void SetError(const OPXTreeError& i_error) { _pReply->Set(_place, "error", i_error.ToJSON()); }

private:
  const std::shared_ptr<OPXTreeReply> _pReply;
  const std::size_t _place;
};

#endif
